#pragma once

namespace VELIX {

/// The aircraft at one time.
struct FlightPathPoint
{
    double time = 0.0;      ///< s on the record's time axis
    double latitude = 0.0;  ///< degrees, north positive
    double longitude = 0.0; ///< degrees, east positive
    double altitude = 0.0;  ///< m, whatever the unit system
    double course = 0.0;    ///< degrees true, 0 to 360, over ground
    double speed = 0.0;     ///< ground speed, m/s
};

} // namespace VELIX
