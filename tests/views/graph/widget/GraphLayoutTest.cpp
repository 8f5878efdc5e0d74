#include "views/graph/widget/GraphLayout.h"

#include <gtest/gtest.h>

using VELIX::GraphLayout;
using VELIX::GraphLayoutInput;

namespace {

GraphLayoutInput input(int width, int height, int traces, bool split)
{
    GraphLayoutInput result;
    result.size = QSize(width, height);
    result.traces = traces;
    result.legendRows = traces;
    result.valuesWidth = 180;
    result.split = split;
    return result;
}

TEST(GraphLayoutTest, PartsNeverOverlapNorLeaveTheWidget)
{
    for (const int width : {120, 400, 1600}) {
        for (const int height : {80, 300, 900}) {
            for (const int traces : {0, 1, 8, 30, 300}) {
                const GraphLayout parts(input(width, height, traces, true));
                const QRect all(0, 0, width, height);
                const QRect rects[] = {parts.plot(), parts.valueAxis(), parts.timeAxis(),
                                       parts.legend()};
                for (int i = 0; i < 4; ++i) {
                    EXPECT_TRUE(rects[i].isEmpty() || all.contains(rects[i]))
                        << i << " in " << width << " x " << height;
                    for (int j = i + 1; j < 4; ++j) {
                        EXPECT_FALSE(rects[i].intersects(rects[j])) << i << " and " << j;
                    }
                }
                for (int trace = 0; trace < traces; ++trace) {
                    EXPECT_FALSE(parts.handle(trace).intersects(parts.plot()));
                    EXPECT_FALSE(parts.handle(trace).intersects(parts.valueAxis()));
                }
            }
        }
    }
}

TEST(GraphLayoutTest, BandsTileThePlotAndAreFoundByTheirHeights)
{
    for (const int traces : {1, 7, 30}) {
        const GraphLayout parts(input(1000, 613, traces, true));
        int top = parts.plot().top();
        for (int trace = 0; trace < traces; ++trace) {
            const QRect band = parts.band(trace);
            EXPECT_EQ(band.top(), top);
            EXPECT_EQ(parts.bandAt(band.top()), trace);
            EXPECT_EQ(parts.bandAt(band.bottom()), trace);
            top += band.height();
        }
        EXPECT_EQ(top, parts.plot().bottom() + 1);
        EXPECT_EQ(parts.bandAt(-50), 0);
        EXPECT_EQ(parts.bandAt(5000), traces - 1);
    }
    const GraphLayout single(input(1000, 600, 7, false));
    EXPECT_EQ(single.band(3), single.plot());
    EXPECT_EQ(single.bandAt(100), -1);
}

TEST(GraphLayoutTest, HandlesAndLegendEntriesAreFoundWhereTheyAre)
{
    const GraphLayout parts(input(1000, 600, 8, true));
    for (int trace = 0; trace < 8; ++trace) {
        EXPECT_EQ(parts.handleAt(parts.handle(trace).center()), trace);
        EXPECT_EQ(parts.legendEntryAt(parts.legendEntry(trace).center()), trace);
    }
    const QRect last = parts.handle(7);
    EXPECT_EQ(parts.handleAt({last.left(), last.bottom() + 5}), -1);
    EXPECT_EQ(parts.handleAt(parts.plot().center()), -1);
    EXPECT_EQ(parts.legendEntryAt(parts.plot().center()), -1);
    EXPECT_EQ(parts.legendEntryAt(parts.legend().bottomRight()), -1);
}

TEST(GraphLayoutTest, TheLegendGivesWayStepByStep)
{
    using Legend = GraphLayout::Legend;
    const struct
    {
        const char* what;
        int width, height, rows;
        GraphLayout::Legend kind;
        int shown;
    } rows[] = {
        {"room for two lines each", 1000, 600, 8, Legend::NamesAboveValues, 8},
        {"one line each", 1600, 600, 30, Legend::NamesAndValues, 30},
        {"too narrow for values", 400, 600, 8, Legend::Names, 8},
        {"too low for all names", 1000, 300, 30, Legend::Names, 18},
        {"no room for a legend", 260, 600, 8, Legend::None, 0},
    };
    for (const auto& row : rows) {
        const GraphLayout parts(input(row.width, row.height, row.rows, true));
        EXPECT_EQ(parts.legendKind(), row.kind) << row.what;
        EXPECT_EQ(parts.legendShown(), row.shown) << row.what;
        if (row.shown > 0 && row.shown < row.rows) { // a line counts the others
            EXPECT_TRUE(parts.legend().contains(parts.legendEntry(row.shown))) << row.what;
        }
    }
}

TEST(GraphLayoutTest, ANothingOfAWidgetHasNoParts)
{
    for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(20, 500), QSize(500, 20)}) {
        const GraphLayout parts(input(size.width(), size.height(), 8, true));
        EXPECT_TRUE(parts.empty());
        EXPECT_EQ(parts.handleAt({0, 0}), -1);
        EXPECT_EQ(parts.legendEntryAt({0, 0}), -1);
        EXPECT_EQ(parts.bandAt(0), -1);
        EXPECT_TRUE(parts.band(0).isEmpty());
        EXPECT_EQ(parts.timeAt(5.0, 10.0, 20.0), 10.0);
    }
}

TEST(GraphLayoutTest, PixelsAndValuesConvertBothWays)
{
    const GraphLayout parts(input(1000, 600, 4, true));
    const QRect plot = parts.plot();
    EXPECT_DOUBLE_EQ(parts.timeAt(plot.left(), 100.0, 160.0), 100.0);
    EXPECT_DOUBLE_EQ(parts.timeAt(plot.left() + plot.width(), 100.0, 160.0), 160.0);
    EXPECT_DOUBLE_EQ(parts.xOf(parts.timeAt(333.25, 100.0, 160.0), 100.0, 160.0), 333.25);

    const QRect band = parts.band(2);
    EXPECT_DOUBLE_EQ(GraphLayout::valueAt(band.top() + band.height(), band, -5.0, 5.0), -5.0);
    EXPECT_DOUBLE_EQ(GraphLayout::valueAt(band.top(), band, -5.0, 5.0), 5.0);
    EXPECT_DOUBLE_EQ(GraphLayout::yOf(0.0, band, -5.0, 5.0), band.top() + band.height() / 2.0);
    EXPECT_DOUBLE_EQ(GraphLayout::yOf(7.0, band, 7.0, 7.0), band.top() + band.height() / 2.0);
}

TEST(GraphLayoutTest, ReadoutsStayInsideTheirArea)
{
    const QRect area(50, 10, 300, 200);
    const QSize size(80, 40);
    EXPECT_EQ(GraphLayout::boxBeside({100, 100}, size, area).left(), 108);
    EXPECT_EQ(GraphLayout::boxBeside({340, 100}, size, area).right(), 331);
    for (const QPoint& anchor :
         {QPoint(50, 10), QPoint(349, 209), QPoint(-500, 900), QPoint(200, 0)}) {
        EXPECT_TRUE(area.contains(GraphLayout::boxBeside(anchor, size, area)));
    }
    EXPECT_EQ(GraphLayout::boxBeside({100, 100}, QSize(900, 900), area), area);
}

} // namespace
