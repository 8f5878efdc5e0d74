#include "card/FlightPath.h"
#include "card/RecordData.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace VELIX::Test {
namespace {

constexpr std::uint32_t kLat = 1;
constexpr std::uint32_t kLon = 2;
constexpr std::uint32_t kAlt = 3;

/// dddmm.mmmm of decimal degrees, as the unit records it.
float recorded(double degrees)
{
    const double whole = std::trunc(degrees);
    return static_cast<float>(whole * 100.0 + (degrees - whole) * 60.0);
}

class FlightPath : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.conversion("m", "ft", 3.28, 0).device("EMU");
        int id = kLat;
        for (const char* role : {"Latitude", "Longitude", "Altitude"}) {
            builder.parameter(id++, QString(), "FLOAT").set("velixDataType", role);
        }
        builder.set("unitMetric", "m").set("unitImperial", "ft");
        ASSERT_TRUE(builder.load(mProfile));
    }
    void position(double time, double latitude, double longitude)
    {
        mRecord.at(time).id(kLat).floatValue(recorded(latitude));
        mRecord.id(kLon).floatValue(recorded(longitude));
    }
    std::vector<FlightPathPoint> path() { return flightPath(*mRecord.data(), mProfile); }

    Profile mProfile;
    RecordBuilder mRecord;
};

constexpr double kDegrees = 2e-5; // tolerance: minutes are recorded in single precision

TEST_F(FlightPath, HasAPointForEachLatitudeWithLongitudeAndAltitudeAtItsTime)
{
    mProfile.setCurrentUnit(eUnitImperial);
    mRecord.id(kLat).at(10).floatValue(recorded(48.0)).at(20).floatValue(recorded(48.01));
    mRecord.at(30).floatValue(recorded(48.02));
    mRecord.id(kLon).at(15).floatValue(recorded(11.0)).at(25).floatValue(recorded(11.02));
    mRecord.id(kAlt).at(0).floatValue(500.0F).at(40).floatValue(900.0F);
    const auto points = path();
    ASSERT_EQ(points.size(), 3U);
    const double longitudes[] = {11.0, 11.01, 11.02}; // the first and the last value hold
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_DOUBLE_EQ(points[i].time, 10.0 + 10.0 * static_cast<double>(i));
        EXPECT_NEAR(points[i].latitude, 48.0 + 0.01 * static_cast<double>(i), kDegrees);
        EXPECT_NEAR(points[i].longitude, longitudes[i], kDegrees);
        EXPECT_NEAR(points[i].altitude, 600.0 + 100.0 * static_cast<double>(i), 1e-9)
            << "metres in any unit system";
    }
}

TEST_F(FlightPath, CrossesTheDateLineTheShortWay)
{
    mRecord.id(kLat).at(0).floatValue(recorded(10)).at(5).floatValue(recorded(10));
    mRecord.at(10).floatValue(recorded(10));
    mRecord.id(kLon).at(0).floatValue(recorded(179.99)).at(10).floatValue(recorded(-179.97));
    const auto points = path();
    ASSERT_EQ(points.size(), 3U);
    EXPECT_NEAR(points[0].longitude, 179.99, kDegrees);
    EXPECT_NEAR(points[1].longitude, -179.99, kDegrees);
    EXPECT_NEAR(points[2].longitude, -179.97, kDegrees);
    EXPECT_NEAR(points[1].course, 90.0, 0.1);
    EXPECT_NEAR(points[1].speed, 0.04 * 111120 * std::cos(10 * M_PI / 180) / 10, 1.0);
}

TEST_F(FlightPath, HasCourseAndSpeedOverGround)
{
    const struct
    {
        double north;
        double east;
        double course;
    } rows[] = {{0.01, 0, 0},    {0, 0.02, 90},    {-0.01, 0, 180},
                {0, -0.02, 270}, {0.01, 0.02, 45}, {0.01, -0.02, 315}};
    for (const auto& row : rows) { // at 60 degrees a degree of longitude is half as long
        mRecord = RecordBuilder();
        position(0, 60.0, 11.0);
        position(10, 60.0 + row.north, 11.0 + row.east);
        const auto points = path();
        ASSERT_EQ(points.size(), 2U);
        const double off = std::remainder(points[0].course - row.course, 360.0);
        EXPECT_NEAR(off, 0.0, 0.2) << row.course;
        EXPECT_GE(points[0].course, 0.0);
        EXPECT_NEAR(points[0].speed, std::hypot(row.north, row.east / 2) * 111120 / 10, 1.0);
    }
}

TEST_F(FlightPath, StandingStillKeepsTheCourseAndWhatIsNoNumberIsLeftOut)
{
    position(0, 48, 11);
    position(10, 47.99, 11);
    mRecord.at(11).id(kLat).floatValue(std::nanf(""));
    mRecord.at(12).id(kLon).floatValue(std::nanf(""));
    mRecord.at(13).id(kAlt).floatValue(std::nanf(""));
    position(20, 47.99, 11);
    position(30, 47.99, 11);
    const auto points = path();
    ASSERT_EQ(points.size(), 4U);
    EXPECT_NEAR(points.back().course, 180.0, 0.1);
    EXPECT_EQ(points.back().speed, 0.0);
    for (const FlightPathPoint& point : points) {
        EXPECT_TRUE(std::isfinite(point.latitude + point.longitude));
        EXPECT_EQ(point.altitude, 0.0);
    }
}

TEST_F(FlightPath, FiltersJumpsInTheOrderOfTime)
{
    for (int i = 0; i < 10; ++i) {
        position(i, 48.0 + i * 0.001, 11.0);
    }
    position(20, 20.0, 80.0); // far away, and recorded before what follows
    position(10, 48.010, 11.0);
    const auto points = path();
    ASSERT_EQ(points.size(), 12U);
    EXPECT_EQ(points.back().time, 20.0);
    EXPECT_NEAR(points.back().latitude, 48.010, kDegrees);
    EXPECT_NEAR(points.back().longitude, 11.0, kDegrees);

    mRecord = RecordBuilder();
    position(0, -20.0, 80.0);
    ASSERT_EQ(path().size(), 1U);
    EXPECT_NEAR(path().front().latitude, -20.0, kDegrees) << "knows nothing of the record before";
    EXPECT_NEAR(path().front().longitude, 80.0, kDegrees);
}

TEST_F(FlightPath, IsEmptyWithoutPositions)
{
    EXPECT_TRUE(path().empty());
    mRecord.at(1).id(kLat).floatValue(4800.0F);
    EXPECT_TRUE(path().empty()) << "a latitude alone is no position";
    mRecord = RecordBuilder();
    mRecord.at(1).id(0).floatValue(1.0F);
    mProfile.clear();
    EXPECT_TRUE(path().empty()) << "identifier 0 has no role";
}

} // namespace
} // namespace VELIX::Test
