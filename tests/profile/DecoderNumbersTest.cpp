#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace VELIX::Test {
namespace {

RecordEntry message(EDataType type, std::uint32_t word)
{
    return RecordBuilder().id(500).payload(type, word).last();
}

ProfileParameter parameter(int dataType, int startByte = 4)
{
    ProfileParameter p;
    p.dataType = dataType;
    p.startByte = startByte;
    return p;
}

ProfileParameter bits(int dataType, int startBit, int endBit)
{
    ProfileParameter p = parameter(dataType);
    p.startBit = startBit;
    p.endBit = endBit;
    return p;
}

const QColor kUntouchedColor(1, 2, 3);
constexpr int kUntouchedState = 7;

TEST(DecoderNumbers, EveryTypeIsReadBigEndianFromItsStartByte)
{
    struct Row
    {
        const char* name;
        int code;
        double number;
    };
    // The payload is FE DC BA 99; the words above 2^24 lose their low bits on purpose.
    const Row rows[] = {
        {"LONG", 3, -19088744.0}, {"ULONG", 4, 4275878656.0}, {"SHORT", 6, -292.0},
        {"USHORT", 7, 65244.0},   {"CHAR", 9, -2.0},          {"UCHAR", 10, 254.0},
        {"SHORT_2", 12, -292.0},  {"USHORT_2", 13, 65244.0},  {"CHAR_4", 15, -2.0},
        {"UCHAR_4", 16, 254.0},   {"CHAR_2", 18, -2.0},       {"UCHAR_2", 19, 254.0},
        {"CHAR_3", 26, -2.0},     {"UCHAR_3", 27, 254.0},     {"BLONG bit 0", 5, 1.0},
        {"BSHORT bit 0", 8, 0.0},
    };
    Profile profile;
    const RecordEntry entry = message(eNoData, 0xFEDCBA99);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(profile.getDouble(entry, parameter(row.code), true), row.number);
    }
    const RecordEntry real = message(eNoData, std::bit_cast<std::uint32_t>(-12.625F));
    EXPECT_EQ(profile.getDouble(real, parameter(eFloat), true), -12.625);
    EXPECT_EQ(profile.getDouble(entry, parameter(eUShort, 5), true), 0xDCBA);
}

TEST(DecoderNumbers, TypesWithoutADecoderGiveZeroAndLeaveStateAndColour)
{
    Profile profile;
    const RecordEntry entry = message(eFloat, 0xFFFFFFFF);
    for (const int code : {0, 1, 11, 14, 17, 20, 21, 22, 23, 24, 25, 28, 29, 30, -1, 1000000}) {
        SCOPED_TRACE(code);
        ProfileParameter p = parameter(code);
        p.offset = 5.0;
        int state = kUntouchedState;
        QColor color = kUntouchedColor;
        EXPECT_EQ(profile.getDouble(entry, p, state, color, true), 0.0);
        EXPECT_EQ(state, kUntouchedState);
        EXPECT_EQ(color, kUntouchedColor);
    }
    int state = kUntouchedState;
    QColor color = kUntouchedColor;
    profile.getDouble(entry, bits(eBShort, 0, 3), state, color, true);
    EXPECT_EQ(state, 0) << "a bit field is judged as a number";
    EXPECT_EQ(color, QColor(255, 255, 255));
}

TEST(DecoderNumbers, BitFieldsLieInTheWordAndAreNeverScaled)
{
    struct Row
    {
        const char* name;
        int type;
        int startBit;
        int endBit;
        double number;
    };
    const Row rows[] = {
        {"nibble above the lowest", eBLong, 4, 7, 0x7},
        {"whole word", eBLong, 0, 31, 0x12345678},
        {"highest bits", eBLong, 28, 31, 0x1},
        {"single bit", eBLong, 3, 3, 1},
        {"empty field", eBLong, 4, 3, 0},
        {"ends before it starts", eBLong, 9, 3, 0},
        {"negative start", eBLong, -4, 3, 0},
        {"beyond the word", eBLong, 28, 32, 0},
        {"far beyond the word", eBLong, 0, std::numeric_limits<int>::max(), 0},
        {"half word", eBShort, 0, 15, 0x1234},
        {"high byte of the half word", eBShort, 8, 15, 0x12},
        {"beyond the half word", eBShort, 8, 16, 0},
        {"not in the half word at all", eBShort, 20, 23, 0},
    };
    Profile profile;
    const RecordEntry entry = message(eNoData, 0x12345678);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileParameter p = bits(row.type, row.startBit, row.endBit);
        p.factor = 3.0;
        p.offset = 100.0;
        EXPECT_EQ(profile.getDouble(entry, p, true), row.number);
    }
}

TEST(DecoderNumbers, ScalingIsAppliedOnRequestOnly)
{
    Profile profile;
    ProfileParameter p = parameter(eUShort);
    p.factor = 2.0;
    p.offset = -1.0;
    const RecordEntry entry = message(eUShort, 0xFFFF0000);
    EXPECT_EQ(profile.getDouble(entry, p, true), 131069.0) << "the number does not wrap";
    EXPECT_EQ(profile.getDouble(entry, p, false), 65535.0);
}

TEST(DecoderNumbers, ValuesThatDoNotFitTheEntryReadAsZero)
{
    Profile profile;
    RecordEntry entry = message(eNoData, 0xFFFFFFFF);
    entry.timeLow = 0xFFFFFFFF;
    const struct
    {
        int type;
        int lastStart; ///< the last place where the whole value lies in the 28 bytes
        double number;
    } rows[] = {{eULong, 24, 4294967296.0}, {eUShort, 26, 65535.0}, {eUChar, 27, 255.0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        EXPECT_EQ(profile.getDouble(entry, parameter(row.type, row.lastStart), true), row.number);
        for (const int start : {row.lastStart + 1, 28, 29, 1000000, -1, -1000000,
                                std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            EXPECT_EQ(profile.getDouble(entry, parameter(row.type, start), true), 0.0) << start;
        }
    }
}

TEST(DecoderNumbers, RawIntegersFollowTheTypeInTheMessage)
{
    struct Row
    {
        int messageType;
        int number;
    };
    const Row rows[] = {{3, -19088743}, {4, -19088743}, {6, -292},   {7, 65244}, {9, -2},
                        {10, 254},      {12, -292},     {13, 65244}, {15, -2},   {16, 254},
                        {18, -2},       {19, 254},      {26, -2},    {27, 254},  {2, 0},
                        {0, 0},         {11, 0},        {14, 0},     {30, 0},    {255, 0}};
    const Profile profile;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.messageType);
        const RecordEntry entry = message(static_cast<EDataType>(row.messageType), 0xFEDCBA99);
        ProfileParameter p = parameter(eFloat);
        p.factor = 10.0;
        EXPECT_EQ(profile.getInt(entry, p), row.number);
    }
    EXPECT_EQ(profile.getInt(message(eBLong, 0x12345678), bits(eFloat, 4, 7)), 7);
    EXPECT_EQ(profile.getInt(message(eBShort, 0x12345678), bits(eFloat, 4, 7)), 3);
    EXPECT_EQ(profile.getInt(message(eBLong, 0xFFFFFFFF), bits(eFloat, 0, 31)), -1);
}

TEST(DecoderNumbers, LooksTheParameterUpByTheIdentifierOfTheEntry)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder()
                    .device("EMU")
                    .parameter(500, QStringLiteral("Speed"), "USHORT")
                    .set("factor", "0.5")
                    .load(profile));
    RecordEntry entry = message(eUShort, 0x00640000);
    EXPECT_EQ(profile.getDouble(entry, true), 50.0);
    EXPECT_EQ(profile.getInt(entry), 100);
    entry.id = 501;
    EXPECT_EQ(profile.getDouble(entry, true), 0.0);
    EXPECT_EQ(profile.getDouble(entry, true), 0.0) << "asked again";
}

} // namespace
} // namespace VELIX::Test
