#include "profile/NumberFormat.h"

#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

namespace VELIX::Test {
namespace {

using EUnitOf = NumberFormat::EUnitOf;

TEST(NumberFormat, NumbersGetTheDecimalsOfTheirStep)
{
    const struct
    {
        const char* name;
        const char* type;
        const char* factor;
        const char* offset;
        const char* precision;
        EUnit unit;
        int exact;
        int step;
    } rows[] = {
        {"a FLOAT has the profile's", "FLOAT", "1", "0", "3", eUnitMetric, 3, 3},
        {"a FLOAT of many", "FLOAT", "1", "0", "8", eUnitImperial, 8, 6},
        {"a counter has none", "USHORT", "1", "0", "6", eUnitMetric, 0, 0},
        {"tenths", "USHORT", "0.1", "0", "6", eUnitMetric, 1, 1},
        {"halves with an offset of quarters", "SHORT", "0.5", "0.25", "6", eUnitMetric, 2, 0},
        {"eighths", "USHORT", "0.125", "0", "6", eUnitMetric, 3, 0},
        {"about a hundredth", "USHORT", "0.0102", "0", "6", eUnitMetric, 2, 2},
        {"a negative factor", "SHORT", "-0.02", "0", "6", eUnitMetric, 2, 1},
        {"an odd factor resolves its step", "USHORT", "0.0078125", "0", "6", eUnitMetric, 3, 2},
        {"a coarse factor needs none", "USHORT", "33.333333333", "0", "6", eUnitMetric, 0, 0},
        {"converted tenths", "USHORT", "0.1", "0", "6", eUnitImperial, 2, 0},
        {"a factor of zero does no harm", "USHORT", "0", "0.123456", "6", eUnitMetric, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ProfileBuilder builder;
        builder.conversion("C", "F", 1.8, 32.0);
        builder.device("Lane A")
            .parameter(500, QStringLiteral("P"), row.type)
            .set("factor", row.factor)
            .set("offset", row.offset)
            .set("precision", row.precision)
            .set("unitMetric", "C")
            .set("unitImperial", "F");
        Profile profile(row.unit);
        ASSERT_TRUE(builder.load(profile));
        const NumberFormat format =
            profile.format(profile.data().devices.front().parameters.at(500));
        EXPECT_EQ(format.decimals(), row.exact);
        EXPECT_EQ(format.decimals(NumberFormat::EDecimals::Step), row.step);
    }
}

TEST(NumberFormat, AScaleGetsTheDecimalsThatDistinguishItsEnds)
{
    const std::pair<double, int> rows[] = {{-1, 0}, {0, 0},    {0.1, 2}, {1.99, 2},
                                           {2, 1},  {19.9, 1}, {20, 0}};
    for (const auto& [span, decimals] : rows) {
        EXPECT_EQ(NumberFormat::decimalsOfSpan(span), decimals) << span;
    }
}

TEST(NumberFormat, TheUnitIsThatOfWhatIsConverted)
{
    ProfileParameter converted;
    converted.name = QStringLiteral("T");
    converted.unitMetric = QStringLiteral("C");
    converted.unitImperial = QStringLiteral("F");
    converted.hasConversion = true;
    converted.dataType = eFloat;
    ProfileParameter whole = converted;
    whole.dataType = eUShort;
    ProfileParameter unconverted = converted;
    unconverted.hasConversion = false;

    const struct
    {
        const char* name;
        const ProfileParameter& p;
        const char* number;
        const char* text;
        const char* list;
    } rows[] = {{"real", converted, "F", "T [F]", "F"},
                {"whole number", whole, "F", "T [C]", "F"},
                {"no conversion", unconverted, "C", "T [C]", "F"},
                {"no unit", ProfileParameter(), "", "", ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const NumberFormat imperial(row.p, eUnitImperial);
        EXPECT_EQ(imperial.unit(EUnitOf::Number).toStdString(), row.number);
        EXPECT_EQ(imperial.label(EUnitOf::Text).toStdString(), row.text);
        EXPECT_EQ(imperial.unit(EUnitOf::List).toStdString(), row.list);
        const NumberFormat metric(row.p, eUnitMetric);
        for (const EUnitOf of : {EUnitOf::Number, EUnitOf::Text, EUnitOf::List}) {
            EXPECT_EQ(metric.unit(of), row.p.unitMetric);
        }
    }
}

} // namespace
} // namespace VELIX::Test
