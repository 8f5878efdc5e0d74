#include "tests/card/CardFixture.h"

namespace VELIX::Test {
namespace {

const QDateTime kDate = RecordBuilder::utc(2025, 6, 30, 10, 0, 0);

class CardLoading : public CardFixture
{
protected:
    void SetUp() override
    {
        RecordBuilder a;
        a.date(kDate).source(0).id(1).at(1).ushortValue(1).at(2).ushortValue(2);
        RecordBuilder b;
        b.date(kDate.addSecs(9)).id(1).at(3).ushortValue(3).id(2).at(4.5).ushortValue(4);
        mFolder.add("a.CAN", a).add("b.CAN", b);
        read();
    }
};

TEST_F(CardLoading, ReadsFilesInTheOrderOfTheListByBaseName)
{
    EXPECT_TRUE(load({"b.CAN", "/else/where/a.CAN"}));
    EXPECT_EQ(times(1), (Times{3, 1, 2}));
    EXPECT_EQ(mCard.recordData().entryCount, 4U);
    EXPECT_EQ(mCard.startTime(), 3.0) << "of the first file in the list";
    EXPECT_EQ(mCard.stopTime(), 2.0) << "of the last one";
    EXPECT_EQ(mCard.startDateTime(), kDate.addSecs(9));
    EXPECT_EQ(mCard.recordData().startTime, 1.0);
    EXPECT_EQ(mCard.recordData().stopTime, 4.5);
    EXPECT_EQ(mCard.recordData().startDateTime, kDate.addSecs(9));
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_TRUE(mCard.hasRecord());
    EXPECT_TRUE(mOutcome.reason.isEmpty());
    EXPECT_NE(mOutput.text().find("load Files <b.CAN>\ndate valid 1\nload Files "
                                  "</else/where/a.CAN>\n"),
              std::string::npos);

    mCard.recordData().limits.emplace_back();
    EXPECT_TRUE(load({"a.CAN", "a.CAN", "b.CAN"}));
    EXPECT_EQ(times(1), (Times{1, 2, 1, 2, 3})) << "instead of what was loaded; a name twice";
    EXPECT_EQ(times(RecordData::kSource0Id), (Times{1, 2, 1, 2}));
    EXPECT_TRUE(mCard.recordData().limits.empty());
    EXPECT_EQ(mCard.recordData().find(1)->indexSize, 6U) << "whole seconds of 4.5, and two";
}

TEST_F(CardLoading, UnknownNamesAndEmptyFilesLoadAsNothing)
{
    EXPECT_FALSE(load({"nosuch.CAN"}));
    EXPECT_FALSE(mCard.isLoaded());
    EXPECT_EQ(mOutcome.reason, QStringLiteral("The card has no file nosuch.CAN."));
    EXPECT_EQ(mCard.recordFiles().count(QStringLiteral("nosuch.CAN")), 1U) << "listed empty";
    EXPECT_TRUE(load({"a.CAN", "nosuch.CAN"})) << "one of them could be read";
    EXPECT_FALSE(mOutcome.reason.isEmpty());
    EXPECT_FALSE(load({}));

    mFolder.add("c.CAN", QByteArray());
    read();
    EXPECT_TRUE(load({"c.CAN"}));
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_FALSE(mCard.hasRecord());
}

TEST_F(CardLoading, TheListingKeepsWhatTheHeadersSaid)
{
    mFolder.add("c.CAN", recordOf(1, {{9, 1}, {1, 2}, {5, 3}}));
    read();
    load({"c.CAN"});
    EXPECT_EQ(info("c.CAN").startTime, 9.0);
    EXPECT_EQ(info("c.CAN").stopTime, 5.0);
    EXPECT_TRUE(info("c.CAN").dateInvalid);
    EXPECT_EQ(mCard.recordData().stopTime, 9.0);
}

TEST_F(CardLoading, FilesThatVanishOrShrinkAreReported)
{
    QFile::remove(mFolder.file("a.CAN"));
    EXPECT_TRUE(load({"a.CAN", "b.CAN"}));
    EXPECT_EQ(mOutcome.reason, QStringLiteral("The file a.CAN could not be read completely."));

    Samples many; // more than any buffer of the header's reading
    for (int i = 0; i < 1000; ++i) {
        many.emplace_back(i, 1);
    }
    mFolder.add("c.CAN", recordOf(1, many));
    read();
    // The first report comes after the entries were counted and before they are read.
    const Progress shrinking([&](int percent) {
        return percent > 0 || QFile::resize(mFolder.file("c.CAN"), 128 + 28 * 500 + 20);
    });
    EXPECT_TRUE(load({"c.CAN"}, shrinking)) << "what is left counts";
    EXPECT_EQ(times(1).size(), 500U);
    EXPECT_EQ(mCard.recordData().stopTime, 499.0);
    EXPECT_TRUE(mCard.isLoaded());
    EXPECT_FALSE(mOutcome.reason.isEmpty());
    EXPECT_NE(mOutput.text().find("ends after 500 of 1000 entries"), std::string::npos);
}

TEST_F(CardLoading, WhatCannotBeLoadedKeepsWhatIs)
{
    mFolder.addSparse("big.CAN", 3'000'000'000);
    read();
    mCard.setMemoryLimit(1'000'000'000);
    ASSERT_TRUE(load({"a.CAN"}));
    const auto isKept = [this] { return mCard.isLoaded() && times(1) == Times{1, 2}; };
    EXPECT_EQ(mCard.loadCycle(42, -1), 0);
    EXPECT_FALSE(loadCycle(42, -1));
    EXPECT_EQ(mOutcome.reason, QStringLiteral("The card has no cycle 42."));
    EXPECT_TRUE(isKept());
    EXPECT_FALSE(load({"big.CAN"}));
    EXPECT_TRUE(isKept()) << "beyond the memory limit";
    EXPECT_TRUE(mOutcome.reason.contains(QStringLiteral("half of the free memory")));
    EXPECT_EQ(mCard.loadCycle(1, -1), 1) << "the cycle exists";
    EXPECT_TRUE(isKept());
    mCard.setMemoryLimit(100);
    EXPECT_FALSE(load({"a.CAN", "b.CAN"})) << "the sum counts";
    mCard.setMemoryLimit(0);

    QFile::remove(mFolder.file("b.CAN")); // as if the card were pulled out
    CapturedDiagnostics output;
    EXPECT_FALSE(load({"b.CAN"}));
    EXPECT_TRUE(isKept());
    EXPECT_FALSE(mOutcome.reason.isEmpty());
    EXPECT_NE(output.text().find("RecordFile::readRecordData: Could not open"), std::string::npos);
    EXPECT_TRUE(load({"a.CAN"}));
    EXPECT_TRUE(mOutcome.reason.isEmpty());

    const CardFolder other;
    mCard.readContainer(other.path());
    EXPECT_TRUE(isKept()) << "another card is only listed";
}

TEST_F(CardLoading, ManyIdentifiersCountAgainstTheMemoryLimitToo)
{
    RecordBuilder record;
    for (std::uint32_t id = 0; id < 100'000; ++id) { // a list takes more than its one entry
        record.at(id * 0.001).id(id * 7919).source(1).ucharValue(1);
    }
    mFolder.add("noise.CAN", record);
    read();
    mCard.setMemoryLimit(20'000'000);
    EXPECT_TRUE(load({"noise.CAN"})) << "what fits is kept";
    EXPECT_LT(mCard.recordData().entryCount, 100'000U);
    EXPECT_FALSE(mOutcome.reason.isEmpty());
    mCard.setMemoryLimit(0);
    EXPECT_TRUE(load({"noise.CAN"}));
    EXPECT_EQ(mCard.recordData().ids().size(), 100'001U);
    EXPECT_EQ(times(99'999U * 7919U).size(), 1U);
    EXPECT_EQ(times(RecordData::kSource1Id).size(), 100'000U);
}

} // namespace
} // namespace VELIX::Test
