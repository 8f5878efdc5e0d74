#include "tests/card/CardFixture.h"
#include "tests/support/ProfileBuilder.h"

namespace VELIX::Test {
namespace {

constexpr std::uint32_t kSpeed = 500;
constexpr std::uint32_t kOther = 501;
constexpr std::uint32_t kLatitude = 502;
constexpr std::uint32_t kLongitude = 503;

/// Two flights at one sample a second: 60 from 100 to 199 and from 400 to 499, else 0.
class FlightLoading : public CardFixture
{
protected:
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.conversion("km/h", "kt", 0.5, 0).device("EMU");
        builder.parameter(kOther, QStringLiteral("Other"), "USHORT");
        builder.parameter(kSpeed, QStringLiteral("Speed"), "FLOAT");
        builder.set("velixDataType", "GroundSpeed");
        builder.set("unitMetric", "km/h").set("unitImperial", "kt");
        builder.parameter(kLatitude, QStringLiteral("Latitude"), "FLOAT");
        builder.set("velixDataType", "Latitude");
        builder.parameter(kLongitude, QStringLiteral("Longitude"), "FLOAT");
        builder.set("velixDataType", "Longitude");
        ASSERT_TRUE(builder.load(mProfile));
        RecordBuilder record;
        for (int second = 0; second < 600; ++second) {
            const bool flying = second % 300 >= 100 && second % 300 < 200;
            record.at(second).id(kSpeed).source(2).floatValue(flying ? 60.0F : 0.0F);
            record.id(kLatitude).floatValue(4800.0F).id(kLongitude).floatValue(1100.0F);
            record.id(kOther).source(0).ushortValue(static_cast<std::uint16_t>(second));
        }
        mFolder.add("a.CAN", record);
        mFolder.add("b.CAN",
                    recordOf(kOther, {{650, 650}}).date(RecordBuilder::utc(2025, 6, 30, 12, 0, 0)));
        read();
    }
    const std::vector<RecordFlight>& flights() const { return mCard.recordCycles().at(1).flights; }
    std::size_t workingSize() const { return mCard.recordData().entries(kOther).size(); }
};

TEST_F(FlightLoading, AWholeCycleKeepsAllEntriesAndKnowsItsFlights)
{
    ASSERT_EQ(mCard.loadCycle(1, -1), 1);
    ASSERT_EQ(flights().size(), 2U);
    EXPECT_EQ(flights()[0].takeoffTime, 111.0);
    EXPECT_EQ(flights()[0].landingTime, 210.0);
    EXPECT_EQ(flights()[0].startTime, 81.0);
    EXPECT_EQ(flights()[0].stopTime, 240.0);
    EXPECT_EQ(flights()[1].takeoffTime, 411.0);
    // The cycle's date is that of the next file less the stop time of its first (599 s).
    EXPECT_EQ(flights()[0].dateTime, RecordBuilder::utc(2025, 6, 30, 12, 0, 0).addSecs(111 - 599));
    EXPECT_EQ(workingSize(), 601U);
    EXPECT_EQ(&mCard.recordData(), &mCard.loadedData()) << "shared, not copied";
    EXPECT_FALSE(mCard.recordData().flight.statistic.valid);
    ASSERT_EQ(mCard.recordData().cycleFlights.size(), 2U);
    EXPECT_EQ(mCard.recordData().cycleFlights[1].takeoffTime, 411.0);
    EXPECT_TRUE(mCard.recordData().cycleFlights[1].statistic.valid);
    EXPECT_NE(mOutput.text().find("Flight 81.000000 -> 240.000000 <11:51:52>\n"
                                  "Flight 381.000000 -> 540.000000 <11:56:52>\n"),
              std::string::npos);
}

TEST_F(FlightLoading, AChosenFlightNarrowsTheWorkingData)
{
    ASSERT_EQ(mCard.loadCycle(1, 1), 1);
    const RecordData& working = mCard.recordData();
    ASSERT_EQ(working.entries(kOther).size(), 160U);
    EXPECT_EQ(working.entries(kOther).front().time, 381.0);
    EXPECT_EQ(working.entries(kOther).back().time, 540.0);
    EXPECT_EQ(working.entries(RecordData::kSource0Id).size(), 160U);
    EXPECT_EQ(working.startTime, 381.0);
    EXPECT_EQ(working.stopTime, 540.0);
    EXPECT_TRUE(working.flight.statistic.valid);
    EXPECT_EQ(working.flight.takeoffTime, 411.0);
    EXPECT_TRUE(working.cycleFlights.empty()) << "the others are not in this data";
    EXPECT_EQ(mCard.startTime(), 0.0);
    EXPECT_EQ(mCard.loadedData().entries(kOther).size(), 601U);

    const ProfileParameter& other = mProfile.data().devices[0].parameters.at(kOther);
    EXPECT_EQ(mCard.getValue(other, 5.5), 5.0) << "look-ups reach beyond the flight";
}

TEST_F(FlightLoading, WithoutTheFlightTheWholeRecordIsShown)
{
    for (const int flight : {2, 1000000, -7}) {
        ASSERT_EQ(mCard.loadCycle(1, flight), 1);
        EXPECT_EQ(workingSize(), 601U) << "no flight " << flight;
    }
    mCard.setMemoryLimit(1);
    EXPECT_FALSE(loadCycle(1, 0));
    EXPECT_FALSE(mOutcome.reason.isEmpty());
    EXPECT_EQ(workingSize(), 601U) << "a refused load chooses none in the old data";

    mCard.setMemoryLimit(0);
    mCard.loadCycle(1, 0);
    load({"a.CAN"});
    EXPECT_FALSE(mCard.recordData().flight.statistic.valid) << "loading files drops it";
    EXPECT_TRUE(mCard.recordData().cycleFlights.empty());
    EXPECT_EQ(workingSize(), 600U);

    mProfile.clear(); // and with it the ground speed
    ASSERT_EQ(mCard.loadCycle(1, 0), 1);
    EXPECT_TRUE(flights().empty());
    EXPECT_EQ(workingSize(), 601U);
}

TEST_F(FlightLoading, ACancelledLoadKeepsTheRecordBeforeIt)
{
    ASSERT_TRUE(loadCycle(1, 1));
    const RecordData* const whole = &mCard.loadedData();
    const RecordData* const working = &mCard.recordData();
    const FlightPathPoint* const path = mCard.flightPath().data();
    const RecordFlight* const firstFlight = flights().data();
    ASSERT_EQ(mCard.flightPath().size(), 160U);
    // Both files give 103 reports: one gives 101, the other one 0 and 100.
    for (const int heard : {0, 1, 40, 100, 101, 102}) {
        for (const bool cycle : {false, true}) {
            SCOPED_TRACE(testing::Message() << heard << (cycle ? " cycle" : " files"));
            int reports = 0;
            const Progress cancelling([&](int /*percent*/) { return ++reports <= heard; });
            EXPECT_FALSE(cycle ? loadCycle(1, 0, cancelling)
                               : load({"b.CAN", "none.CAN", "a.CAN"}, cancelling));
            EXPECT_EQ(reports, heard + 1) << "nobody is asked again";
            EXPECT_TRUE(mOutcome.cancelled);
            EXPECT_TRUE(mOutcome.reason.isEmpty());
            EXPECT_EQ(&mCard.loadedData(), whole);
            EXPECT_EQ(&mCard.recordData(), working);
            EXPECT_EQ(mCard.flightPath().data(), path);
            EXPECT_EQ(flights().data(), firstFlight);
            EXPECT_EQ(flights().size(), 2U);
            EXPECT_EQ(mCard.recordFiles().size(), 2U);
            EXPECT_EQ(mCard.startTime(), 0.0);
            EXPECT_EQ(mCard.stopTime(), 650.0);
            EXPECT_EQ(mCard.startDateTime(), RecordBuilder::utc(2025, 6, 30, 11, 50, 1));
            EXPECT_TRUE(mCard.isLoaded());
        }
    }
    EXPECT_EQ(workingSize(), 160U);
    EXPECT_TRUE(loadCycle(1, -1)) << "the next load is none the worse";
}

TEST_F(FlightLoading, FlightsAreFoundInTheUnitThatIsShown)
{
    mProfile.setCurrentUnit(eUnitImperial); // 30 kt never reach 50
    mCard.loadCycle(1, -1);
    EXPECT_TRUE(flights().empty());
    mProfile.setCurrentUnit(eUnitMetric);
    mCard.loadCycle(1, -1);
    EXPECT_EQ(flights().size(), 2U) << "found again on every load";
}

} // namespace
} // namespace VELIX::Test
