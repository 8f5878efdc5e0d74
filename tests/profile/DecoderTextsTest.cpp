#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace VELIX::Test {
namespace {

RecordEntry message(std::uint32_t word)
{
    return RecordBuilder().id(500).payload(eNoData, word).last();
}

RecordEntry realMessage(float value)
{
    return message(std::bit_cast<std::uint32_t>(value));
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

std::string textOf(Profile& profile, const RecordEntry& entry, const ProfileParameter& p)
{
    int state = 0;
    QColor color;
    std::string text = profile.getDataString(entry, p, state, color).toStdString();
    std::string exported = "kept ";
    profile.appendDataString(entry, p, exported);
    EXPECT_EQ(exported, "kept " + text) << "exports and views must agree";
    return text;
}

TEST(DecoderTexts, ScaledIntegersAreTruncatedAndWrapIntoTheirWidth)
{
    struct Row
    {
        const char* name;
        int type;
        std::uint32_t word;
        double factor;
        double offset;
        const char* text;
    };
    const Row rows[] = {
        {"LONG is scaled from the exact integer", eLong, 0x01000001, 1, 0, "16777217"},
        {"LONG truncates towards zero", eLong, 0xFFFFFFFF, 1.5, 0, "-1"},
        {"LONG beyond int is the smallest int", eLong, 0x7FFFFFFF, 2, 0, "-2147483648"},
        {"LONG below int is the smallest int", eLong, 0x80000000, 2, 0, "-2147483648"},
        {"LONG times infinity", eLong, 1, std::numeric_limits<double>::infinity(), 0,
         "-2147483648"},
        {"SHORT wraps upwards", eShort, 0x7FFF0000, 2, 0, "-2"},
        {"SHORT wraps downwards", eShort, 0x80000000, 1, -1, "32767"},
        {"SHORT_2 keeps its sign", eShort2, 0xFFFE0000, 1, 0, "-2"},
        {"SHORT beyond int wraps to 0", eShort, 0x7FFF0000, 1e9, 0, "0"},
        {"USHORT is masked", eUShort, 0xFFFF0000, 2, 0, "65534"},
        {"USHORT below 0 is masked", eUShort, 0, 1, -1, "65535"},
        {"USHORT_2 truncates", eUShort2, 0x00030000, 0.5, 0, "1"},
        {"CHAR wraps", eChar, 0x7F000000, 2, 0, "-2"},
        {"CHAR_2 wraps", eChar2, 0x80000000, 1, -1, "127"},
        {"CHAR_3 keeps its sign", eChar3, 0xFF000000, 1, 0, "-1"},
        {"CHAR_4 truncates", eChar4, 0xFD000000, 0.5, 0, "-1"},
        {"UCHAR is masked", eUChar, 0xC8000000, 2, 0, "144"},
        {"UCHAR_2 below 0 is masked", eUChar2, 0, 1, -1, "255"},
        {"UCHAR_3 as it is", eUChar3, 0xC8000000, 1, 0, "200"},
        {"UCHAR_4 beyond int masks to 0", eUChar4, 0xC8000000, 1e9, 0, "0"},
        {"BCHAR has no decoder", eBChar, 1, 1, 0, "Datatype 11 not implemented"},
        {"NODATA has no decoder", eNoData, 1, 1, 0, "Datatype 0 not implemented"},
        {"unknown code", 77, 1, 1, 0, "Datatype 77 not implemented"},
    };
    Profile profile;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(textOf(profile, message(row.word), parameter(row.type, row.factor, row.offset)),
                  row.text);
    }
}

TEST(DecoderTexts, UnsignedLongsAreReadLittleEndianInGeneralNotation)
{
    struct Row
    {
        const char* name;
        std::uint32_t word;
        double factor;
        int precision;
        const char* text;
    };
    const Row rows[] = {
        {"bytes reversed", 0x01000000, 1, 6, "1"},
        {"large numbers go scientific", 0x00000001, 1, 6, "1.67772e+07"},
        {"more digits on request", 0x00000001, 1, 8, "16777216"},
        {"unsigned", 0xFFFFFFFF, 1, 10, "4294967295"},
        {"fraction without trailing zeros", 0x05000000, 0.5, 6, "2.5"},
        {"precision 0 is one digit", 0x19000000, 1, 0, "2e+01"},
        {"small numbers go scientific", 0x01000000, 1e-5, 3, "1e-05"},
    };
    Profile profile;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileParameter p = parameter(eULong, row.factor);
        p.precision = row.precision;
        EXPECT_EQ(textOf(profile, message(row.word), p), row.text);
    }
}

TEST(DecoderTexts, RealsHaveFixedDecimals)
{
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    struct Row
    {
        const char* name;
        float value;
        int precision;
        const char* text;
    };
    const Row rows[] = {
        {"two decimals", 3.14159F, 2, "3.14"},
        {"no point without decimals", 3.7F, 0, "4"},
        {"exact halves round to even", 2.5F, 0, "2"},
        {"default of six", 0.5F, 6, "0.500000"},
        {"negative zero loses its sign with the offset", -0.0F, 1, "0.0"},
        {"small negatives keep the sign", -0.01F, 1, "-0.0"},
        {"infinity", kInfinity, 2, "inf"},
        {"negative infinity", -kInfinity, 2, "-inf"},
        {"no number", nan, 2, "nan"},
        {"no number with a sign", -nan, 2, "nan"},
        {"negative precision", 1.5F, -3, "2"},
    };
    Profile profile;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileParameter p = parameter(eFloat);
        p.precision = row.precision;
        EXPECT_EQ(textOf(profile, realMessage(row.value), p), row.text);
    }
}

TEST(DecoderTexts, AbsurdPrecisionAndScaleStayBounded)
{
    Profile profile;
    ProfileParameter p = parameter(eFloat, 1e269);
    p.precision = std::numeric_limits<int>::max();
    const std::string longest = textOf(profile, realMessage(3e38F), p);
    EXPECT_GT(longest.size(), 300U);
    EXPECT_LT(longest.size(), 500U);
    p.precision = std::numeric_limits<int>::min();
    EXPECT_EQ(textOf(profile, realMessage(0.0F), p), "0");
    p.dataType = eULong;
    p.precision = std::numeric_limits<int>::max();
    EXPECT_FALSE(textOf(profile, message(0x12345678), p).empty());
}

TEST(DecoderTexts, BitFieldsShowTheirLabel)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder()
                    .enumeration("Mode", {{0, "Off"}, {7, "Größe & <mehr>"}})
                    .device("EMU")
                    .parameter(1, QStringLiteral("Long"), "BLONG")
                    .set("enumId", "Mode")
                    .set("startBit", "4")
                    .set("endBit", "7")
                    .parameter(2, QStringLiteral("Short"), "BSHORT")
                    .set("enumId", "Mode")
                    .set("startBit", "4")
                    .set("endBit", "7")
                    .load(profile));
    const auto& parameters = profile.data().devices.front().parameters;
    struct Row
    {
        const char* name;
        std::uint32_t word;
        bool hasEnum;
        const char* longText;
        const char* shortText;
    };
    const Row rows[] = {
        {"label", 0x00700070, true, "7: Größe & <mehr>", "7: Größe & <mehr>"},
        {"label of 0", 0, true, "0: Off", "0: Off"},
        {"value without a label", 0x00300030, true, "3: Invalid ENUM Value", "3"},
        {"no enumeration", 0x00300030, false, "3: Invalid ENUM Type", "3"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileParameter asLong = parameters.at(1);
        ProfileParameter asShort = parameters.at(2);
        if (!row.hasEnum) {
            asLong.enumId = asShort.enumId = 0;
        }
        EXPECT_EQ(textOf(profile, message(row.word), asLong), row.longText);
        EXPECT_EQ(textOf(profile, message(row.word), asShort), row.shortText);
    }
    EXPECT_TRUE(profile.getEnumValue(parameters.at(1).enumId, 7).isEmpty());
}

} // namespace
} // namespace VELIX::Test
