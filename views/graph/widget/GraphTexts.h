#pragma once

#include "views/graph/model/GraphModel.h"

#include <QString>

namespace VELIX {

/// The texts of the graph, formatted as its users know them.
namespace GraphTexts {

/// A number with so many decimals; zero never has a minus sign.
QString fixed(double value, int decimals);

/// "%8.2f %8.2f [%s]" with the trace's precision: two values and the unit. A value that is not a
/// number reads "---".
QString values(const GraphModel::ParStruct& trace, double first, double second);
/// What the legend lists of a trace: its values at the two markers, or else its lowest and highest.
QString legendValues(const GraphModel& model, unsigned int trace, bool markersOn);
/// What legendValues() lists, in columns as wide as theirs.
QString legendHeader(bool markersOn);

/// "%s   %f" of the value at a time, "%s   ---" if there is none.
QString readout(const GraphModel& model, unsigned int trace, double time);
/// The value under the mouse with the trace's precision and unit; "---" if there is none.
QString hover(const GraphModel& model, unsigned int trace, double time);
/// "dt = %1 s".
QString distance(double seconds);
/// "%s/%.2f".
QString timed(const QString& name, double time);
/// A time as h:mm:ss with the decimals that a pixel of so many seconds deserves, 3 at most.
QString cursorTime(double time, double secondsPerPixel);

/// The sentence that an empty graph shows instead of traces; empty if there is something to see.
QString hint(const GraphModel& model);
/// The sentence over the empty grid of a visible range before or behind all samples; else empty.
QString rangeHint(const GraphModel& model);

} // namespace GraphTexts
} // namespace VELIX
