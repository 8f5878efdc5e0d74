#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace VELIX::Test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kMost = std::numeric_limits<int>::max();

RecordEntry message(std::uint32_t word, int type = eNoData)
{
    return RecordBuilder().id(500).payload(static_cast<EDataType>(type), word).last();
}

/// The payload of a real number.
std::uint32_t real(double value)
{
    return std::bit_cast<std::uint32_t>(static_cast<float>(value));
}

ProfileParameter parameter(int dataType, double factor = 1.0, double offset = 0.0)
{
    ProfileParameter p;
    p.dataType = dataType;
    p.startByte = 4;
    p.factor = factor;
    p.offset = offset;
    return p;
}

ProfileParameter bits(int dataType, int startBit, int endBit)
{
    ProfileParameter p = parameter(dataType, 3.0, 100.0);
    p.startBit = startBit;
    p.endBit = endBit;
    return p;
}

class Decoder : public ::testing::Test
{
protected:
    std::string textOf(const RecordEntry& entry, const ProfileParameter& p)
    {
        int state = 0;
        QColor color;
        std::string text = mProfile.getDataString(entry, p, state, color).toStdString();
        std::string exported = "kept ";
        mProfile.decoder().appendText(ParameterSample(entry, p), exported);
        EXPECT_EQ(exported, "kept " + text) << "exports and views must agree";
        return text;
    }

    Profile mProfile;
};

// Payloads are big-endian. Numbers of 32 bits lose their low bits on purpose; texts are made of
// integers that are scaled, truncated and wrapped into their width.
TEST_F(Decoder, ReadsEveryTypeRawAsNumberAndAsText)
{
    const struct
    {
        const char* name;
        int type;
        std::uint32_t word;
        double factor;
        double offset;
        int raw;
        double number;
        const char* text;
    } rows[] = {
        {"FLOAT", 2, 0xC14A0000, 2, 1, 0, -24.25, "-24.250000"},
        {"LONG", 3, 0xFEDCBA99, 1, 0, -19088743, -19088744.0, "-19088743"},
        {"LONG truncates towards zero", 3, 0xFFFFFFFF, 1.5, 0, -1, -1.5, "-1"},
        {"LONG beyond int is the smallest", 3, 0x7FFFFFFF, 2, 0, kMost, 4294967296.0,
         "-2147483648"},
        {"LONG times infinity", 3, 1, kInfinity, 0, 1, kInfinity, "-2147483648"},
        {"ULONG, text little-endian", 4, 0xFEDCBA99, 1, 0, -19088743, 4275878656.0, "2.57916e+09"},
        {"SHORT", 6, 0xFEDCBA99, 1, 0, -292, -292, "-292"},
        {"SHORT wraps upwards", 6, 0x7FFF0000, 2, 0, 32767, 65534, "-2"},
        {"SHORT beyond int wraps to 0", 6, 0x7FFF0000, 1e9, 0, 32767, 32767e9, "0"},
        {"SHORT_2 wraps downwards", 12, 0x80000000, 1, -1, -32768, -32769, "32767"},
        {"USHORT", 7, 0xFEDCBA99, 1, 0, 65244, 65244, "65244"},
        {"USHORT is masked", 7, 0xFFFF0000, 2, -1, 65535, 131069, "65533"},
        {"USHORT_2 below 0 is masked", 13, 0, 1, -1, 0, -1, "65535"},
        {"CHAR", 9, 0xFEDCBA99, 1, 0, -2, -2, "-2"},
        {"CHAR_2 wraps upwards", 18, 0x7F000000, 2, 0, 127, 254, "-2"},
        {"CHAR_3 wraps downwards", 26, 0x80000000, 1, -1, -128, -129, "127"},
        {"CHAR_4 truncates", 15, 0xFD000000, 0.5, 0, -3, -1.5, "-1"},
        {"UCHAR", 10, 0xFEDCBA99, 1, 0, 254, 254, "254"},
        {"UCHAR_2 is masked", 19, 0xC8000000, 2, 0, 200, 400, "144"},
        {"UCHAR_3 below 0 is masked", 27, 0, 1, -1, 0, -1, "255"},
        {"UCHAR_4 beyond int masks to 0", 16, 0xC8000000, 1e9, 0, 200, 200e9, "0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const RecordEntry entry = message(row.word, row.type);
        const ProfileParameter p = parameter(row.type, row.factor, row.offset);
        EXPECT_EQ(mProfile.getInt(entry, parameter(eFloat, 10.0)), row.raw) << "as sent, unscaled";
        EXPECT_EQ(mProfile.getDouble(entry, p, true), row.number);
        EXPECT_EQ(textOf(entry, p), row.text);
    }
    const ProfileParameter p = parameter(eUShort, 2.0, -1.0);
    EXPECT_EQ(mProfile.getDouble(message(0xFFFF0000), p, false), 65535.0) << "scaled on request";
}

TEST_F(Decoder, LeavesStateAndColourOfWhatItCannotRead)
{
    for (const int code : {0, 1, 11, 14, 17, 20, 21, 22, 23, 24, 25, 28, 29, 30, -1, 1000000}) {
        SCOPED_TRACE(code);
        const RecordEntry entry = message(0xFFFFFFFF, code);
        int state = 7;
        QColor color(1, 2, 3);
        EXPECT_EQ(mProfile.getDouble(entry, parameter(code, 1.0, 5.0), state, color, true), 0.0);
        EXPECT_EQ(state, 7);
        EXPECT_EQ(color, QColor(1, 2, 3));
        EXPECT_EQ(mProfile.getInt(entry, parameter(eUChar)), 0);
        EXPECT_EQ(textOf(entry, parameter(code)),
                  "Datatype " + std::to_string(code) + " not implemented");
    }
}

TEST_F(Decoder, TakesBitFieldsOutOfTheWordUnscaled)
{
    const struct
    {
        const char* name;
        int type;
        int startBit;
        int endBit;
        int number;
    } rows[] = {
        {"nibble above the lowest", eBLong, 4, 7, 0x7},
        {"whole word", eBLong, 0, 31, 0x12345678},
        {"highest bits", eBLong, 28, 31, 0x1},
        {"single bit", eBLong, 3, 3, 1},
        {"ends before it starts", eBLong, 4, 3, 0},
        {"negative start", eBLong, -4, 3, 0},
        {"beyond the word", eBLong, 28, 32, 0},
        {"far beyond the word", eBLong, 0, kMost, 0},
        {"half word", eBShort, 0, 15, 0x1234},
        {"high byte of the half word", eBShort, 8, 15, 0x12},
        {"beyond the half word", eBShort, 8, 16, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ProfileParameter p = bits(row.type, row.startBit, row.endBit);
        EXPECT_EQ(mProfile.getDouble(message(0x12345678), p, true), row.number);
        EXPECT_EQ(mProfile.getInt(message(0x12345678, row.type), p), row.number);
    }
    int state = 7;
    QColor color;
    mProfile.getDouble(message(0), bits(eBShort, 0, 3), state, color, true);
    EXPECT_EQ(state, 0) << "a bit field is judged as a number";
    EXPECT_EQ(color, QColor(255, 255, 255));
}

TEST_F(Decoder, ReadsValuesThatDoNotFitTheEntryAsZero)
{
    RecordEntry entry = message(0xFFFFFFFF);
    entry.timeLow = 0xFFFFFFFF;
    const struct
    {
        int type;
        int lastStart; ///< the last position at which the whole value is inside the 28 bytes
        double number;
    } rows[] = {{eULong, 24, 4294967296.0}, {eUShort, 26, 65535.0}, {eUChar, 27, 255.0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        ProfileParameter p = parameter(row.type);
        p.startByte = row.lastStart;
        EXPECT_EQ(mProfile.getDouble(entry, p, true), row.number);
        for (const int start : {row.lastStart + 1, 28, -1, kMost, -kMost - 1}) {
            p.startByte = start;
            EXPECT_EQ(mProfile.getDouble(entry, p, true), 0.0) << start;
        }
    }
}

TEST_F(Decoder, WritesRealsFixedAndUnsignedLongsInGeneralNotation)
{
    const struct
    {
        const char* name;
        int type;
        std::uint32_t word;
        double factor;
        int precision;
        const char* text;
    } rows[] = {
        {"two decimals", eFloat, real(3.14159), 1, 2, "3.14"},
        {"exact halves round to even", eFloat, real(2.5), 1, 0, "2"},
        {"negative precision", eFloat, real(3.7), 1, -3, "4"},
        {"smallest precision", eFloat, real(0), 1, -kMost, "0"},
        {"negative zero loses its sign with the offset", eFloat, real(-0.0), 1, 1, "0.0"},
        {"small negatives keep the sign", eFloat, real(-0.01), 1, 1, "-0.0"},
        {"negative infinity", eFloat, real(-kInfinity), 1, 2, "-inf"},
        {"no number", eFloat, real(std::nan("")), 1, 2, "nan"},
        {"no number with a sign", eFloat, real(-std::nan("")), 1, 2, "nan"},
        {"bytes reversed", eULong, 0x01000000, 1, 6, "1"},
        {"large numbers go scientific", eULong, 0x00000001, 1, 6, "1.67772e+07"},
        {"more digits on request", eULong, 0xFFFFFFFF, 1, 10, "4294967295"},
        {"fraction without trailing zeros", eULong, 0x05000000, 0.5, 6, "2.5"},
        {"precision 0 is one digit", eULong, 0x19000000, 1, 0, "2e+01"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileParameter p = parameter(row.type, row.factor);
        p.precision = row.precision;
        EXPECT_EQ(textOf(message(row.word), p), row.text);
    }
    ProfileParameter p = parameter(eFloat, 1e269);
    p.precision = kMost;
    const std::string longest = textOf(message(real(3e38)), p);
    EXPECT_GT(longest.size(), 300U);
    EXPECT_LT(longest.size(), 500U);
}

TEST_F(Decoder, ShowsTheLabelsOfBitFields)
{
    ProfileBuilder builder;
    builder.enumeration("Mode", {{0, "Off"}, {7, "Größe & <mehr>"}}).device("EMU");
    for (const auto& [id, type] : {std::pair(eBLong, "BLONG"), std::pair(eBShort, "BSHORT")}) {
        builder.parameter(id, QString(), type).set("enumId", "Mode");
        builder.set("startBit", "4").set("endBit", "7");
    }
    ASSERT_TRUE(builder.load(mProfile));
    const auto& parameters = mProfile.data().devices.front().parameters;
    const struct
    {
        const char* name;
        std::uint32_t word;
        bool hasEnum;
        const char* longText;
        const char* shortText;
    } rows[] = {
        {"label", 0x00700070, true, "7: Größe & <mehr>", "7: Größe & <mehr>"},
        {"label of 0", 0, true, "0: Off", "0: Off"},
        {"value without a label", 0x00300030, true, "3: Invalid ENUM Value", "3"},
        {"no enumeration", 0x00300030, false, "3: Invalid ENUM Type", "3"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileParameter asLong = parameters.at(eBLong);
        ProfileParameter asShort = parameters.at(eBShort);
        if (!row.hasEnum) {
            asLong.enumId = asShort.enumId = 0;
        }
        EXPECT_EQ(textOf(message(row.word), asLong), row.longText);
        EXPECT_EQ(textOf(message(row.word), asShort), row.shortText);
    }
}

TEST_F(Decoder, LooksTheParameterUpByTheIdentifierOfTheEntry)
{
    ProfileBuilder builder;
    builder.device("EMU").parameter(500, QString(), "USHORT").set("factor", "0.5");
    ASSERT_TRUE(builder.load(mProfile));
    RecordEntry entry = message(0x00640000, eUShort);
    EXPECT_EQ(mProfile.getDouble(entry, true), 50.0);
    EXPECT_EQ(mProfile.getInt(entry), 100);
    entry.id = 501;
    EXPECT_EQ(mProfile.getDouble(entry, true), 0.0);
    EXPECT_EQ(mProfile.getDouble(entry, true), 0.0) << "asked again";
}

} // namespace
} // namespace VELIX::Test
