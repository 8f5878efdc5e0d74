#pragma once

#include <numbers>

namespace Tessel::Geodetic {

/// A place on or above the WGS 84 ellipsoid.
struct Position
{
    double latitude = 0.0;  ///< degrees, north positive, -90 to 90
    double longitude = 0.0; ///< degrees, east positive; any turn of the circle
    double altitude = 0.0;  ///< metres above the ellipsoid
};

struct Cartesian
{
    double x = 0.0; ///< metres
    double y = 0.0; ///< metres
    double z = 0.0; ///< metres
};

inline constexpr double kRadiansPerDegree = std::numbers::pi / 180.0;
inline constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
inline constexpr double kMetresPerNauticalMile = 1852.0;
/// Of latitude, or of longitude at the equator.
inline constexpr double kMetresPerDegree = 60.0 * kMetresPerNauticalMile;

/// Radius of the sphere that Web Mercator maps, in metres.
inline constexpr double kMercatorRadius = 6378137.0;
/// Half the circumference of that sphere, in metres: the map reaches that far in all four
/// directions.
inline constexpr double kMercatorHalf = std::numbers::pi * kMercatorRadius;
/// The latitude at which Web Mercator ends, in degrees: the world's square is as high as wide.
inline constexpr double kMercatorLatitudeLimit = 85.051128779806604;

/// Returns Web Mercator metres: x east and y north of the reference, z the altitude
/// of the position itself.
///
/// x goes the short way round the globe, so that a path over the antimeridian stays in one piece
/// near a reference on it. Latitudes beyond the map's limit are taken at the limit. These metres
/// are those of the map: away from the equator they are longer than metres on the ground.
Cartesian latLong2Cartesian(const Position& position, const Position& reference);

/// Returns the latitude, in radians, of a place so many Web Mercator metres north of the equator.
double mercatorLatitude(double northing);

/// Returns geocentric coordinates: origin in the Earth's centre, x through 0 N 0 E, z through the
/// north pole. Not a number for a latitude out of range.
Cartesian latLong2Geocentric(const Position& position);

/// Returns the length in metres of the shortest line on the ellipsoid, altitudes left aside. Not a
/// number for a latitude out of range.
double geodesicDistance(const Position& from, const Position& to);

} // namespace Tessel::Geodetic
