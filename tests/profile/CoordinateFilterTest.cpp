#include "profile/CoordinateFilter.h"
#include "profile/Profile.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace VELIX::Test {
namespace {

/// The form dddmm.mmmm of decimal degrees.
double recorded(double degrees)
{
    const double whole = std::trunc(degrees);
    return whole * 100.0 + (degrees - whole) * 60.0;
}

constexpr double kTolerance = 1e-6; // degrees: minutes pass through single precision

TEST(DegreesMinutes, BecomeDecimalDegrees)
{
    const std::pair<double, double> rows[] = {
        {0, 0}, {4830, 48.5}, {-4830, -48.5}, {17959.9, 179.998333}, {-30, -0.5}};
    for (const auto& [value, degrees] : rows) {
        EXPECT_NEAR(degreesFromDegreesMinutes(value), degrees, kTolerance);
    }
    const auto part = static_cast<float>(std::fmod(48.0 + 15.123456789 / 100, 1.0));
    EXPECT_EQ(degreesFromDegreesMinutes(4815.123456789),
              48.0 + static_cast<double>(part) * 100.0 / 60.0)
        << "only the minutes lose precision";
    EXPECT_TRUE(std::isnan(degreesFromDegreesMinutes(std::nan(""))));
}

TEST(CoordinateFilter, TrustsFiveLatitudesThenHoldsTheLastAcrossJumpsOfTenKilometres)
{
    CoordinateFilter filter;
    const struct
    {
        double measured;
        double accepted;
    } rows[] = {{0, 0},      {10, 10},         {0, 0},         {-60, -60},
                {30, 30},    {0.0005, 0.0005}, {80, 80}, // zeros do not count
                {48, 48},    {48.18, 48},      {48.08, 48.08}, {48.26, 48.08},
                {0, 48.08}, // a lost fix
                {48.0, 48.0}};
    for (const auto& row : rows) {
        EXPECT_NEAR(filter.latitude(recorded(row.measured)), row.accepted, kTolerance)
            << row.measured;
    }
}

TEST(CoordinateFilter, AllowsMoreDegreesOfLongitudeTowardsThePolesAndComparesTheShortWay)
{
    const struct
    {
        double latitude;
        double from;
        double to;
        bool accepted;
    } rows[] = {
        {0.0011, 20, 20.0895, true}, {0.0011, 20, 20.0905, false}, {60, 20, 20.179, true},
        {60, 20, 20.181, false},     {-60, 20, 20.179, true},      {89, 20, 25.1, true},
        {89, 20, 25.2, false},       {10, 179.97, -179.97, true},  {10, -179.97, 179.97, true},
        {10, 179.97, -179.8, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.latitude << ": " << row.from << " " << row.to);
        CoordinateFilter filter;
        for (int i = 0; i < 5; ++i) {
            filter.latitude(recorded(row.latitude));
            filter.longitude(recorded(row.from));
        }
        EXPECT_NEAR(filter.longitude(recorded(row.to)), row.accepted ? row.to : row.from,
                    kTolerance);
        filter.reset();
        EXPECT_NEAR(filter.latitude(recorded(-20)), -20, kTolerance) << "judged afresh";
        EXPECT_NEAR(filter.longitude(recorded(-70)), -70, kTolerance) << "judged afresh";
    }
}

TEST(CoordinateFilter, BelongsToTheRolesOfRealsAlone)
{
    ProfileParameter p;
    p.dataType = eFloat;
    p.startByte = 4;
    p.factor = 100.0; // scaled before it is converted
    const RecordEntry entry = RecordBuilder().floatValue(48.5F).last();
    EXPECT_EQ(ProfileDecoder::metric(ParameterSample(entry, p)), 4850.0);
    for (const ECoordinate role : {ECoordinate::Longitude, ECoordinate::Latitude}) {
        p.coordinate = role;
        EXPECT_NEAR(ProfileDecoder::metric(ParameterSample(entry, p)), 48.0 + 50.0 / 60.0, 1e-4);
    }
    ProfileParameter whole = p;
    whole.dataType = eLong;
    const RecordEntry number = RecordBuilder().longValue(48).last();
    EXPECT_EQ(ProfileDecoder::metric(ParameterSample(number, whole)), 4800.0);

    // Decoded one by one, positions are judged until the coordinates are reset.
    Profile profile;
    int state = 0;
    QColor color;
    for (int i = 0; i < 5; ++i) {
        profile.getDataString(entry, p, state, color);
    }
    const RecordEntry jump = RecordBuilder().floatValue(10.0F).last();
    EXPECT_NEAR(profile.getDouble(jump, p, true), 48.0 + 50.0 / 60.0, 1e-4);
    profile.resetCoordinates();
    EXPECT_EQ(profile.getDataString(jump, p, state, color), QStringLiteral("10.000000"));
    EXPECT_NEAR(profile.getDouble(jump, p, false), 0.0 + 10.0 / 60.0, kTolerance) << "unscaled";
    EXPECT_NEAR(profile.calcCoordinateLat(1030.0, 0.0), 10.5, kTolerance);
    EXPECT_NEAR(profile.calcCoordinateLong(1030.0, 0.0), 10.5, kTolerance);
}

} // namespace
} // namespace VELIX::Test
