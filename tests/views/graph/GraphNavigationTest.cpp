#include "views/graph/GraphNavigation.h"

#include "views/graph/GraphColor.h"
#include "views/graph/GraphRangeHistory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace VELIX {
namespace {

TEST(GraphNavigationTest, HeldZoomShrinksAndGrowsWithItsOddCaps)
{
    EXPECT_DOUBLE_EQ(GraphNavigation::zoomedIn(100.0), 97.0);
    EXPECT_DOUBLE_EQ(GraphNavigation::zoomedIn(6000.0), 5000.0);
    EXPECT_NEAR(GraphNavigation::zoomedOut(4999.0), 5153.6, 0.05);
    EXPECT_DOUBLE_EQ(GraphNavigation::zoomedOut(0.01), 1.0);
}

TEST(GraphNavigationTest, TheCursorStaysInTheInnerPartOfTheRange)
{
    const struct
    {
        const char* name;
        GraphTimeRange visible;
        double cursor;
        GraphTimeRange expected;
    } cases[] = {
        {"inside nothing moves", {0, 100}, 50, {0, 100}},
        {"on the right margin nothing moves", {0, 100}, 90, {0, 100}},
        {"on the left margin nothing moves", {0, 100}, 10, {0, 100}},
        {"beyond the right margin", {0, 100}, 95, {5, 105}},
        {"before the left margin", {100, 200}, 105, {95, 195}},
        {"far ahead", {0, 100}, 1000, {910, 1010}},
        {"far behind", {1000, 1100}, 0, {-10, 90}},
    };
    for (const auto& c : cases) {
        const GraphTimeRange range = GraphNavigation::paged(c.visible, c.cursor);
        EXPECT_NEAR(range.xmin(), c.expected.xmin(), 1e-9) << c.name;
        EXPECT_NEAR(range.xmax(), c.expected.xmax(), 1e-9) << c.name;
    }
}

TEST(GraphNavigationTest, ARecordIsShownWithMarginsInSinglePrecision)
{
    EXPECT_EQ(GraphNavigation::wholeRecord(100.0, 1100.0), (GraphTimeRange{0.0, 1200.0}));
    const GraphTimeRange odd = GraphNavigation::wholeRecord(0.0, 0.1);
    EXPECT_EQ(odd.xmin(), -static_cast<double>(0.1F / 10.0F));
    // A record of one moment still needs a width to be drawn in.
    EXPECT_EQ(GraphNavigation::wholeRecord(7.0, 7.0), (GraphTimeRange{6.5, 7.5}));
    EXPECT_GT(GraphNavigation::wholeRecord(9.0, 7.0).span(), 0.0);
    EXPECT_EQ(GraphNavigation::around(100.0), (GraphTimeRange{85.0, 115.0}));
}

/// Walks through a history: "v3" visits the range that starts at 3, "f3" follows it there,
/// "<" and ">" step; the answer lists where the steps led.
std::string walk(GraphRangeHistory& history, const std::vector<std::string>& steps)
{
    std::string trail;
    for (const std::string& step : steps) {
        if (step == "<" || step == ">") {
            const auto range = step == "<" ? history.back() : history.forward();
            trail += range ? std::to_string(static_cast<int>(range->xmin())) + " " : "- ";
            continue;
        }
        const double start = std::stod(step.substr(1));
        const GraphTimeRange range{start, start + 10.0};
        step[0] == 'v' ? history.visit(range) : history.follow(range);
    }
    return trail;
}

TEST(GraphRangeHistoryTest, StepsThroughVisitedRangesAsABrowserDoes)
{
    const struct
    {
        const char* name;
        std::vector<std::string> steps;
        const char* trail;
    } cases[] = {
        {"nothing visited", {"<", ">"}, "- - "},
        {"back and forth", {"v1", "v2", "v3", "<", "<", "<", ">", ">", ">"}, "2 1 - 2 3 - "},
        {"a new visit forgets what was ahead", {"v1", "v2", "<", "v3", ">", "<"}, "1 - 1 "},
        {"the same range again is no visit", {"v1", "v2", "v2", "<"}, "1 "},
        {"moving with the cursor is no visit", {"v1", "v2", "f5", "f6", "<", ">"}, "1 6 "},
        {"the first range may come from the cursor", {"f4", "v5", "<"}, "4 "},
    };
    for (const auto& c : cases) {
        GraphRangeHistory history;
        EXPECT_EQ(walk(history, c.steps), c.trail) << c.name;
    }
}

TEST(GraphRangeHistoryTest, KeepsTheLatestFifty)
{
    GraphRangeHistory history;
    for (int i = 0; i < 200; ++i) {
        history.visit({i * 1.0, i + 1.0});
    }
    int steps = 0;
    double oldest = 199.0;
    while (const auto range = history.back()) {
        oldest = range->xmin();
        ++steps;
    }
    EXPECT_EQ(steps, 49);
    EXPECT_EQ(oldest, 150.0);
}

TEST(GraphColorTest, NamesBecomeFractions)
{
    const GraphColor grid = GraphColor::fromName("#ff6666");
    EXPECT_FLOAT_EQ(grid.red, 1.0F);
    EXPECT_FLOAT_EQ(grid.green, 0.4F);
    EXPECT_FLOAT_EQ(grid.blue, 0.4F);
    EXPECT_FLOAT_EQ(GraphColor::fromName("lime").green, 1.0F);
    const GraphColor wrong = GraphColor::fromName("no such colour");
    EXPECT_EQ(wrong.red + wrong.green + wrong.blue, 0.0F);
}

} // namespace
} // namespace VELIX
