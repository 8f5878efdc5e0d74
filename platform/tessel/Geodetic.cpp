#include "platform/tessel/Geodetic.h"

#include <GeographicLib/Geocentric.hpp>
#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/Math.hpp>

#include <algorithm>
#include <cmath>

namespace Tessel::Geodetic {

namespace {

double northing(double latitude)
{
    const double onMap = std::clamp(latitude, -kMercatorLatitudeLimit, kMercatorLatitudeLimit);
    return kMercatorRadius * std::atanh(GeographicLib::Math::sind(onMap));
}

} // namespace

Cartesian latLong2Cartesian(const Position& position, const Position& reference)
{
    const double eastward = std::remainder(position.longitude - reference.longitude, 360.0);
    return {kMercatorRadius * eastward * kRadiansPerDegree,
            northing(position.latitude) - northing(reference.latitude), position.altitude};
}

double mercatorLatitude(double northing)
{
    return std::atan(std::sinh(northing / kMercatorRadius));
}

Cartesian latLong2Geocentric(const Position& position)
{
    Cartesian result;
    GeographicLib::Geocentric::WGS84().Forward(position.latitude, position.longitude,
                                               position.altitude, result.x, result.y, result.z);
    return result;
}

double geodesicDistance(const Position& from, const Position& to)
{
    double metres = 0.0;
    GeographicLib::Geodesic::WGS84().Inverse(from.latitude, from.longitude, to.latitude,
                                             to.longitude, metres);
    return metres;
}

} // namespace Tessel::Geodetic
