#include "profile/CoordinateFilter.h"

#include "platform/tessel/Geodetic.h"

#include <cmath>

namespace VELIX {

namespace {

constexpr double kLimit = 0.08999280057595392; // degrees of latitude: 10 km
constexpr int kTrusted = 4;                    // accepted positions before jumps are judged

} // namespace

double degreesFromDegreesMinutes(double value)
{
    double degrees = 0.0;
    const double fraction = std::modf(value / 100.0, &degrees);
    return degrees + static_cast<double>(static_cast<float>(fraction)) * 100.0 / 60.0;
}

void CoordinateFilter::reset()
{
    mLatitude.count = 0;
    mLongitude.count = 0;
}

double CoordinateFilter::accept(Track& track, double degrees, double distance, double limit)
{
    if (track.count > kTrusted) {
        if (distance > limit) {
            return track.last;
        }
    } else if (std::fabs(degrees) > 0.001) {
        ++track.count;
    }
    track.last = degrees;
    return degrees;
}

double CoordinateFilter::latitude(double value)
{
    const double degrees = degreesFromDegreesMinutes(value);
    return accept(mLatitude, degrees, std::fabs(degrees - mLatitude.last), kLimit);
}

double CoordinateFilter::longitude(double value)
{
    const double degrees = degreesFromDegreesMinutes(value);
    double distance = std::fabs(degrees - mLongitude.last);
    if (distance > 180.0) {
        distance = std::fabs(360.0 - distance);
    }
    return accept(mLongitude, degrees, distance,
                  kLimit / std::cos(mLatitude.last * Tessel::Geodetic::kRadiansPerDegree));
}

} // namespace VELIX
