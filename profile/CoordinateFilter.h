#pragma once

namespace VELIX {

/// Decimal degrees of a value in the form dddmm.mmmm.
/// Only the minutes are rounded to single precision, as the unit's own display does it.
double degreesFromDegreesMinutes(double value);

/// Rejects positions that jump more than 10 km away from the one before.
///
/// It works on a walk in time order: reset it before every walk and before every single look-up.
/// The first five positions off the origin are always accepted. Degrees in, decimal degrees out.
class CoordinateFilter
{
public:
    void reset();
    /// value: dddmm.mmmm; the decimal degrees of it, or the last latitude if it jumps.
    double latitude(double value);
    /// As latitude(), the limit widened by the cosine of the last latitude; the distance is
    /// taken the short way round the globe.
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
