#include "card/CardContainer.h"
#include "core/Progress.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace VELIX::Test {
namespace {

/// A recording of one message that ends at a time.
RecordBuilder endingAt(double stop)
{
    RecordBuilder record;
    record.at(stop).id(1).ucharValue(1);
    return record;
}

RecordBuilder dated(double stop, int hour, int minute = 0)
{
    return endingAt(stop).date(RecordBuilder::utc(2025, 6, 30, hour, minute, 0));
}

class CardListing : public ::testing::Test
{
protected:
    std::string names() const
    {
        QStringList list;
        for (const auto& [name, file] : mCard.recordFiles()) {
            list << name;
        }
        return list.join(QLatin1Char(' ')).toStdString();
    }
    /// "number name date: files" of each cycle, one a line.
    std::string cycles() const
    {
        QString text;
        for (const auto& [number, cycle] : mCard.recordCycles()) {
            text += QStringLiteral("%1 <%2> %3:")
                        .arg(number)
                        .arg(cycle.name, cycle.dateTime.toString(QStringLiteral("hh:mm:ss.zzz")));
            for (const RecordFile& file : cycle.files) {
                text += QLatin1Char(' ') + CardContainer::name(file.recordInfo().fileName);
            }
            text += QStringLiteral(" until %1\n").arg(cycle.stopTime);
        }
        return text.toStdString();
    }
    const RecordInfo& info(const char* name) const
    {
        return mCard.recordFiles().at(QString::fromUtf8(name)).recordInfo();
    }

    CapturedDiagnostics mOutput;
    CardFolder mFolder;
    Profile mProfile;
    CardContainer mCard{mProfile};
};

TEST_F(CardListing, TakesRecordFilesByTheirExactExtensionInTheOrderOfTheirNames)
{
    for (const char* name : {"b.can", "a.CAN", "c.xcb", "d.Can", "e.txt", "10.can", "9.can",
                             "f.XCB", "g.can.txt", "h.txt.CAN", "CAN", "can", "B.can"}) {
        mFolder.add(name, dated(1, 10));
    }
    QDir(mFolder.path()).mkdir(QStringLiteral("x.CAN"));
    QDir(mFolder.path()).mkdir(QStringLiteral("sub"));
    mFolder.add("sub/deep.CAN", dated(1, 10));
    std::vector<int> reports;
    Progress::setHook([&reports](int percent) { reports.push_back(percent); });
    ASSERT_TRUE(mCard.readContainer(mFolder.path()));
    Progress::setHook({});
    EXPECT_EQ(names(), "10.can 9.can B.can a.CAN b.can c.xcb h.txt.CAN");
    EXPECT_EQ(mOutput.text(), "CardContainer::readContainer: Path <" +
                                  mFolder.path().toStdString() + "> NrFiles 13\n");
    EXPECT_EQ(mCard.name(), mFolder.path());
    ASSERT_EQ(reports.size(), 14U);
    EXPECT_EQ(std::count(reports.begin(), reports.end(), 0), 13);
    EXPECT_EQ(reports.back(), 100);
}

TEST_F(CardListing, AMissingFolderChangesNothing)
{
    mFolder.add("a.CAN", dated(1, 10));
    ASSERT_TRUE(mCard.readContainer(mFolder.path()));
    const std::string before = mOutput.text();
    for (const QString& path : {QStringLiteral("/no/such"), QString(), mFolder.file("a.CAN")}) {
        EXPECT_FALSE(mCard.readContainer(path));
    }
    EXPECT_EQ(names(), "a.CAN");
    EXPECT_EQ(mCard.name(), mFolder.path());
    EXPECT_EQ(mOutput.text(), before);
}

TEST_F(CardListing, AnInvalidDateIsReckonedBackFromTheNextFile)
{
    mFolder.add("a.CAN", endingAt(60)).add("b.CAN", dated(100, 12));
    mCard.readContainer(mFolder.path());
    EXPECT_EQ(info("a.CAN").dateTime, RecordBuilder::utc(2025, 6, 30, 11, 59, 0));
    EXPECT_TRUE(info("a.CAN").dateInvalid) << "it stays marked";
    EXPECT_FALSE(info("b.CAN").dateInvalid);
}

TEST_F(CardListing, OfARunOfInvalidDatesOnlyTheLastIsRepaired)
{
    mFolder.add("a.CAN", endingAt(1)).add("b.CAN", endingAt(2)).add("c.CAN", endingAt(0.0999));
    mFolder.add("d.CAN", dated(4, 12)).add("e.CAN", endingAt(5));
    mCard.readContainer(mFolder.path());
    EXPECT_FALSE(info("a.CAN").dateTime.isValid());
    EXPECT_FALSE(info("b.CAN").dateTime.isValid());
    EXPECT_EQ(info("c.CAN").dateTime, RecordBuilder::utc(2025, 6, 30, 12, 0, 0).addMSecs(-99))
        << "whole milliseconds";
    EXPECT_FALSE(info("e.CAN").dateTime.isValid()) << "the last file has no next one";
}

TEST_F(CardListing, EachInvalidDateOpensACycle)
{
    mFolder.add("a.CAN", dated(10, 9)).add("b.CAN", dated(20, 9));
    mFolder.add("c.CAN", endingAt(30)).add("d.CAN", dated(40, 12)).add("e.CAN", dated(50, 13));
    mFolder.add("f.CAN", endingAt(60)).add("g.CAN", endingAt(70));
    mCard.readContainer(mFolder.path());
    EXPECT_EQ(cycles(), "0 <> : a.CAN b.CAN until 20\n"
                        "1 <Cycle 1> 11:59:30.000: c.CAN d.CAN e.CAN until 50\n"
                        "2 <Cycle 2> : f.CAN until 60\n"
                        "3 <Cycle 3> : g.CAN until 70\n");
    EXPECT_FALSE(mCard.recordCycles().at(0).dateTime.isValid());
}

TEST_F(CardListing, ListingAgainReplacesTheListing)
{
    mFolder.add("a.CAN", endingAt(1));
    mCard.readContainer(mFolder.path());
    const CardFolder other;
    ASSERT_TRUE(mCard.readContainer(other.path()));
    EXPECT_TRUE(mCard.recordFiles().empty());
    EXPECT_TRUE(mCard.recordCycles().empty());
}

TEST_F(CardListing, DamagedFilesAreListedToo)
{
    mFolder.add("a.CAN", QByteArray()).add("b.CAN", QByteArray("short"));
    mFolder.addSparse("c.CAN", 3'000'000'000);
    ASSERT_TRUE(mCard.readContainer(mFolder.path()));
    EXPECT_EQ(names(), "a.CAN b.CAN c.CAN");
    EXPECT_EQ(info("a.CAN").sampleCount, 0U);
    EXPECT_EQ(mCard.recordCycles().size(), 3U) << "none of them has a date";
}

} // namespace
} // namespace VELIX::Test
