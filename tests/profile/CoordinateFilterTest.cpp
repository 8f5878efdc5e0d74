#include "profile/CoordinateFilter.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace VELIX::Test {
namespace {

/// The form dddmm.mmmm of decimal degrees.
double degreesMinutes(double degrees)
{
    const double whole = std::trunc(degrees);
    return whole * 100.0 + (degrees - whole) * 60.0;
}

constexpr double kTolerance = 1e-6; // degrees: minutes pass through single precision

void settle(CoordinateFilter& filter, double latitude, double longitude, int times = 5)
{
    for (int i = 0; i < times; ++i) {
        filter.latitude(degreesMinutes(latitude));
        filter.longitude(degreesMinutes(longitude));
    }
}

TEST(DegreesMinutes, BecomeDecimalDegrees)
{
    struct Row
    {
        double value;
        double degrees;
    };
    const Row rows[] = {{0, 0},    {4830, 48.5}, {-4830, -48.5}, {17959.9, 179.998333},
                        {30, 0.5}, {-30, -0.5}};
    for (const Row& row : rows) {
        EXPECT_NEAR(degreesFromDegreesMinutes(row.value), row.degrees, kTolerance) << row.value;
    }
    const double minutes = 15.123456789;
    EXPECT_EQ(degreesFromDegreesMinutes(4800.0 + minutes),
              48.0 + static_cast<double>(static_cast<float>(std::fmod(48.0 + minutes / 100, 1.0))) *
                         100.0 / 60.0)
        << "only the minutes lose precision";
    EXPECT_TRUE(std::isnan(degreesFromDegreesMinutes(std::nan(""))));
}

TEST(CoordinateFilter, TrustsTheFirstFivePositionsOffTheOrigin)
{
    CoordinateFilter filter;
    for (const double degrees : {0.0, 10.0, 0.0, -60.0, 30.0, 0.0005, 80.0, 48.0}) {
        EXPECT_NEAR(filter.latitude(degreesMinutes(degrees)), degrees, kTolerance)
            << "zeros do not count";
    }
    EXPECT_NEAR(filter.latitude(degreesMinutes(48.18)), 48.0, kTolerance) << "the sixth must fit";
}

TEST(CoordinateFilter, RejectsJumpsInLatitudeOfMoreThanTenKilometres)
{
    CoordinateFilter filter;
    settle(filter, 48.0, 11.0);
    EXPECT_NEAR(filter.latitude(degreesMinutes(48.08)), 48.08, kTolerance);
    EXPECT_NEAR(filter.latitude(degreesMinutes(48.26)), 48.08, kTolerance) << "20 km";
    EXPECT_EQ(filter.latitude(0.0), filter.latitude(degreesMinutes(48.08))) << "lost fix";
    EXPECT_NEAR(filter.latitude(degreesMinutes(48.0)), 48.0, kTolerance) << "and goes on";
}

TEST(CoordinateFilter, AllowsMoreDegreesOfLongitudeTowardsThePoles)
{
    const struct
    {
        double latitude;
        double step;
        bool accepted;
    } rows[] = {{0.0011, 0.0895, true}, {0.0011, 0.0905, false}, {60, 0.179, true},
                {60, 0.181, false},     {-60, 0.179, true},      {89, 5.1, true},
                {89, 5.2, false}};
    for (const auto& row : rows) {
        CoordinateFilter filter;
        settle(filter, row.latitude, 20.0);
        const double expected = row.accepted ? 20.0 + row.step : 20.0;
        EXPECT_NEAR(filter.longitude(degreesMinutes(20.0 + row.step)), expected, kTolerance)
            << row.latitude << " " << row.step;
    }
}

TEST(CoordinateFilter, ComparesLongitudesTheShortWayRound)
{
    CoordinateFilter filter;
    settle(filter, 10.0, 179.97);
    EXPECT_NEAR(filter.longitude(degreesMinutes(-179.97)), -179.97, kTolerance);
    EXPECT_NEAR(filter.longitude(degreesMinutes(179.99)), 179.99, kTolerance) << "and back";
    EXPECT_NEAR(filter.longitude(degreesMinutes(-179.8)), 179.99, kTolerance) << "still a jump";
}

TEST(CoordinateFilter, ResetForgetsWhatItHadCounted)
{
    CoordinateFilter filter;
    settle(filter, 48.0, 11.0);
    filter.reset();
    EXPECT_NEAR(filter.latitude(degreesMinutes(-20.0)), -20.0, kTolerance);
    EXPECT_NEAR(filter.longitude(degreesMinutes(-70.0)), -70.0, kTolerance);
}

TEST(CoordinateFilter, BelongsToTheRolesOfRealsAlone)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder()
                    .device("EMU")
                    .parameter(1, QStringLiteral("Lat"), "FLOAT")
                    .set("velixDataType", "Latitude")
                    .parameter(2, QStringLiteral("Lon"), "FLOAT")
                    .set("velixDataType", "Longitude")
                    .set("factor", "100")
                    .parameter(3, QStringLiteral("Alt"), "FLOAT")
                    .set("velixDataType", "Altitude")
                    .load(profile));
    const auto& parameters = profile.data().devices.front().parameters;
    const RecordEntry entry = RecordBuilder().floatValue(4830.0F).last();
    EXPECT_NEAR(profile.getDouble(entry, parameters.at(1), true), 48.5, kTolerance);
    EXPECT_NEAR(profile.getDouble(RecordBuilder().floatValue(48.3F).last(), parameters.at(2), true),
                48.5, 1e-4)
        << "scaled before it is converted";
    EXPECT_EQ(profile.getDouble(entry, parameters.at(3), true), 4830.0);
    ProfileParameter whole = parameters.at(1);
    whole.dataType = eLong;
    EXPECT_EQ(profile.getDouble(RecordBuilder().longValue(4830).last(), whole, true), 4830.0);

    // Texts and states pass through the same filter.
    int state = 0;
    QColor color;
    for (int i = 0; i < 5; ++i) {
        profile.getDataState(entry, parameters.at(1), state, color);
    }
    const RecordEntry jump = RecordBuilder().floatValue(1000.0F).last();
    EXPECT_EQ(profile.getDataString(jump, parameters.at(1), state, color),
              QStringLiteral("48.500000"));
    profile.resetCoordinates();
    EXPECT_EQ(profile.getDataString(jump, parameters.at(1), state, color),
              QStringLiteral("10.000000"));
    EXPECT_NEAR(Profile::calcCoordinate(4830.0), 48.5, kTolerance);
    EXPECT_NEAR(profile.calcCoordinateLat(1030.0, 0.0), 10.5, kTolerance);
    EXPECT_NEAR(profile.calcCoordinateLong(1030.0, 0.0), 10.5, kTolerance);
}

} // namespace
} // namespace VELIX::Test
