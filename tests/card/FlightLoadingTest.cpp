#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

namespace VELIX::Test {
namespace {

constexpr std::uint32_t kSpeed = 500;
constexpr std::uint32_t kOther = 501;

/// Two flights at one sample a second: 60 from 100 to 199 and from 400 to 499, else 0.
RecordBuilder twoFlights()
{
    RecordBuilder record;
    for (int second = 0; second < 600; ++second) {
        const bool flying = (second >= 100 && second < 200) || (second >= 400 && second < 500);
        record.at(second).id(kSpeed).floatValue(flying ? 60.0F : 0.0F);
        record.id(kOther).source(0).ushortValue(static_cast<std::uint16_t>(second)).source(2);
    }
    return record;
}

class FlightLoading : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(ProfileBuilder()
                        .conversion("km/h", "kt", 0.5, 0)
                        .device("EMU")
                        .parameter(kSpeed, QStringLiteral("Speed"), "FLOAT")
                        .set("velixDataType", "GroundSpeed")
                        .set("unitMetric", "km/h")
                        .set("unitImperial", "kt")
                        .parameter(kOther, QStringLiteral("Other"), "USHORT")
                        .load(mProfile));
        mFolder.add("a.CAN", twoFlights());
        mFolder.add("b.CAN", RecordBuilder()
                                 .date(RecordBuilder::utc(2025, 6, 30, 12, 0, 0))
                                 .at(650)
                                 .id(kOther)
                                 .ushortValue(650));
        mCard.readContainer(mFolder.path());
    }
    const std::vector<RecordFlight>& flights() const { return mCard.recordCycles().at(1).flights; }

    CapturedDiagnostics mOutput;
    CardFolder mFolder;
    Profile mProfile;
    CardContainer mCard{mProfile};
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
    EXPECT_EQ(mCard.recordData().entries(kOther).size(), 601U);
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

TEST_F(FlightLoading, AFlightThatIsNotThereLoadsTheWholeCycle)
{
    for (const int flight : {2, 1000000, -7}) {
        ASSERT_EQ(mCard.loadCycle(1, flight), 1);
        EXPECT_EQ(mCard.recordData().entries(kOther).size(), 601U);
    }
}

TEST_F(FlightLoading, ARefusedLoadChoosesNoFlightInTheOldData)
{
    mCard.loadCycle(1, -1);
    mCard.setMemoryLimit(1);
    EXPECT_EQ(mCard.loadCycle(1, 0), 1);
    EXPECT_FALSE(mCard.lastError().isEmpty());
    EXPECT_EQ(mCard.recordData().entries(kOther).size(), 601U);
}

TEST_F(FlightLoading, LoadingFilesDropsTheChosenFlight)
{
    mCard.loadCycle(1, 0);
    mCard.loadFiles(CardFolder::names({"a.CAN"}));
    EXPECT_FALSE(mCard.recordData().flight.statistic.valid);
    EXPECT_TRUE(mCard.recordData().cycleFlights.empty());
    EXPECT_EQ(mCard.recordData().entries(kOther).size(), 600U);
}

TEST_F(FlightLoading, FlightsAreFoundInTheUnitThatIsShown)
{
    mProfile.setCurrentUnit(eUnitImperial); // 30 kt never reach 50
    mCard.loadCycle(1, -1);
    EXPECT_TRUE(flights().empty());
    mProfile.setCurrentUnit(eUnitMetric);
    mCard.loadCycle(1, -1);
    EXPECT_EQ(flights().size(), 2U) << "found anew on every load";
}

TEST_F(FlightLoading, NoGroundSpeedNoFlights)
{
    Profile without;
    ASSERT_TRUE(
        ProfileBuilder().device("EMU").parameter(1, QStringLiteral("x"), "FLOAT").load(without));
    CardContainer card(without);
    card.readContainer(mFolder.path());
    ASSERT_EQ(card.loadCycle(1, 0), 1);
    EXPECT_TRUE(card.recordCycles().at(1).flights.empty());
    EXPECT_EQ(card.recordData().entries(kOther).size(), 601U);
}

} // namespace
} // namespace VELIX::Test
