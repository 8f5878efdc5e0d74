#pragma once

#include "card/FlightPathPoint.h"

#include <vector>

namespace VELIX {

class Profile;
class RecordData;

/// Returns the path of a record: one point per latitude sample, by time.
///
/// Positions are decoded in one walk through the jump filter; longitude (the short way round the
/// globe) and altitude are interpolated to the latitude's time. Positions that are not numbers are
/// left out. Empty without a latitude or longitude series.
std::vector<FlightPathPoint> flightPath(const RecordData& record, const Profile& profile);

} // namespace VELIX
