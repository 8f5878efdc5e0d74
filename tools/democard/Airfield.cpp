#include "tools/democard/Airfield.h"

#include "platform/tessel/Geodetic.h"
#include "tools/democard/PlainMath.h"

namespace VELIX::Demo {

namespace {
using Tessel::Geodetic::kMetresPerDegree;
constexpr double kLatitude = 49.0 + 7.31 / 60.0;
constexpr double kLongitude = 12.0 + 32.06 / 60.0;
} // namespace

PlanePoint Airfield::toPlane(const RunwayPoint& p)
{
    const double s = sine(kHeading);
    const double c = cosine(kHeading);
    return {p.along * s + p.right * c, p.along * c - p.right * s};
}

RunwayPoint Airfield::toRunway(const PlanePoint& p)
{
    const double s = sine(kHeading);
    const double c = cosine(kHeading);
    return {p.east * s + p.north * c, p.east * c - p.north * s};
}

double Airfield::latitude(const PlanePoint& p)
{
    return kLatitude + p.north / kMetresPerDegree;
}

double Airfield::longitude(const PlanePoint& p)
{
    return kLongitude + p.east / (kMetresPerDegree * cosine(latitude(p) * kPi / 180.0));
}

double degreesAndMinutes(double degrees)
{
    const double whole = std::floor(degrees);
    return whole * 100.0 + (degrees - whole) * 60.0;
}

} // namespace VELIX::Demo
