#include "card/CardContainer.h"
#include "core/Progress.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

namespace VELIX::Test {
namespace {

const QDateTime kDate = RecordBuilder::utc(2025, 6, 30, 10, 0, 0);

class CardLoading : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProfileBuilder()
            .device("EMU")
            .parameter(500, QStringLiteral("Speed"), "FLOAT")
            .set("velixDataType", "GroundSpeed")
            .load(mProfile);
        mFolder.add(
            "a.CAN",
            RecordBuilder().date(kDate).source(0).id(1).at(1).ucharValue(1).at(2).ucharValue(2));
        mFolder.add("b.CAN", RecordBuilder()
                                 .date(kDate.addSecs(9))
                                 .id(1)
                                 .at(3)
                                 .ucharValue(3)
                                 .id(2)
                                 .at(4.5)
                                 .ucharValue(4));
        mCard.readContainer(mFolder.path());
    }
    std::vector<double> times(std::uint32_t id = 1) const
    {
        std::vector<double> list;
        for (const RecordEntry& entry : mCard.recordData().entries(id)) {
            list.push_back(entry.time);
        }
        return list;
    }
    int load(std::initializer_list<const char*> names)
    {
        return mCard.loadFiles(CardFolder::names(names));
    }

    using Times = std::vector<double>;
    CapturedDiagnostics mOutput;
    CardFolder mFolder;
    Profile mProfile;
    CardContainer mCard{mProfile};
};

TEST_F(CardLoading, ReadsFilesInTheOrderOfTheListByBaseName)
{
    EXPECT_EQ(load({"b.CAN", "/else/where/a.CAN"}), 1);
    EXPECT_EQ(times(), (Times{3, 1, 2}));
    EXPECT_EQ(mCard.recordData().entryCount, 4U);
    EXPECT_EQ(mCard.startTime(), 3.0) << "of the first file in the list";
    EXPECT_EQ(mCard.stopTime(), 2.0) << "of the last one";
    EXPECT_EQ(mCard.startDateTime(), kDate.addSecs(9));
    EXPECT_EQ(mCard.recordData().startTime, 1.0);
    EXPECT_EQ(mCard.recordData().stopTime, 4.5);
    EXPECT_EQ(mCard.recordData().startDateTime, kDate.addSecs(9));
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_TRUE(mCard.hasRecord());
    EXPECT_TRUE(mCard.lastError().isEmpty());
    EXPECT_NE(mOutput.text().find("load Files <b.CAN>\ndate valid 1\nload Files "
                                  "</else/where/a.CAN>\n"),
              std::string::npos);
}

TEST_F(CardLoading, TheIndexReachesToTheLastFilesStop)
{
    load({"a.CAN", "b.CAN"});
    for (const auto& [id, list] : mCard.recordData().ids()) {
        EXPECT_EQ(list.indexSize, 6U) << "whole seconds of 4.5, and two";
    }
}

TEST_F(CardLoading, ARepeatedNameIsReadAgain)
{
    EXPECT_EQ(load({"a.CAN", "a.CAN"}), 1);
    EXPECT_EQ(times(), (Times{1, 2, 1, 2}));
    EXPECT_EQ(times(RecordData::kSource0Id), (Times{1, 2, 1, 2}));
}

TEST_F(CardLoading, ReplacesWhatWasLoadedAndItsEvents)
{
    load({"a.CAN"});
    mCard.recordData().limits.emplace_back();
    load({"b.CAN"});
    EXPECT_EQ(times(), (Times{3}));
    EXPECT_TRUE(mCard.recordData().limits.empty());
}

TEST_F(CardLoading, UnknownNamesAreListedEmptyAndReadNothing)
{
    EXPECT_EQ(load({"nosuch.CAN"}), 0);
    EXPECT_FALSE(mCard.isLoaded());
    EXPECT_FALSE(mCard.hasRecord());
    EXPECT_EQ(mCard.lastError(), QStringLiteral("The card has no file nosuch.CAN."));
    EXPECT_EQ(mCard.recordFiles().count(QStringLiteral("nosuch.CAN")), 1U);
    EXPECT_EQ(load({"a.CAN", "nosuch.CAN"}), 1) << "one of them could be read";
    EXPECT_FALSE(mCard.lastError().isEmpty());
    EXPECT_EQ(load({}), 0);
}

TEST_F(CardLoading, TheListingKeepsWhatTheHeadersSaid)
{
    RecordBuilder backwards;
    backwards.id(1).at(9).ucharValue(1).at(1).ucharValue(2).at(5).ucharValue(3);
    mFolder.add("c.CAN", backwards);
    mCard.readContainer(mFolder.path());
    load({"c.CAN"});
    const RecordInfo& info = mCard.recordFiles().at(QStringLiteral("c.CAN")).recordInfo();
    EXPECT_EQ(info.startTime, 9.0);
    EXPECT_EQ(info.stopTime, 5.0);
    EXPECT_TRUE(info.dateInvalid);
    EXPECT_EQ(mCard.recordData().stopTime, 9.0);
}

TEST_F(CardLoading, FilesThatVanishOrShrinkAreReported)
{
    QFile::remove(mFolder.file("a.CAN"));
    EXPECT_EQ(load({"a.CAN", "b.CAN"}), 1);
    EXPECT_EQ(mCard.lastError(), QStringLiteral("The file a.CAN could not be read completely."));

    RecordBuilder longer;
    for (int i = 0; i < 1000; ++i) { // more than any buffer of the header's reading
        longer.at(i).id(1).ucharValue(1);
    }
    mFolder.add("c.CAN", longer);
    mCard.readContainer(mFolder.path());
    // The first report comes after the entries were counted and before they are read.
    Progress::setHook([&](int percent) {
        if (percent == 0) {
            QFile::resize(mFolder.file("c.CAN"), 128 + 28 * 500 + 20);
        }
    });
    EXPECT_EQ(load({"c.CAN"}), 1) << "what is left counts";
    Progress::setHook({});
    EXPECT_EQ(times().size(), 500U);
    EXPECT_EQ(mCard.recordData().stopTime, 499.0);
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_FALSE(mCard.lastError().isEmpty());
    EXPECT_NE(mOutput.text().find("ends after 500 of 1000 entries"), std::string::npos);
}

TEST_F(CardLoading, ALoadBeyondTheMemoryLimitIsRefusedAndKeepsWhatIsLoaded)
{
    mFolder.addSparse("big.CAN", 3'000'000'000);
    mCard.readContainer(mFolder.path());
    ASSERT_EQ(load({"a.CAN"}), 1);
    mCard.setMemoryLimit(1'000'000'000);
    EXPECT_EQ(load({"big.CAN"}), 0);
    EXPECT_EQ(times(), (Times{1, 2}));
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_TRUE(mCard.lastError().contains(QStringLiteral("half of the free memory")));
    EXPECT_EQ(mCard.loadCycle(1, -1), 1) << "the cycle exists";
    EXPECT_EQ(times(), (Times{1, 2}));
    EXPECT_EQ(load({"b.CAN"}), 1) << "smaller ones still load";
    EXPECT_TRUE(mCard.lastError().isEmpty());
    mCard.setMemoryLimit(100);
    EXPECT_EQ(load({"a.CAN", "b.CAN"}), 0) << "the sum counts";
}

TEST_F(CardLoading, ACardThatWasPulledOutKeepsWhatIsLoaded)
{
    ASSERT_EQ(load({"a.CAN"}), 1);
    QFile::remove(mFolder.file("a.CAN"));
    QFile::remove(mFolder.file("b.CAN"));
    CapturedDiagnostics output;
    EXPECT_EQ(load({"b.CAN"}), 0);
    EXPECT_EQ(times(), (Times{1, 2}));
    EXPECT_FALSE(mCard.lastError().isEmpty());
    EXPECT_NE(output.text().find("RecordFile::readRecordData: Could not open"), std::string::npos);
}

TEST_F(CardLoading, ManyIdentifiersCountAgainstTheMemoryLimitToo)
{
    RecordBuilder record;
    for (std::uint32_t id = 0; id < 100'000; ++id) { // a list takes more than its one entry
        record.at(id * 0.001).id(id * 7919).source(1).ucharValue(1);
    }
    ASSERT_TRUE(record.write(mFolder.file("noise.CAN")));
    mCard.readContainer(mFolder.path());
    mCard.setMemoryLimit(20'000'000);
    EXPECT_EQ(load({"noise.CAN"}), 1) << "what fits is kept";
    EXPECT_LT(mCard.recordData().entryCount, 100'000U);
    EXPECT_FALSE(mCard.lastError().isEmpty());
    mCard.setMemoryLimit(0);
    EXPECT_EQ(load({"noise.CAN"}), 1);
    EXPECT_EQ(mCard.recordData().ids().size(), 100'001U);
    EXPECT_EQ(times(99'999U * 7919U).size(), 1U);
    EXPECT_EQ(mCard.recordData().entries(RecordData::kSource1Id).size(), 100'000U);
}

TEST_F(CardLoading, AZeroLengthFileLoadsAsAnEmptyRecord)
{
    mFolder.add("c.CAN", QByteArray());
    mCard.readContainer(mFolder.path());
    EXPECT_EQ(load({"c.CAN"}), 1);
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_FALSE(mCard.hasRecord());
}

TEST_F(CardLoading, ListingAnotherCardKeepsTheLoadedData)
{
    load({"a.CAN"});
    const CardFolder other;
    mCard.readContainer(other.path());
    EXPECT_EQ(times(), (Times{1, 2}));
}

TEST_F(CardLoading, AnUnknownCycleChangesNothing)
{
    load({"a.CAN"});
    EXPECT_EQ(mCard.loadCycle(42, -1), 0);
    EXPECT_EQ(times(), (Times{1, 2}));
}

} // namespace
} // namespace VELIX::Test
