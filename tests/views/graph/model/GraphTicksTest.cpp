#include "views/graph/model/GraphTicks.h"
#include "views/graph/model/GraphYScale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace VELIX;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(GraphTicksTest, StepForARange)
{
    const struct
    {
        const char* name;
        float minimum;
        float maximum;
        float length;
        float spacing;
        float step;
        int subdivisions;
    } cases[] = {
        {"ten wide", 0, 100, 500, 50, 10, 5},
        {"a tenth wide", 0, 1, 500, 50, 0.1F, 5},
        {"one becomes two", 0, 10, 500, 50, 2, 4},
        {"two becomes five", 0, 20, 500, 50, 5, 5},
        {"five becomes ten", 0, 50, 500, 50, 10, 5},
        {"just above a hundred", 0, 1001, 500, 50, 200, 4},
        {"below one: a fifth", 0, 1.5F, 500, 50, 0.2F, 4},
        {"a millionth", 0, 3e-6F, 500, 50, 5e-7F, 5},
        {"only the width counts", -150, -50, 500, 50, 10, 5},
        {"exactly one step", 0, 3, 50, 50, 5, 5},
        {"axis shorter than the spacing", 0, 3, 49, 50, -1, 0},
        {"empty range", 3, 3, 500, 50, -1, 0},
        {"no number", kNan, 3, 500, 50, -1, 0},
        {"infinite range", 0, kInfinity, 500, 50, -1, 0},
    };
    for (const auto& c : cases) {
        float step = 0.0F;
        int subdivisions = 9;
        GraphTicks::getAutoPara(c.minimum, c.maximum, c.length, c.spacing, &step, &subdivisions);
        EXPECT_FLOAT_EQ(step, c.step) << c.name;
        EXPECT_EQ(subdivisions, c.subdivisions) << c.name;
    }
}

TEST(GraphTicksTest, FormatForAStep)
{
    const std::pair<float, const char*> cases[] = {
        {1, "%.1f"},     {5, "%.1f"},     {10, "%.0f"}, {100, "%.0f"},  {0.1F, "%.2f"},
        {0.05F, "%.2f"}, {0.01F, "%.3f"}, {0, "%.0f"},  {kNan, "%.0f"},
    };
    for (const auto& [step, expected] : cases) {
        QString format;
        GraphTicks::getAutoFormat(step, format);
        EXPECT_EQ(format.toStdString(), expected) << step;
    }
}

TEST(GraphTicksTest, TimeLabels)
{
    const struct
    {
        double seconds;
        int decimals;
        const char* label;
    } cases[] = {
        {0, 0, "0:00:00"},
        {59.4, 0, "0:00:59"},
        {3661, 0, "1:01:01"},
        {86400, 0, "24:00:00"},
        {1.25, 2, "0:00:01.25"},
        {59.9999999, 2, "0:01:00.00"},
        {-1, 0, ""},
        {-0.0, 0, "0:00:00"},
        {kNan, 0, ""},
        {1e30, 0, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GraphTicks::timeLabel(c.seconds, c.decimals).toStdString(), c.label) << c.seconds;
    }
}

std::string majors(const std::vector<GraphTick>& ticks)
{
    std::string result;
    for (const GraphTick& tick : ticks) {
        if (tick.major) {
            result += tick.label.toStdString() + "@" +
                      std::to_string(static_cast<int>(std::lround(tick.position))) + " ";
        }
    }
    return result;
}

TEST(GraphTicksTest, TicksAreWhereTheirValuesAre)
{
    const auto narrow = [](const QString&) { return 40.0; };
    EXPECT_EQ(majors(GraphTicks::timeTicks(-15.0, 45.0, 600.0, narrow)),
              "@50 0:00:00@150 0:00:10@250 0:00:20@350 0:00:30@450 0:00:40@550 ");
    EXPECT_EQ(majors(GraphTicks::timeTicks(80000.0, 80001.0, 400.0, narrow)),
              "22:13:20.0@0 22:13:20.2@80 22:13:20.4@160 22:13:20.6@240 22:13:20.8@320 "
              "22:13:21.0@400 ");
    EXPECT_EQ(majors(GraphTicks::valueTicks(-0.5, 1.5, 200.0, 20.0)),
              "-0.5@0 0.0@50 0.5@100 1.0@150 1.5@200 ");
    const std::vector<GraphTick> ticks = GraphTicks::valueTicks(0.0, 10.0, 100.0, 30.0, 15.0);
    EXPECT_EQ(ticks.size(), 11U) << "two steps of five, each in five parts";
    EXPECT_EQ(ticks[1].value, 1.0);
    EXPECT_TRUE(ticks[1].label.isEmpty());
}

TEST(GraphTicksTest, LabelsKeepApartAtAnySizeAndFont)
{
    constexpr double kGap = 12.0;
    int drawn = 0;
    for (const double character : {4.0, 7.3, 11.0, 30.0}) {
        const auto width = [character](const QString& label) { return label.size() * character; };
        for (const double length : {1.0, 30.0, 99.0, 640.0, 1600.0, 7680.0}) {
            for (double range = 1e-6; range < 1e6; range *= 2.7) {
                for (const double start : {-0.4 * range, 0.0, 35999.7}) {
                    const auto ticks =
                        GraphTicks::timeTicks(start, start + range, length, width, kGap);
                    double free = -1e9;
                    QString last;
                    for (const GraphTick& tick : ticks) {
                        ASSERT_TRUE(tick.position >= 0.0 && tick.position <= length);
                        if (tick.label.isEmpty()) {
                            continue;
                        }
                        ASSERT_NE(tick.label, last) << range << " s from " << start;
                        ASSERT_GE(tick.position - width(tick.label) / 2.0, free + kGap - 0.01)
                            << range << " s on " << length << " pixels";
                        free = tick.position + width(tick.label) / 2.0;
                        last = tick.label;
                        ++drawn;
                    }
                }
            }
        }
    }
    EXPECT_GT(drawn, 1000);
}

TEST(GraphTicksTest, DamagedAxesHaveNoTicks)
{
    const auto width = [](const QString&) { return 40.0; };
    EXPECT_TRUE(GraphTicks::timeTicks(5.0, 5.0, 600.0, width).empty());
    EXPECT_TRUE(GraphTicks::timeTicks(5.0, 1.0, 600.0, width).empty());
    EXPECT_TRUE(GraphTicks::timeTicks(0.0, 60.0, 0.0, width).empty());
    const auto unknown = [](const QString&) { return double{kNan}; };
    EXPECT_TRUE(GraphTicks::timeTicks(0.0, 60.0, 600.0, unknown).empty());
    EXPECT_TRUE(GraphTicks::valueTicks(kNan, 1.0, 600.0, 20.0).empty());
    EXPECT_TRUE(GraphTicks::valueTicks(-1e308, 1e308, 600.0, 20.0).empty());
    EXPECT_LT(GraphTicks::valueTicks(1e17, 1e17 + 64.0, 600.0, 20.0).size(), 10'001U);
}

TEST(GraphYScaleTest, Autoscale)
{
    const struct
    {
        const char* name;
        double low, high, spread;
        GraphYScale expected;
    } cases[] = {
        {"a tenth at both ends", 0, 10, 0.1, {-1, 11}},
        {"constant", 5, 5, 0.1, {4.9999, 5.0001}},
        {"nearly constant", 5, 5.0009, 0.1, {4.9999, 5.001}},
        {"another spread", 0, 10, 0.5, {-5, 15}},
        {"another spread of a constant", 5, 5, 0.5, {4.9999, 5.0001}},
    };
    for (const auto& c : cases) {
        const GraphYScale scale = GraphYScale::autoscale(c.low, c.high, c.spread);
        EXPECT_NEAR(scale.minimum, c.expected.minimum, 1e-9) << c.name;
        EXPECT_NEAR(scale.maximum, c.expected.maximum, 1e-9) << c.name;
    }
}

TEST(GraphYScaleTest, AlwaysHasAHeight)
{
    const double large = std::numeric_limits<double>::max();
    const std::vector<GraphYScale> scales = {
        GraphYScale::autoscale(1e15, 1e15),   GraphYScale::autoscale(-large, large),
        GraphYScale::autoscale(large, large), GraphYScale::autoscale(0.0, 10.0, 0.0),
        GraphYScale::fixed(3.0, 3.0),         GraphYScale::fixed(-1e20, -1e20),
        GraphYScale::fixed(large, -large),
    };
    for (const GraphYScale& scale : scales) {
        EXPECT_GT(scale.maximum, scale.minimum);
        EXPECT_TRUE(std::isfinite(scale.span())) << scale.minimum;
    }
    EXPECT_EQ(GraphYScale::fixed(8.0, -2.0).minimum, -2.0) << "ends the wrong way round";
    EXPECT_DOUBLE_EQ(GraphYScale::fixed(0.0, 8.0).fraction(2.0), 0.25);
    EXPECT_DOUBLE_EQ(GraphYScale::fixed(0.0, 8.0).value(0.25), 2.0);
}

} // namespace
