#include "platform/tessel/Geodetic.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Tessel::Geodetic;

namespace {

constexpr Position kOrigin;
constexpr double kHalfWorld = 20037508.342789244; // edge of the Web Mercator square

double degrees(double whole, double minutes, double seconds)
{
    return std::copysign(std::abs(whole) + minutes / 60.0 + seconds / 3600.0, whole);
}

TEST(LatLong2Cartesian, MatchesKnownWebMercatorPoints)
{
    constexpr double kDegree = kHalfWorld / 180.0;
    const struct
    {
        const char* name;
        Position position;
        Position reference;
        Cartesian expected;
    } rows[] = {
        {"45 degrees north", {45, 0, 0}, {}, {0, 5621521.486192066, 0}},
        {"south-west is negative", {-45, -90, 0}, {}, {-90 * kDegree, -5621521.486192066, 0}},
        {"the map's corner",
         {kMercatorLatitudeLimit, 179.9999999999, 0},
         {},
         {kHalfWorld, kHalfWorld, 0}},
        {"a pole is at the map's edge", {90, 0, 0}, {}, {0, kHalfWorld, 0}},
        {"a turn further on", {0, 370, 0}, {}, {10 * kDegree, 0, 0}},
        {"relative in the plane only", {47.5, 8.25, 1234.5}, {47.5, 8.25, 400}, {0, 0, 1234.5}},
        {"eastwards over the antimeridian", {0, -179.5, 0}, {0, 179.5, 0}, {kDegree, 0, 0}},
        {"westwards over it", {0, 179.5, 0}, {0, -179.5, 0}, {-kDegree, 0, 0}},
    };
    for (const auto& row : rows) {
        const Cartesian point = latLong2Cartesian(row.position, row.reference);
        EXPECT_NEAR(point.x, row.expected.x, 1e-4) << row.name;
        EXPECT_NEAR(point.y, row.expected.y, 1e-4) << row.name;
        EXPECT_EQ(point.z, row.expected.z) << row.name;
    }
    EXPECT_NEAR(mercatorLatitude(5621521.486192066) * kDegreesPerRadian, 45.0, 1e-12);
}

TEST(LatLong2Geocentric, IsOnTheAxesOfTheEllipsoid)
{
    const Cartesian equator = latLong2Geocentric({0, 90, 1000});
    EXPECT_NEAR(equator.x, 0.0, 1e-6);
    EXPECT_NEAR(equator.y, 6379137.0, 1e-6);
    EXPECT_NEAR(equator.z, 0.0, 1e-6);
    EXPECT_NEAR(latLong2Geocentric({90, 0, 0}).z, 6356752.314245, 1e-6);
    EXPECT_TRUE(std::isnan(latLong2Geocentric({91, 0, 0}).z));
}

TEST(GeodesicDistance, MatchesPublishedLengths)
{
    const Position flindersPeak{degrees(-37, 57, 3.72030), degrees(144, 25, 29.52440), 0};
    const Position buninyong{degrees(-37, 39, 10.15610), degrees(143, 55, 35.38390), 0};
    EXPECT_NEAR(geodesicDistance(flindersPeak, buninyong), 54972.271, 1e-3);
    EXPECT_NEAR(geodesicDistance({0, 0, 0}, {90, 0, 0}), 10001965.729, 1e-3);
    EXPECT_NEAR(geodesicDistance({0, 179.5, 0}, {0, -179.5, 5000}), 111319.491, 1e-3);
    EXPECT_EQ(geodesicDistance(buninyong, buninyong), 0.0);
    EXPECT_TRUE(std::isnan(geodesicDistance({91, 0, 0}, kOrigin)));
}

} // namespace
