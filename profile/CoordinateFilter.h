#pragma once

namespace VELIX {

/// Returns the decimal degrees of a value in the form dddmm.mmmm. Only the minutes are rounded to
/// single precision, as the unit's own display does it.
double degreesFromDegreesMinutes(double value);

/// Rejects positions that jump more than 10 km away from the one before.
///
/// It works on a walk by time: every walk has one of its own. The first five positions off the
/// origin are always accepted.
class CoordinateFilter
{
public:
    CoordinateFilter() = default;
    /// latitude: decimal degrees at which longitudes are judged until a latitude comes.
    explicit CoordinateFilter(double latitude) { mLatitude.last = latitude; }

    /// Accepts the next positions whatever they are; the last latitude stays.
    void reset();
    /// Returns the decimal degrees of a value in the form dddmm.mmmm, or the last latitude if it
    /// jumps.
    double latitude(double value);
    /// Does the same for longitudes, the limit widened by the cosine of the last latitude and the
    /// distance taken the short way round the globe.
    double longitude(double value);

private:
    struct Track
    {
        double last = 0.0; ///< degrees
        int count = 0;     ///< accepted positions off the origin, up to 5
    };
    static double accept(Track& track, double degrees, double distance, double limit);

    Track mLatitude;
    Track mLongitude;
};

} // namespace VELIX
