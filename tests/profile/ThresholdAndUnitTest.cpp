#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace VELIX::Test {
namespace {

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
        builder.parameter(id, QStringLiteral("Plain"), "FLOAT").set("unitMetric", "C");
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
    QColor mColor{1, 2, 3};
};

TEST_F(Judged, TheLastStepAtOrBelowTheValueWins)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Row
    {
        double value;
        int state;
        QColor color;
    };
    const Row rows[] = {
        {-kInfinity, 0, kWhite}, {-5, 0, kWhite},      {0, 0, kGreen},
        {99.999, 0, kGreen},     {100, 1, kYellow},    {119.999, 1, kYellow},
        {120, 2, kRed},          {kInfinity, 2, kRed}, {std::nan(""), 2, kRed},
    };
    for (const Row& row : rows) {
        mProfile.getThreshold(named("FLOAT"), row.value, mState, mColor);
        EXPECT_EQ(mState, row.state) << row.value;
        EXPECT_EQ(mColor, row.color) << row.value;
    }
    mProfile.getThreshold(named("Plain"), 500, mState, mColor);
    EXPECT_EQ(mState, 0);
    EXPECT_EQ(mColor, kWhite);
    EXPECT_EQ(mColor.alpha(), 255);
}

TEST_F(Judged, StepsCountInFileOrderAlsoWhenTheyAreNotAscending)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder()
                    .threshold("Odd", {{50, "yellow", "WARNING"},
                                       {200, "red", "LIMIT"},
                                       {10, "nocolour", "EXTREME"}})
                    .device("EMU")
                    .parameter(1, QStringLiteral("P"), "FLOAT")
                    .set("thresholdId", "Odd")
                    .load(profile));
    const ProfileParameter& p = profile.data().devices.front().parameters.at(1);
    profile.getThreshold(p, 20, mState, mColor);
    EXPECT_EQ(mState, 0) << "the walk stops at the first step above the value";
    profile.getThreshold(p, 60, mState, mColor);
    EXPECT_EQ(mState, 1);
    profile.getThreshold(p, 300, mState, mColor);
    EXPECT_EQ(mState, 0) << "an unknown state is no state";
    EXPECT_FALSE(mColor.isValid()) << "an unknown colour is none";
}

TEST_F(Judged, TextsAreJudgedByTheValueThatTheyShowBeforeConversion)
{
    struct Row
    {
        const char* type;
        std::uint32_t word;
        int state;
        QColor color;
    };
    const QColor untouched(1, 2, 3);
    const Row rows[] = {
        {"FLOAT", 0x42C80000, 1, kYellow}, // 100
        {"LONG", 120, 2, kRed},
        {"ULONG", 0x64000000, 1, kYellow}, // little-endian 100
        {"UCHAR", 0x78000000, 2, kRed},
        {"BLONG", 0xFFFF, 7, untouched},
        {"BSHORT", 0xFFFF0000, 7, untouched},
        {"ACHAR", 0xFFFFFFFF, 7, kWhite},
    };
    for (const EUnit unit : {eUnitMetric, eUnitImperial}) {
        mProfile.setCurrentUnit(unit);
        for (const Row& row : rows) {
            SCOPED_TRACE(row.type);
            const RecordEntry entry = RecordBuilder().payload(eNoData, row.word).last();
            int state = 7;
            QColor color = untouched;
            mProfile.getDataString(entry, named(row.type), state, color);
            EXPECT_EQ(state, row.state);
            EXPECT_EQ(color, row.color);
            state = 7;
            color = untouched;
            mProfile.getDataState(entry, named(row.type), state, color);
            EXPECT_EQ(state, row.state);
            EXPECT_EQ(color, row.color);
        }
    }
}

TEST_F(Judged, TheWrappedValueIsJudged)
{
    ProfileParameter p = named("UCHAR");
    p.factor = 2.0;
    const RecordEntry entry = RecordBuilder().ucharValue(130).last(); // 260, shown as 4
    mProfile.getDataString(entry, p, mState, mColor);
    EXPECT_EQ(mState, 0);
    mProfile.getDouble(entry, p, mState, mColor, true);
    EXPECT_EQ(mState, 2) << "the number does not wrap";
}

TEST_F(Judged, NumbersAreConvertedForEveryTypeButTextsForRealsOnly)
{
    struct Row
    {
        const char* type;
        std::uint32_t word;
        double number;
        const char* text;
    };
    const Row rows[] = {
        {"FLOAT", 0x42C80000, 212.0, "212.000000"},
        {"LONG", 100, 212.0, "100"},
        {"UCHAR", 0x64000000, 212.0, "100"},
        {"BLONG", 100, 212.0, "100: Invalid ENUM Type"},
        {"ACHAR", 100, 0.0, "Datatype 23 not implemented"},
    };
    mProfile.setCurrentUnit(eUnitImperial);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.type);
        const RecordEntry entry = RecordBuilder().payload(eNoData, row.word).last();
        EXPECT_EQ(mProfile.getDouble(entry, named(row.type), true), row.number);
        EXPECT_EQ(mProfile.getDataString(entry, named(row.type), mState, mColor).toStdString(),
                  row.text);
    }
    const RecordEntry hundred = RecordBuilder().floatValue(100.0F).last();
    EXPECT_EQ(mProfile.getDouble(hundred, named("Plain"), true), 100.0) << "no conversion known";
    EXPECT_EQ(mProfile.getMetric(hundred, named("FLOAT")), 100.0);
    mProfile.setCurrentUnit(eUnitMetric);
    EXPECT_EQ(mProfile.getDouble(hundred, named("FLOAT"), true), 100.0);
}

TEST(UnitLabel, NamesTheUnitThatTheTextIsIn)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder()
                    .conversion("m", "ft", 3.28, 0)
                    .device("EMU")
                    .parameter(1, QStringLiteral("Altitude"), "FLOAT")
                    .set("unitMetric", "m")
                    .set("unitImperial", "ft")
                    .parameter(2, QStringLiteral("Count"), "LONG")
                    .set("unitMetric", "m")
                    .set("unitImperial", "ft")
                    .parameter(3, QStringLiteral("Mass"), "FLOAT")
                    .set("unitMetric", "kg")
                    .set("unitImperial", "lb")
                    .parameter(4, QStringLiteral("Bare"), "FLOAT")
                    .load(profile));
    struct Row
    {
        int id;
        EUnit unit;
        const char* column;
        const char* system;
    };
    const Row rows[] = {
        {1, eUnitMetric, "Altitude [m]", "m"}, {1, eUnitImperial, "Altitude [ft]", "ft"},
        {2, eUnitMetric, "Count [m]", "m"},    {2, eUnitImperial, "Count [m]", "ft"},
        {3, eUnitMetric, "Mass [kg]", "kg"},   {3, eUnitImperial, "Mass [kg]", "lb"},
        {4, eUnitMetric, "Bare", ""},          {4, eUnitImperial, "Bare", ""},
    };
    for (const Row& row : rows) {
        profile.setCurrentUnit(row.unit);
        const ProfileParameter& p = profile.data().devices.front().parameters.at(row.id);
        EXPECT_EQ(profile.columnLabel(p).toStdString(), row.column) << row.unit;
        EXPECT_EQ(profile.systemUnit(p).toStdString(), row.system) << row.unit;
    }
}

} // namespace
} // namespace VELIX::Test
