#include "views/common/GraphValues.h"

#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

#include <vector>

namespace VELIX {
namespace {

using VELIX::Test::ProfileBuilder;

TEST(GraphValuesTest, NumbersGetTheDecimalsAndUnitOfWhatTheyAre)
{
    const struct
    {
        const char* name;
        const char* type;
        const char* factor;
        const char* offset;
        const char* precision;
        EUnit unit;
        int decimals;
        const char* label;
    } cases[] = {
        {"a FLOAT has the profile's", "FLOAT", "1", "0", "3", eUnitMetric, 3, "C"},
        {"a counter has none", "USHORT", "1", "0", "6", eUnitMetric, 0, "C"},
        {"tenths", "USHORT", "0.1", "0", "6", eUnitMetric, 1, "C"},
        {"halves with an offset of quarters", "SHORT", "0.5", "0.25", "6", eUnitMetric, 2, "C"},
        {"an odd factor resolves its step", "USHORT", "0.0078125", "0", "6", eUnitMetric, 3, "C"},
        {"a coarse factor needs none", "USHORT", "33.333333333", "0", "6", eUnitMetric, 0, "C"},
        {"converted tenths", "USHORT", "0.1", "0", "6", eUnitImperial, 2, "F"},
        {"a factor of zero does no harm", "USHORT", "0", "0.123456", "6", eUnitMetric, 0, "C"},
    };
    for (const auto& c : cases) {
        ProfileBuilder builder;
        builder.conversion("C", "F", 1.8, 32.0);
        builder.device("Lane A")
            .parameter(500, QStringLiteral("P"), c.type)
            .set("factor", c.factor)
            .set("offset", c.offset)
            .set("precision", c.precision)
            .set("unitMetric", "C")
            .set("unitImperial", "F");
        Profile profile(c.unit);
        ASSERT_TRUE(builder.load(profile)) << c.name;
        const ProfileParameter& parameter =
            profile.data().devices.front().parameters.begin()->second;
        EXPECT_EQ(GraphValues::decimals(profile, parameter), c.decimals) << c.name;
        EXPECT_EQ(GraphValues::unit(profile, parameter), c.label) << c.name;
    }
}

} // namespace
} // namespace VELIX
