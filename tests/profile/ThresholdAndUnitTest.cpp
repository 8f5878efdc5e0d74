#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace VELIX::Test {
namespace {

const QColor kUntouched(1, 2, 3);
const QColor kWhite(255, 255, 255);
const QColor kGreen(0, 128, 0);
const QColor kYellow(255, 255, 0);
const QColor kRed(255, 0, 0);

/// One parameter of each interesting type, all judged by 0 green, 100 warning, 120 limit.
class Judged : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProfileBuilder builder;
        builder
            .threshold("Heat",
                       {{0, "green", "OK"}, {100, "yellow", "WARNING"}, {120, "red", "LIMIT"}})
            .threshold(
                "Odd",
                {{50, "yellow", "WARNING"}, {200, "red", "LIMIT"}, {10, "nocolour", "EXTREME"}})
            .conversion("C", "F", 1.8, 32)
            .device("EMU");
        int id = 1;
        for (const char* type : {"FLOAT", "LONG", "ULONG", "UCHAR", "BLONG", "BSHORT", "ACHAR"}) {
            builder.parameter(id++, QString::fromLatin1(type), type)
                .set("thresholdId", "Heat")
                .set("unitMetric", "C")
                .set("unitImperial", "F")
                .set("endBit", "15");
        }
        builder.parameter(id++, QStringLiteral("Plain"), "FLOAT").set("unitMetric", "C");
        builder.set("unitImperial", "K"); // no such conversion
        builder.parameter(id++, QStringLiteral("Bare"), "FLOAT").set("thresholdId", "Odd");
        ASSERT_TRUE(builder.load(mProfile));
    }
    const ProfileParameter& named(const char* name)
    {
        for (const auto& [id, p] : mProfile.data().devices.front().parameters) {
            if (p.name == QLatin1String(name)) {
                return p;
            }
        }
        ADD_FAILURE() << name;
        return mProfile.data().devices.front().parameters.begin()->second;
    }

    Profile mProfile;
    int mState = 7;
    QColor mColor = kUntouched;
};

TEST_F(Judged, TheLastStepAtOrBelowTheValueWins)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const struct
    {
        const char* parameter;
        double value;
        int state;
        QColor color;
    } rows[] = {
        {"FLOAT", -5, 0, kWhite},       {"FLOAT", 0, 0, kGreen},
        {"FLOAT", 99.999, 0, kGreen},   {"FLOAT", 100, 1, kYellow},
        {"FLOAT", 119.999, 1, kYellow}, {"FLOAT", 120, 2, kRed},
        {"FLOAT", kInfinity, 2, kRed},  {"FLOAT", std::nan(""), 2, kRed},
        {"Plain", 500, 0, kWhite}, // no steps
        {"Bare", 20, 0, kWhite},   // the walk stops at the first step above the value
        {"Bare", 60, 1, kYellow},       {"Bare", 300, 0, QColor()}, // neither state nor colour
    };
    for (const auto& row : rows) {
        mProfile.getThreshold(named(row.parameter), row.value, mState, mColor);
        EXPECT_EQ(mState, row.state) << row.parameter << row.value;
        EXPECT_EQ(mColor, row.color) << row.parameter << row.value;
    }
}

TEST_F(Judged, TextsAreJudgedByTheValueThatTheyShowBeforeConversion)
{
    const struct
    {
        const char* type;
        std::uint32_t word;
        double number;    ///< converted whatever its type
        const char* text; ///< converted for reals only
        int state;
        QColor color;
    } rows[] = {
        {"FLOAT", 0x42C80000, 212, "212.000000", 1, kYellow}, // 100
        {"LONG", 120, 248, "120", 2, kRed},
        {"ULONG", 0x64000000, 3019898912.0, "100", 1, kYellow}, // little-endian 100
        {"UCHAR", 0x78000000, 248, "120", 2, kRed},
        {"BLONG", 0xFFFF, 117995, "65535: Invalid ENUM Type", 7, kUntouched},
        {"BSHORT", 0xFFFF0000, 117995, "65535", 7, kUntouched},
        {"ACHAR", 0xFFFFFFFF, 0, "Datatype 23 not implemented", 7, kWhite},
        {"Plain", 0x42C80000, 100, "100.000000", 0, kWhite},
    };
    mProfile.setCurrentUnit(eUnitImperial);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        const RecordEntry entry = RecordBuilder().payload(eNoData, row.word).last();
        int state = 7;
        QColor color = kUntouched;
        EXPECT_EQ(mProfile.getDataString(entry, named(row.type), state, color).toStdString(),
                  row.text);
        EXPECT_EQ(state, row.state);
        EXPECT_EQ(color, row.color);
        int judged = 7;
        color = kUntouched;
        const ParameterSample sample(entry, named(row.type));
        mProfile.decoder().judge(sample, judged, color);
        EXPECT_EQ(judged, row.state) << "without its text";
        EXPECT_EQ(color, row.color) << "without its text";
        EXPECT_EQ(mProfile.decoder().number(sample), row.number);
    }
    const RecordEntry hundred = RecordBuilder().floatValue(100.0F).last();
    EXPECT_EQ(ProfileDecoder::metric(ParameterSample(hundred, named("FLOAT"))), 100.0);
    mProfile.setCurrentUnit(eUnitMetric);
    EXPECT_EQ(mProfile.getDouble(hundred, named("FLOAT"), true), 100.0);

    ProfileParameter p = named("UCHAR");
    p.factor = 2.0;
    const RecordEntry entry = RecordBuilder().ucharValue(130).last(); // 260, shown as 4
    mProfile.getDataString(entry, p, mState, mColor);
    EXPECT_EQ(mState, 0);
    mProfile.getDouble(entry, p, mState, mColor, true);
    EXPECT_EQ(mState, 2) << "the number does not wrap";
}

} // namespace
} // namespace VELIX::Test
