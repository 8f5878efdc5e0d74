#include "card/RecordFile.h"
#include "card/RecordData.h"
#include "core/Progress.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"

#include <gtest/gtest.h>

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

TEST(RecordFile, ReadsTheHeaderInBothByteOrders)
{
    for (const Order order : {Order::Big, Order::Little}) {
        CardFolder card;
        card.add("a.CAN", fullRecord(order));
        RecordFile file;
        ASSERT_TRUE(file.readRecordInfo(card.file("a.CAN")));
        const RecordInfo& info = file.recordInfo();
        EXPECT_EQ(info.fileName, card.file("a.CAN"));
        EXPECT_EQ(info.dateTime, RecordBuilder::utc(2025, 6, 30, 23, 59, 58));
        EXPECT_EQ(info.dateTime.timeSpec(), Qt::UTC);
        EXPECT_EQ(info.startTime, 2 * 134.217728);
        EXPECT_EQ(info.stopTime, 64000000 * 31.25 * 1e-9 + 2 * 134.217728);
        EXPECT_EQ(info.sampleCount, 3U);
        EXPECT_FALSE(info.dateInvalid);
        EXPECT_EQ(info.busType, -2);
        EXPECT_EQ(info.ecuSerialNumber, 0xFEDCBA98);
        EXPECT_EQ(info.softwarePartA, QStringLiteral("SWPARTA-12345")) << "full width, no NUL";
        EXPECT_EQ(info.ecuType, QStringLiteral("ECU"));
        EXPECT_EQ(info.engineSerial, QString::fromUtf8("ENGINE-SERIAß"));
        EXPECT_EQ(info.engineType, QStringLiteral("TYPE-890"));
        EXPECT_EQ(info.softwarePartB, QStringLiteral("SWPARTB-67890"));
        EXPECT_EQ(info.emuSwVersion, QStringLiteral("EMU 7.1"));
    }
}

TEST(RecordFile, ReadsEveryFieldOfAnEntryInBothByteOrders)
{
    for (const Order order : {Order::Big, Order::Little}) {
        CardFolder card;
        card.add("a.CAN", fullRecord(order));
        RecordFile file;
        file.readRecordInfo(card.file("a.CAN"));
        RecordData data;
        ASSERT_TRUE(file.readRecordData(data));
        EXPECT_EQ(data.entryCount, 3U);
        ASSERT_EQ(data.entries(0x1F5).size(), 1U);
        const RecordEntry& entry = data.entries(0x1F5)[0];
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
        EXPECT_FALSE(entry.flag);
    }
}

TEST(RecordFile, FilesEntriesUnderTheirIdentifierAndTheirSource)
{
    CardFolder card;
    card.add("a.CAN", RecordBuilder()
                          .at(1)
                          .id(7)
                          .source(0)
                          .ucharValue(1)
                          .at(2)
                          .id(8)
                          .source(1)
                          .ucharValue(2)
                          .at(3)
                          .id(7)
                          .source(2)
                          .ucharValue(3)
                          .at(4)
                          .id(7)
                          .source(0)
                          .ucharValue(4)
                          .at(5)
                          .id(0x7FFFFFFF)
                          .source(1)
                          .ucharValue(5)
                          .at(6)
                          .id(0x7FFFFFFF)
                          .source(0)
                          .ucharValue(6));
    RecordFile file;
    file.readRecordInfo(card.file("a.CAN"));
    RecordData data;
    ASSERT_TRUE(file.readRecordData(data));
    data.finish(6.0);
    const auto times = [&data](std::uint32_t id) {
        std::vector<double> list;
        for (const RecordEntry& entry : data.entries(id)) {
            list.push_back(entry.time);
        }
        return list;
    };
    using Times = std::vector<double>;
    EXPECT_EQ(times(7), (Times{1, 3, 4}));
    EXPECT_EQ(times(8), (Times{2}));
    EXPECT_EQ(times(RecordData::kSource0Id), (Times{1, 4, 5, 6, 6}))
        << "a message of that number is filed like any other, and for its source again";
    EXPECT_EQ(times(RecordData::kSource1Id), (Times{2, 5}));
    EXPECT_EQ(data.find(7)->last.time, 4.0);
    EXPECT_EQ(data.find(RecordData::kSource1Id)->last.data[4], 5);
    EXPECT_EQ(data.find(99), nullptr);
    EXPECT_EQ(data.entryCount, 6U);
}

TEST(RecordFile, RoundsTenthsHalfUpAndCountsTicksInTwoWords)
{
    const struct
    {
        std::uint64_t ticks;
        double time;
        int time10;
    } rows[] = {{0, 0.0, 0},
                {1, 31.25 * 1e-9, 0},
                {1600000, 0.05, 1},
                {1280000, 0.04, 0},
                {std::uint64_t{1} << 32, 134.217728, 1342},
                {~std::uint64_t{0}, 4294967295.0 * 31.25 * 1e-9 + 4294967295.0 * 134.217728,
                 std::numeric_limits<int>::min()}};
    for (const auto& row : rows) {
        CardFolder card;
        card.add("a.CAN", RecordBuilder().ticks(row.ticks).id(1).ucharValue(0));
        RecordFile file;
        file.readRecordInfo(card.file("a.CAN"));
        RecordData data;
        ASSERT_TRUE(file.readRecordData(data));
        EXPECT_EQ(data.entries(1)[0].time, row.time);
        EXPECT_EQ(data.entries(1)[0].time10, row.time10) << row.time;
        EXPECT_EQ(file.recordInfo().startTime, row.time);
    }
}

TEST(RecordFile, SpansAllEntriesInWhateverOrderTheyStand)
{
    CardFolder card;
    RecordBuilder record;
    record.id(1).at(50).ucharValue(0).at(10).ucharValue(0).at(90).ucharValue(0).at(40).ucharValue(
        0);
    card.add("a.CAN", record).add("b.CAN", RecordBuilder().id(1).at(5).ucharValue(0));
    RecordFile file;
    file.readRecordInfo(card.file("a.CAN"));
    EXPECT_EQ(file.recordInfo().startTime, 50.0) << "listing: first and last entry only";
    EXPECT_EQ(file.recordInfo().stopTime, 40.0);
    RecordData data;
    file.readRecordData(data);
    EXPECT_EQ(file.recordInfo().startTime, 10.0);
    EXPECT_EQ(file.recordInfo().stopTime, 90.0);
    EXPECT_EQ(data.startTime, 10.0);
    EXPECT_EQ(data.stopTime, 90.0);

    RecordFile second;
    second.readRecordInfo(card.file("b.CAN"));
    second.readRecordData(data);
    EXPECT_EQ(data.startTime, 5.0);
    EXPECT_EQ(data.entryCount, 5U) << "counted across files";
}

TEST(RecordFile, ReportsEachPercentOnceFromZeroToHundred)
{
    CardFolder card;
    RecordBuilder record;
    for (int i = 0; i < 1234; ++i) {
        record.at(i).id(1).ucharValue(0);
    }
    card.add("a.CAN", record);
    RecordFile file;
    file.readRecordInfo(card.file("a.CAN"));
    std::vector<int> reports;
    Progress::setHook([&reports](int percent) { reports.push_back(percent); });
    RecordData data;
    file.readRecordData(data);
    Progress::setHook({});
    ASSERT_EQ(reports.size(), 101U);
    for (int percent = 0; percent <= 100; ++percent) {
        EXPECT_EQ(reports[static_cast<std::size_t>(percent)], percent);
    }
}

} // namespace
} // namespace VELIX::Test
