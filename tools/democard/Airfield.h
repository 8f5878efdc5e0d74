#pragma once

namespace VELIX::Demo {

/// A position on the map plane of the airfield: metres east and north of the runway's beginning.
struct PlanePoint
{
    double east = 0.0;
    double north = 0.0;
};

/// A position as the flight plan names it: metres from the runway's beginning in the direction of
/// take-off, and metres to the right of the centre line.
struct RunwayPoint
{
    double along = 0.0;
    double right = 0.0;
};

/// The invented grass strip of the demo: elevation, runway and the plane around it.
class Airfield
{
public:
    static constexpr double kElevation = 372.0; ///< m above sea level
    static constexpr double kHeading = 4.5728;  ///< rad: runway 26 points to 262 degrees

    static constexpr RunwayPoint kApron{430.0, -95.0};

    static PlanePoint toPlane(const RunwayPoint& p);
    static RunwayPoint toRunway(const PlanePoint& p);
    /// Decimal degrees, north and east positive.
    static double latitude(const PlanePoint& p);
    static double longitude(const PlanePoint& p);
};

/// Degrees as the unit sends them: dddmm.mmmm, minutes behind the degrees.
double degreesAndMinutes(double degrees);

} // namespace VELIX::Demo
