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
    struct Row
    {
        const char* name;
        Position position;
        double x;
        double y;
    };
    const Row rows[] = {
        {"origin", {0, 0, 0}, 0, 0},
        {"45 degrees north", {45, 0, 0}, 0, 5621521.486192066},
        {"south-west is negative", {-45, -90, 0}, -kHalfWorld / 2, -5621521.486192066},
        {"north-east corner of the map",
         {kMercatorLatitudeLimit, 179.9999999999, 0},
         kHalfWorld,
         kHalfWorld},
        {"pole is taken at the map's edge", {90, 0, 0}, 0, kHalfWorld},
        {"longitude a turn further on", {0, 370, 0}, kHalfWorld / 18, 0},
    };
    for (const Row& row : rows) {
        const Cartesian point = latLong2Cartesian(row.position, kOrigin);
        EXPECT_NEAR(point.x, row.x, 1e-4) << row.name;
        EXPECT_NEAR(point.y, row.y, 1e-4) << row.name;
    }
}

TEST(LatLong2Cartesian, IsRelativeToTheReferenceInThePlaneOnly)
{
    const Position reference{47.5, 8.25, 400.0};
    const Cartesian itself = latLong2Cartesian({47.5, 8.25, 1234.5}, reference);
    EXPECT_EQ(itself.x, 0.0);
    EXPECT_EQ(itself.y, 0.0);
    EXPECT_EQ(itself.z, 1234.5);
}

TEST(LatLong2Cartesian, StaysInOnePieceOverTheAntimeridian)
{
    const double oneDegree = kHalfWorld / 180.0;
    EXPECT_NEAR(latLong2Cartesian({0, -179.5, 0}, {0, 179.5, 0}).x, oneDegree, 1e-6);
    EXPECT_NEAR(latLong2Cartesian({0, 179.5, 0}, {0, -179.5, 0}).x, -oneDegree, 1e-6);
}

TEST(LatLong2Geocentric, LiesOnTheAxesOfTheEllipsoid)
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
