#include "core/Progress.h"
#include "tests/card/CardFixture.h"

#include <algorithm>

namespace VELIX::Test {
namespace {

/// A recording that ends at a time, without a date or of the morning of 30 June.
RecordBuilder ending(double stop, int hour = -1)
{
    RecordBuilder record = recordOf(1, {{stop, 1}});
    return hour < 0 ? record : record.date(RecordBuilder::utc(2025, 6, 30, hour, 0, 0));
}

class CardListing : public CardFixture
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
            text +=
                QStringLiteral("%1 <%2> %3:")
                    .arg(number)
                    .arg(cycle.name, cycle.dateTime.toString(QStringLiteral("d. hh:mm:ss.zzz")));
            for (const RecordFile& file : cycle.files) {
                text += QLatin1Char(' ') + CardContainer::name(file.recordInfo().fileName);
            }
            text += QStringLiteral(" until %1\n").arg(cycle.stopTime);
        }
        return text.toStdString();
    }
};

TEST_F(CardListing, TakesRecordFilesByTheirExactExtensionInTheOrderOfTheirNames)
{
    for (const char* name : {"b.can", "a.CAN", "c.xcb", "d.Can", "e.txt", "10.can", "9.can",
                             "f.XCB", "g.can.txt", "h.txt.CAN", "CAN", "can", "B.can"}) {
        mFolder.add(name, ending(1, 10));
    }
    QDir(mFolder.path()).mkdir(QStringLiteral("x.CAN"));
    QDir(mFolder.path()).mkdir(QStringLiteral("sub"));
    mFolder.add("sub/deep.CAN", ending(1, 10));
    std::vector<int> reports;
    Progress progress([&reports](int percent) {
        reports.push_back(percent);
        return true;
    });
    ASSERT_TRUE(mCard.readContainer(mFolder.path(), progress).ok);
    const std::string found = "10.can 9.can B.can a.CAN b.can c.xcb h.txt.CAN";
    const std::string printed =
        "CardContainer::readContainer: Path <" + mFolder.path().toStdString() + "> NrFiles 13\n";
    EXPECT_EQ(names(), found);
    EXPECT_EQ(mOutput.text(), printed);
    ASSERT_EQ(reports.size(), 14U);
    EXPECT_EQ(std::count(reports.begin(), reports.end(), 0), 13);
    EXPECT_EQ(reports.back(), 100);

    for (const QString& path : {QStringLiteral("/no/such"), QString(), mFolder.file("a.CAN")}) {
        EXPECT_FALSE(mCard.readContainer(path));
    }
    EXPECT_EQ(names(), found) << "what is no folder changes nothing";
    EXPECT_EQ(mCard.name(), mFolder.path());
    EXPECT_EQ(mOutput.text(), printed);

    CardFolder other;
    other.add("a.CAN", ending(1));
    for (const int last : {-1, 0}) {
        Progress cancelling([last](int percent) { return percent <= last; });
        EXPECT_TRUE(mCard.readContainer(other.path(), cancelling).cancelled);
        EXPECT_EQ(names(), found) << "nor does a listing that is cancelled";
        EXPECT_EQ(mCard.name(), mFolder.path());
        EXPECT_EQ(mCard.recordCycles().size(), 1U);
    }
}

TEST_F(CardListing, EachInvalidDateOpensACycleAndIsReckonedBackFromTheNextFile)
{
    mFolder.add("a.CAN", ending(10, 9)).add("b.CAN", ending(20, 9));
    mFolder.add("c.CAN", ending(30)).add("d.CAN", ending(0.0999)); // whole milliseconds
    mFolder.add("e.CAN", ending(40, 0)).add("f.CAN", ending(50, 13)).add("g.CAN", ending(60));
    read();
    EXPECT_EQ(cycles(), "0 <> : a.CAN b.CAN until 20\n"
                        "1 <Cycle 1> : c.CAN until 30\n"
                        "2 <Cycle 2> 29. 23:59:59.901: d.CAN e.CAN f.CAN until 50\n"
                        "3 <Cycle 3> : g.CAN until 60\n")
        << "of a run only the last is repaired, and the last file has no next one";
    EXPECT_TRUE(info("d.CAN").dateTime.isValid());
    EXPECT_TRUE(info("d.CAN").dateInvalid) << "it stays marked";
    EXPECT_FALSE(info("e.CAN").dateInvalid);

    const CardFolder other;
    ASSERT_TRUE(mCard.readContainer(other.path()));
    EXPECT_EQ(names() + cycles(), "") << "listing again replaces the listing";
}

TEST_F(CardListing, DamagedFilesAreListedToo)
{
    mFolder.add("a.CAN", QByteArray()).add("b.CAN", QByteArray("short"));
    mFolder.addSparse("c.CAN", 3'000'000'000);
    read();
    EXPECT_EQ(names(), "a.CAN b.CAN c.CAN");
    EXPECT_EQ(info("b.CAN").sampleCount, 0U);
    EXPECT_EQ(mCard.recordCycles().size(), 3U) << "none of them has a date";
}

} // namespace
} // namespace VELIX::Test
