#include "views/graph/GraphNavigation.h"

#include "views/graph/GraphColor.h"
#include "views/graph/GraphVisits.h"

#include <gtest/gtest.h>

#include <string>

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
        {"on the right margin nothing moves", {0, 100}, 90, {0, 100}},
        {"on the left margin nothing moves", {0, 100}, 10, {0, 100}},
        {"beyond the right margin", {0, 100}, 95, {5, 105}},
        {"before the left margin", {100, 200}, 105, {95, 195}},
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

/// Walks through visits, from the range that starts at 0: "u3" the user chooses the range that
/// starts at 3, "c3" the cursor leads there, "." a tick, "<" and ">" step; the answer lists where
/// the steps led.
std::string walk(const std::string& steps)
{
    const auto rangeAt = [](int start) { return GraphTimeRange{start * 1.0, start + 10.0}; };
    GraphVisits visits;
    GraphTimeRange shown = rangeAt(0);
    visits.restart(shown);
    std::string trail;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const char step = steps[i];
        if (step == '.') {
            visits.tick(shown);
        } else if (step == 'u' || step == 'c') {
            shown = rangeAt(steps[++i] - '0');
            step == 'u' ? (void)visits.note(shown) : visits.follow(shown);
        } else if (step == '<' || step == '>') {
            const bool possible = step == '<' ? visits.canGoBack() : visits.canGoForward();
            const auto range = step == '<' ? visits.back(shown) : visits.forward(shown);
            EXPECT_EQ(possible, range.has_value()) << steps;
            shown = range.value_or(shown);
            trail += range ? std::to_string(static_cast<int>(range->xmin())) + " " : "- ";
        }
    }
    return trail;
}

TEST(GraphVisitsTest, LeadThroughVisitedRangesAsABrowserDoes)
{
    const struct
    {
        const char* name;
        const char* steps;
        const char* trail;
    } cases[] = {
        {"nothing visited", "<>", "- - "},
        {"back and forth", "u1......u2......<<<>>>", "1 0 - 1 2 - "},
        {"what has not rested yet counts at the step", "u1......u2<<>", "1 0 1 "},
        {"a new visit forgets what was ahead", "u1......u2......<u3......><", "1 - 1 "},
        {"a range that does not rest is no visit", "u1...u2...u3......<", "0 "},
        {"each change starts the rest again", "u1.....u2.....u3.....u4......<", "0 "},
        {"the same range again is no visit", "u1......u2..u1......<", "0 "},
        {"following the cursor is no visit", "u1......c5......c6......<>", "0 6 "},
        {"a choice moved with the cursor is one", "u1..c2......<>", "0 2 "},
        {"the first range may follow the cursor", "c4u5......<", "4 "},
        {"where a step led is no choice", "u1......u2......<.>", "1 2 "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(walk(c.steps), c.trail) << c.name;
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
    const GraphColor grid = GraphColor::fromName("#ff6680");
    EXPECT_FLOAT_EQ(grid.red, 1.0F);
    EXPECT_FLOAT_EQ(grid.green, 0.4F);
    EXPECT_FLOAT_EQ(grid.blue, 128.0F / 255.0F);
    const GraphColor wrong = GraphColor::fromName("no such colour");
    EXPECT_EQ(wrong.red + wrong.green + wrong.blue, 0.0F);
}

} // namespace
} // namespace VELIX
