#include "card/RecordFile.h"
#include "core/Progress.h"
#include "tests/card/CardFixture.h"

#include <QtEndian>

namespace VELIX::Test {
namespace {

using Order = RecordBuilder::Order;

/// Puts a number of one of the two byte orders into a file's bytes.
template <class T>
void put(QByteArray& bytes, int at, T value, Order order)
{
    const T ordered = order == Order::Big ? qToBigEndian(value) : qToLittleEndian(value);
    bytes.replace(at, sizeof(T), reinterpret_cast<const char*>(&ordered), sizeof(T));
}

/// Three messages with every field of an entry set.
QByteArray fullRecord(Order order)
{
    RecordBuilder record;
    record.date(RecordBuilder::utc(2025, 6, 30, 23, 59, 58));
    for (int i = 0; i < 3; ++i) {
        record.ticks((std::uint64_t{2} << 32) + static_cast<std::uint64_t>(i) * 32000000)
            .id(0x1F4U + static_cast<unsigned>(i))
            .source(static_cast<std::uint16_t>(i))
            .payload(eFloat, 0x01020304);
    }
    QByteArray bytes = record.bytes(order);
    for (int i = 0; i < 3; ++i) {
        const int entry = 128 + 28 * i;
        bytes[entry + 8] = char(0x81);
        bytes[entry + 9] = 0x12;
        put<quint16>(bytes, entry + 16, 0x1617, order);
        put<quint16>(bytes, entry + 18, 0x1819, order);
    }
    put<quint32>(bytes, 20, 1, order);
    put<quint32>(bytes, 24, 32000000, order);
    put<qint32>(bytes, 28, -2, order);
    put<quint32>(bytes, 32, 0xFEDCBA98, order);
    const char* texts[] = {"SWPARTA-12345", "ECU\0\0\0\0\0\0\0\0\0\0", "ENGINE-SERIA\xDF",
                           "TYPE-890\0\0\0\0\0", "SWPARTB-67890"};
    int at = 36;
    for (const char* text : texts) {
        bytes.replace(at, 13, text, 13);
        at += 13;
    }
    bytes.replace(at, 7, "EMU 7.1", 7);
    return bytes;
}

/// A record file that is written, listed and read.
class RecordFiles : public ::testing::Test
{
protected:
    void read(const QByteArray& bytes, Progress progress = {})
    {
        mCard.add("a.CAN", bytes);
        ASSERT_TRUE(mFile.readRecordInfo(mCard.file("a.CAN")));
        mListed = mFile.recordInfo();
        mData.clear();
        ASSERT_TRUE(mFile.readRecordData(mData, 0, progress));
        mData.finish(mData.stopTime);
    }

    CapturedDiagnostics mOutput;
    CardFolder mCard;
    RecordFile mFile;
    RecordInfo mListed; ///< what the listing says, before all entries are read
    RecordData mData;
};

TEST_F(RecordFiles, AreReadInBothByteOrders)
{
    for (const Order order : {Order::Big, Order::Little}) {
        read(fullRecord(order));
        EXPECT_EQ(mListed.fileName, mCard.file("a.CAN"));
        EXPECT_EQ(mListed.dateTime, RecordBuilder::utc(2025, 6, 30, 23, 59, 58));
        EXPECT_EQ(mListed.dateTime.timeSpec(), Qt::UTC);
        EXPECT_EQ(mListed.startTime, 2 * 134.217728);
        EXPECT_EQ(mListed.stopTime, 64000000 * 31.25 * 1e-9 + 2 * 134.217728);
        EXPECT_EQ(mListed.sampleCount, 3U);
        EXPECT_FALSE(mListed.dateInvalid);
        EXPECT_EQ(mListed.busType, -2);
        EXPECT_EQ(mListed.ecuSerialNumber, 0xFEDCBA98);
        EXPECT_EQ(mListed.softwarePartA, QStringLiteral("SWPARTA-12345")) << "full width, no NUL";
        EXPECT_EQ(mListed.ecuType, QStringLiteral("ECU"));
        EXPECT_EQ(mListed.engineSerial, QString::fromUtf8("ENGINE-SERIAß"));
        EXPECT_EQ(mListed.engineType, QStringLiteral("TYPE-890"));
        EXPECT_EQ(mListed.softwarePartB, QStringLiteral("SWPARTB-67890"));
        EXPECT_EQ(mListed.emuSwVersion, QStringLiteral("EMU 7.1"));

        EXPECT_EQ(mData.entryCount, 3U);
        ASSERT_EQ(mData.entries(0x1F5).size(), 1U);
        const RecordEntry& entry = mData.entries(0x1F5)[0];
        const std::array<std::uint8_t, 8> payload = {1, eFloat, 0, 0, 1, 2, 3, 4};
        EXPECT_EQ(entry.data, payload) << "the payload is never swapped";
        EXPECT_EQ(entry.aux8, 0x81);
        EXPECT_EQ(entry.aux9, 0x12);
        EXPECT_EQ(entry.source, 1);
        EXPECT_EQ(entry.aux16, 0x1617);
        EXPECT_EQ(entry.aux18, 0x1819);
        EXPECT_EQ(entry.timeHigh, 2U);
        EXPECT_EQ(entry.timeLow, 32000000U);
        EXPECT_EQ(entry.time, 32000000 * 31.25 * 1e-9 + 2 * 134.217728);
        EXPECT_EQ(entry.time10, 2694);
    }
}

TEST_F(RecordFiles, FileEntriesUnderTheirIdentifierAndTheirSource)
{
    const struct
    {
        double time;
        std::uint32_t id;
        std::uint16_t source;
    } rows[] = {{1, 7, 0}, {2, 8, 1}, {3, 7, 2}, {4, 7, 0}, {5, 0x7FFFFFFF, 1}, {6, 0x7FFFFFFF, 0}};
    RecordBuilder record;
    for (const auto& row : rows) {
        record.at(row.time).id(row.id).source(row.source).ucharValue(1);
    }
    read(record.bytes());
    EXPECT_EQ(timesOf(mData.entries(7)), (Times{1, 3, 4}));
    EXPECT_EQ(timesOf(mData.entries(8)), (Times{2}));
    EXPECT_EQ(timesOf(mData.entries(RecordData::kSource0Id)), (Times{1, 4, 5, 6, 6}))
        << "a message of that number is filed like any other, and for its source again";
    EXPECT_EQ(timesOf(mData.entries(RecordData::kSource1Id)), (Times{2, 5}));
    EXPECT_EQ(mData.find(7)->last.time, 4.0);
    EXPECT_EQ(mData.find(RecordData::kSource1Id)->last.time, 5.0);
    EXPECT_EQ(mData.entryCount, 6U);
}

TEST_F(RecordFiles, RoundTenthsHalfUpAndCountTicksInTwoWords)
{
    const struct
    {
        std::uint64_t ticks;
        double time;
        int time10;
    } rows[] = {{1, 31.25 * 1e-9, 0},
                {1600000, 0.05, 1},
                {1280000, 0.04, 0},
                {std::uint64_t{1} << 32, 134.217728, 1342},
                {~std::uint64_t{0}, 4294967295.0 * 31.25 * 1e-9 + 4294967295.0 * 134.217728,
                 std::numeric_limits<int>::min()}};
    for (const auto& row : rows) {
        read(RecordBuilder().ticks(row.ticks).id(1).ucharValue(0).bytes());
        EXPECT_EQ(mData.entries(1)[0].time, row.time);
        EXPECT_EQ(mData.entries(1)[0].time10, row.time10) << row.time;
        EXPECT_EQ(mListed.startTime, row.time);
    }
}

TEST_F(RecordFiles, SpanAllEntriesInWhateverOrderTheyStand)
{
    read(recordOf(1, {{50, 0}, {10, 0}, {90, 0}, {40, 0}}).bytes());
    EXPECT_EQ(mListed.startTime, 50.0) << "listing: first and last entry only";
    EXPECT_EQ(mListed.stopTime, 40.0);
    EXPECT_EQ(mFile.recordInfo().startTime, 10.0);
    EXPECT_EQ(mFile.recordInfo().stopTime, 90.0);

    mCard.add("b.CAN", recordOf(1, {{5, 0}}));
    mFile.readRecordInfo(mCard.file("b.CAN"));
    mFile.readRecordData(mData);
    EXPECT_EQ(mData.startTime, 5.0);
    EXPECT_EQ(mData.stopTime, 90.0);
    EXPECT_EQ(mData.entryCount, 5U) << "counted across files";
}

TEST_F(RecordFiles, ReportEachPercentOnceFromZeroToHundred)
{
    const RecordBuilder record = recordOf(1, Samples(1234, {1.0, 1}));
    std::vector<int> reports;
    read(record.bytes(), Progress([&reports](int percent) {
             reports.push_back(percent);
             return true;
         }));
    ASSERT_EQ(reports.size(), 101U);
    for (int percent = 0; percent <= 100; ++percent) {
        EXPECT_EQ(reports[static_cast<std::size_t>(percent)], percent);
    }
}

TEST_F(RecordFiles, CutAnywhereKeepTheirWholeEntries)
{
    QByteArray whole = fullRecord(Order::Big);
    whole.replace(20, 4, QByteArray(4, '\0')); // leaves 1 s in the header
    for (int size = 0; size <= whole.size(); ++size) {
        SCOPED_TRACE(size);
        read(whole.left(size));
        const int count = std::max(0, (size - 128) / 28);
        const double first = 2 * 134.217728;
        EXPECT_EQ(mListed.sampleCount, static_cast<unsigned>(count));
        EXPECT_EQ(mListed.dateTime.isValid(), size >= 16) << "day is the last byte of a date";
        EXPECT_EQ(mListed.startTime, count > 0 ? first : size >= 28 ? 1.0 : 0.0);
        EXPECT_EQ(mListed.stopTime, count > 0 ? first + (count - 1) : 0.0);
        EXPECT_EQ(mListed.softwarePartA.size(), size >= 49 ? 13 : 0);
        EXPECT_EQ(mListed.softwarePartB.size(), size >= 101 ? 13 : 0);
        EXPECT_EQ(mListed.emuSwVersion.size(), size >= 108 ? 7 : 0);
        EXPECT_EQ(mData.entryCount, static_cast<unsigned>(count));
    }
}

TEST_F(RecordFiles, WithAWrongMarkAreReadSwapped)
{
    // Both the other order's mark and any other value swap against this little-endian machine.
    for (const char* mark : {"\xAB\xBA", "XY"}) {
        read(fullRecord(Order::Big).replace(0, 2, mark, 2) + QByteArray(10, 'x'));
        EXPECT_EQ(mListed.dateTime, RecordBuilder::utc(2025, 6, 30, 23, 59, 58));
        EXPECT_EQ(mListed.sampleCount, 3U) << "what trails behind the last entry is none";
    }
}

TEST_F(RecordFiles, HaveInvalidDatesButTakeAnImpossibleTimeForMidnight)
{
    const struct
    {
        char month;
        char day;
        char hour;
        QDateTime date;
    } rows[] = {{0, 1, 10, {}},
                {2, 30, 10, {}},
                {char(255), char(255), 0, {}},
                {2, 28, 10, RecordBuilder::utc(2025, 2, 28, 10, 59, 58)},
                {2, 28, 24, RecordBuilder::utc(2025, 2, 28, 0, 0, 0)}};
    for (const auto& row : rows) {
        const char date[] = {row.month, row.day, row.hour};
        read(fullRecord(Order::Big).replace(14, 3, date, 3));
        EXPECT_EQ(mListed.dateTime.isValid(), row.date.isValid()) << int{row.day};
        EXPECT_TRUE(!row.date.isValid() || mListed.dateTime == row.date) << int{row.hour};
        EXPECT_FALSE(mListed.dateInvalid) << "that is for the card to say";
    }
}

TEST_F(RecordFiles, ThatCannotBeOpenedKeepTheirPathOnly)
{
    EXPECT_FALSE(mFile.readRecordInfo(QStringLiteral("/no/such.CAN")));
    EXPECT_FALSE(mFile.readRecordData(mData));
    EXPECT_EQ(mFile.recordInfo().fileName, QStringLiteral("/no/such.CAN"));
    EXPECT_EQ(mOutput.text(), "RecordFile::readRecordInfo: Could not open /no/such.CAN\n"
                              "RecordFile::readRecordData: Could not open /no/such.CAN\n");
    mFile.readRecordInfo(mCard.path()); // a folder instead of a file
    mFile.readRecordData(mData);
    EXPECT_EQ(mFile.recordInfo().sampleCount, 0U);
    EXPECT_EQ(mData.entryCount, 0U);
}

TEST_F(RecordFiles, OfHugeSizeAreListedWithoutBeingRead)
{
    mCard.add("a.CAN", fullRecord(Order::Big)).addSparse("a.CAN", 3'000'000'000);
    ASSERT_TRUE(mFile.readRecordInfo(mCard.file("a.CAN")));
    EXPECT_EQ(mFile.recordInfo().sampleCount, 107142852U);
    EXPECT_EQ(mFile.recordInfo().stopTime, 0.0);

    mCard.addSparse("b.CAN", 128 + 28 * (qint64{1} << 32)); // 120 GB: more than 32 bits can count
    ASSERT_TRUE(mFile.readRecordInfo(mCard.file("b.CAN")));
    EXPECT_EQ(mFile.recordInfo().sampleCount, 0xFFFFFFFFU);
}

} // namespace
} // namespace VELIX::Test
