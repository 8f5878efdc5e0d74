#include "card/FlightStatisticCalculator.h"
#include "tests/card/CardFixture.h"
#include "tests/support/ProfileBuilder.h"

#include <cmath>

namespace VELIX::Test {
namespace {

enum : std::uint32_t { eLat = 1, eLon, eAlt, eThrottle, eFuelFlowA, eFuelFlowB, eSpeed };

class FlightStatistics : public CardFixture
{
protected:
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.device("EMU");
        int id = eLat;
        for (const char* role :
             {"Latitude", "Longitude", "Altitude", "ThrottleA", "FuelA", "FuelB", "GroundSpeed"}) {
            builder.parameter(id++, QString::fromLatin1(role), "FLOAT").set("velixDataType", role);
        }
        ASSERT_TRUE(builder.load(mProfile));
    }
    /// Value pairs of time and value.
    void add(std::uint32_t id, std::initializer_list<std::pair<double, double>> samples)
    {
        for (const auto& [time, value] : samples) {
            mRecord.at(time).id(id).floatValue(static_cast<float>(value));
        }
    }
    FlightStatistic statistic(double takeoff, double landing)
    {
        mRecord.at(2000).id(99).ucharValue(0); // look-ups reach to the end of the record
        loadOnly(mRecord);
        RecordFlight flight;
        flight.startTime = takeoff - 30.0;
        flight.stopTime = landing + 30.0;
        flight.takeoffTime = takeoff;
        flight.landingTime = landing;
        mCard.calcFlightStatistic(flight);
        EXPECT_TRUE(flight.statistic.valid);
        return flight.statistic;
    }

    RecordBuilder mRecord;
};

TEST_F(FlightStatistics, SumsUpATowFlight)
{
    add(eAlt, {{100, 500}, {300, 700}, {500, 1500}, {900, 1500}, {1290, 510}});
    for (int i = 0; i <= 100; ++i) { // 36 l/h over 100 s
        add(eFuelFlowA, {{200.0 + i, 36}});
        add(eFuelFlowB, {{200.0 + i, 72}});
    }
    add(eSpeed, {{100, 60}, {200, 130}, {300, 121}});
    const FlightStatistic s = statistic(100, 1300);
    EXPECT_EQ(s.flightTime, 1200.0);
    EXPECT_NEAR(s.fuelA, 1.0, 1e-12);
    EXPECT_NEAR(s.fuelB, 2.0, 1e-12);
    EXPECT_NEAR(s.fuel, 3.0, 1e-12);
    EXPECT_EQ(s.minAlt, 500.0);
    EXPECT_EQ(s.maxAlt, 1500.0);
    EXPECT_EQ(s.climb, 1000.0);
    EXPECT_EQ(s.climbRate, 2.5) << "to the first time of the maximum";
    EXPECT_EQ(s.descendRate, 1000.0 / 800.0);
    EXPECT_EQ(s.maxSpeed, 130.0);
    EXPECT_EQ(s.timePer100, 120.0);
    EXPECT_NEAR(s.fuelPer100, 0.3, 1e-12);
}

TEST_F(FlightStatistics, OnlyTheSpanCountsByTimeAndAltitudesFromATenthOfAMetre)
{
    add(eAlt, {{69.9, 5}, {70, 100}, {130, 0.05}, {150, 250}, {140, 250}, {230, 0.2}, {231, 900}});
    add(eSpeed, {{69, 500}, {70, 10}, {231, 500}});
    add(eFuelFlowA, {{60, 3600}, {70, 3600}, {130, 36}, {120, 72}, {231, 3600}});
    const FlightStatistic s = statistic(100, 200);
    EXPECT_FLOAT_EQ(static_cast<float>(s.minAlt), 0.2F) << "boundaries included";
    EXPECT_EQ(s.maxAlt, 250.0);
    EXPECT_EQ(s.descendRate, s.climb / 60.0) << "from 140, where the maximum comes first";
    EXPECT_EQ(s.maxSpeed, 10.0);
    EXPECT_NEAR(s.fuelA, 50 * 72 / 3600.0 + 10 * 36 / 3600.0, 1e-12)
        << "the first sample only sets the time";
}

/// Latitude in the record's form, that moves a hundredth of a degree north with each second.
double northOf(double seconds)
{
    return 4800.0 + seconds * 0.6;
}

TEST_F(FlightStatistics, MeasuresTheTakeOffFromTheRoll)
{
    for (int i = 0; i <= 40; ++i) {
        const double time = 100.0 + i;
        add(eLat, {{time - 0.5, northOf(i)}}); // a look-up at a time finds the sample before it
        add(eLon, {{time - 0.5, 1100}});
    }
    add(eThrottle, {{100, 80}, {101, 90}, {102, 95}, {103, 99}});
    add(eSpeed, {{100, 0}, {105, 80}, {109.5, 81}, {110, 120}});
    // At the reference time the altitude before it holds: 300 m. The sample at that time is none.
    add(eAlt, {{100, 300}, {109.5, 320}, {112, 301}, {114, 301.5}, {116, 315}, {118, 315.5}});
    const FlightStatistic s = statistic(120, 200);
    EXPECT_NEAR(s.distance, 12 * 1111.2, 3.0) << "from 102 to 114";
    EXPECT_NEAR(s.distance15, 16 * 1111.2, 3.0) << "from 102 to 118";
}

TEST_F(FlightStatistics, WhatIsNeverFoundIsZeroOrNotFiniteOrLiesAtTheOrigin)
{
    FlightStatistic s = statistic(100, 200);
    for (const double figure : {s.fuel, s.minAlt, s.maxAlt, s.climb, s.maxSpeed, s.distance}) {
        EXPECT_EQ(figure, 0.0);
    }
    EXPECT_TRUE(std::isinf(s.timePer100));
    EXPECT_TRUE(std::isnan(s.fuelPer100));

    add(eLat, {{99, 1000}, {150, 1000}});
    add(eLon, {{99, 0}, {150, 0}});
    add(eThrottle, {{100, 91}});
    s = statistic(100, 200);
    EXPECT_NEAR(s.distance, 10 * 60 * 1852.0, 3.0);
    EXPECT_NEAR(s.distance15, 10 * 60 * 1852.0, 3.0);
}

TEST_F(FlightStatistics, NameTheUnitsTheyWereConvertedTo)
{
    ProfileBuilder builder;
    builder.conversion("m", "ft", 3.0, 0.0).conversion("l/h", "gal/h", 0.25, 0.0).device("EMU");
    builder.parameter(eAlt, QStringLiteral("Alt"), "FLOAT").set("velixDataType", "Altitude");
    builder.set("unitMetric", "m").set("unitImperial", "ft");
    builder.parameter(eFuelFlowA, QStringLiteral("Flow"), "FLOAT").set("velixDataType", "FuelA");
    builder.set("unitMetric", "l/h").set("unitImperial", "gal/h");
    builder.parameter(eSpeed, QStringLiteral("V"), "FLOAT").set("velixDataType", "GroundSpeed");
    builder.set("unitMetric", "km/h").set("unitImperial", "kt"); // no such conversion
    ASSERT_TRUE(builder.load(mProfile));
    add(eAlt, {{100, 500}, {150, 600}});
    mProfile.setCurrentUnit(eUnitImperial);
    const FlightStatistic s = statistic(100, 200);
    EXPECT_EQ(s.climb, 300.0);
    EXPECT_EQ(s.heightUnit, QStringLiteral("ft"));
    EXPECT_EQ(s.fuelUnit, QStringLiteral("gal"));
    EXPECT_EQ(s.speedUnit, QString());
    mProfile.setCurrentUnit(eUnitMetric);
    EXPECT_EQ(statistic(100, 200).heightUnit, QString());
}

TEST(GreatCircle, IsANauticalMileAMinute)
{
    EXPECT_NEAR(CardContainer::calcDistance(48.0, 11.0, 48.01, 11.0), 1111.2, 1e-3);
    EXPECT_NEAR(greatCircleDistance(0, 179.5, 0, -179.5), 111120.0, 1e-3) << "the short way";
    EXPECT_NEAR(greatCircleDistance(60, 10, 60, 11), 55560.0, 10.0);
    EXPECT_NEAR(greatCircleDistance(90, 0, -90, 0), 180 * 111120.0, 1e-3);
    for (int i = 0; i < 1000; ++i) { // rounding must not turn equal points into no number
        const double at = i * 0.0917;
        EXPECT_NEAR(greatCircleDistance(at, at, at, at), 0.0, 0.2);
    }
}

} // namespace
} // namespace VELIX::Test
