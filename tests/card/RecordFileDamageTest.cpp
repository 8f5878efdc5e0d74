#include "card/RecordData.h"
#include "card/RecordFile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"

#include <gtest/gtest.h>

#include <QDir>

namespace VELIX::Test {
namespace {

QByteArray threeEntries()
{
    RecordBuilder record;
    record.date(RecordBuilder::utc(2025, 6, 30, 10, 0, 0));
    for (int i = 1; i <= 3; ++i) {
        record.at(i).id(1).ucharValue(static_cast<std::uint8_t>(i));
    }
    QByteArray bytes = record.bytes();
    bytes.replace(36, 65, QByteArray("ABCDEFGHIJKLM").repeated(5));
    bytes.replace(101, 7, "VERSION");
    bytes.replace(20, 8, QByteArray("\0\0\0\0\x01\xE8\x48\x00", 8)); // header time 1 s
    return bytes;
}

TEST(DamagedRecordFile, CutAnywhereKeepsItsWholeEntries)
{
    const QByteArray whole = threeEntries();
    CapturedDiagnostics output;
    for (int size = 0; size <= whole.size(); ++size) {
        SCOPED_TRACE(size);
        CardFolder card;
        card.add("a.CAN", whole.left(size));
        RecordFile file;
        ASSERT_TRUE(file.readRecordInfo(card.file("a.CAN")));
        const RecordInfo info = file.recordInfo();
        const int count = std::max(0, (size - 128) / 28);
        EXPECT_EQ(info.sampleCount, static_cast<unsigned>(count));
        EXPECT_EQ(info.dateTime.isValid(), size >= 16) << "day is the last byte of a date";
        EXPECT_EQ(info.startTime, count > 0 || size >= 28 ? 1.0 : 0.0);
        EXPECT_EQ(info.stopTime, count > 0 ? static_cast<double>(count) : 0.0);
        EXPECT_EQ(info.softwarePartA.size(), size >= 49 ? 13 : 0);
        EXPECT_EQ(info.softwarePartB.size(), size >= 101 ? 13 : 0);
        EXPECT_EQ(info.emuSwVersion.size(), size >= 108 ? 7 : 0);
        RecordData data;
        EXPECT_TRUE(file.readRecordData(data));
        EXPECT_EQ(data.entryCount, static_cast<unsigned>(count));
        EXPECT_EQ(data.entries(1).size(), static_cast<unsigned>(count));
    }
}

TEST(DamagedRecordFile, TrailingBytesAreIgnored)
{
    CardFolder card;
    card.add("a.CAN", threeEntries() + QByteArray(10, 'x'));
    RecordFile file;
    file.readRecordInfo(card.file("a.CAN"));
    EXPECT_EQ(file.recordInfo().sampleCount, 3U);
    EXPECT_EQ(file.recordInfo().stopTime, 3.0);
}

TEST(DamagedRecordFile, AWrongMarkIsReadSwapped)
{
    // Both the other order's mark and any other value swap against this little-endian machine.
    for (const char* mark : {"\xAB\xBA", "XY", "\x01\x02"}) {
        CardFolder card;
        QByteArray bytes = threeEntries();
        bytes.replace(0, 2, mark, 2);
        card.add("a.CAN", bytes);
        RecordFile file;
        ASSERT_TRUE(file.readRecordInfo(card.file("a.CAN")));
        EXPECT_EQ(file.recordInfo().dateTime, RecordBuilder::utc(2025, 6, 30, 10, 0, 0));
        EXPECT_EQ(file.recordInfo().stopTime, 3.0);
    }
}

TEST(DamagedRecordFile, ImpossibleDatesAreInvalidButImpossibleTimesAreMidnight)
{
    const struct
    {
        char month;
        char day;
        char hour;
        bool valid;
    } rows[] = {{0, 1, 10, false}, {13, 1, 10, false}, {2, 30, 10, false},
                {2, 28, 10, true}, {2, 28, 24, true},  {char(255), char(255), 0, false}};
    for (const auto& row : rows) {
        CardFolder card;
        QByteArray bytes = threeEntries();
        bytes[14] = row.month;
        bytes[15] = row.day;
        bytes[16] = row.hour;
        card.add("a.CAN", bytes);
        RecordFile file;
        file.readRecordInfo(card.file("a.CAN"));
        EXPECT_EQ(file.recordInfo().dateTime.isValid(), row.valid) << int{row.day};
        if (row.valid) {
            EXPECT_EQ(file.recordInfo().dateTime.time(), QTime(row.hour == 24 ? 0 : 10, 0, 0));
        }
        EXPECT_FALSE(file.recordInfo().dateInvalid) << "that is for the card to say";
    }
}

TEST(DamagedRecordFile, OneThatCannotBeOpenedKeepsItsPathOnly)
{
    CapturedDiagnostics output;
    RecordFile file;
    EXPECT_FALSE(file.readRecordInfo(QStringLiteral("/no/such.CAN")));
    EXPECT_EQ(file.recordInfo().fileName, QStringLiteral("/no/such.CAN"));
    EXPECT_EQ(file.recordInfo().sampleCount, 0U);
    RecordData data;
    EXPECT_FALSE(file.readRecordData(data));
    EXPECT_TRUE(data.ids().empty());
    EXPECT_EQ(output.text(), "RecordFile::readRecordInfo: Could not open /no/such.CAN\n"
                             "RecordFile::readRecordData: Could not open /no/such.CAN\n");
}

TEST(DamagedRecordFile, AFolderInItsPlaceHoldsNothing)
{
    CardFolder card;
    QDir(card.path()).mkdir(QStringLiteral("x.CAN"));
    CapturedDiagnostics output;
    RecordFile file;
    file.readRecordInfo(card.file("x.CAN"));
    RecordData data;
    file.readRecordData(data);
    EXPECT_EQ(file.recordInfo().sampleCount, 0U);
    EXPECT_EQ(data.entryCount, 0U);
}

TEST(DamagedRecordFile, AHugeSparseFileIsListedWithoutBeingRead)
{
    CardFolder card;
    card.add("a.CAN", threeEntries()).addSparse("a.CAN", 3'000'000'000);
    RecordFile file;
    ASSERT_TRUE(file.readRecordInfo(card.file("a.CAN")));
    EXPECT_EQ(file.recordInfo().sampleCount, 107142852U);
    EXPECT_EQ(file.recordInfo().startTime, 1.0);
    EXPECT_EQ(file.recordInfo().stopTime, 0.0);

    card.addSparse("b.CAN", 128 + 28 * (qint64{1} << 32)); // 120 GB: more than 32 bits can count
    ASSERT_TRUE(file.readRecordInfo(card.file("b.CAN")));
    EXPECT_EQ(file.recordInfo().sampleCount, 0xFFFFFFFFU);
}

} // namespace
} // namespace VELIX::Test
