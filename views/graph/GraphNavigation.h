#pragma once

#include "views/graph/model/GraphTimeRange.h"

namespace VELIX {

/// Which time range the graph shows after a command or a move of the cursor.
namespace GraphNavigation {

/// Width (s) after one step of holding "Zoom In": never above 5000 s.
double zoomedIn(double width);
/// Width (s) after one step of holding "Zoom Out": never below 1 s, without an upper end.
double zoomedOut(double width);

/// The range that keeps a cursor (s) in the inner 80 % of a range: it moves in jumps, so that the
/// traces do not move between them. Its width stays.
GraphTimeRange paged(const GraphTimeRange& visible, double cursor);

/// A record (s) with a tenth of its duration as margin at both ends, in single precision. A record
/// of one moment gets a second around it.
GraphTimeRange wholeRecord(double start, double stop);

/// What an event needs to be understood: 30 s with the event in the middle.
GraphTimeRange around(double time);

} // namespace GraphNavigation
} // namespace VELIX
