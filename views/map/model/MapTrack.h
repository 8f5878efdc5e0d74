#pragma once

#include "card/FlightPathPoint.h"

#include <vector>

namespace VELIX {

/// Where the aircraft was, from the points of its path in order of time.
namespace MapTrack {

/// Whether a point has no position, as positionAt() returns it where there is none.
bool isEmpty(const FlightPathPoint& point);

/// Returns a point between two of a path; the longitude and the course go the short way round.
FlightPathPoint between(const FlightPathPoint& from, const FlightPathPoint& to, double fraction);

/// Returns the position at a time (s) of a record from start to stop. Until the first and after the
/// last position of the record the aircraft is there; outside the record the empty point.
FlightPathPoint positionAt(const std::vector<FlightPathPoint>& path, double start, double stop,
                           double time);

} // namespace MapTrack
} // namespace VELIX
