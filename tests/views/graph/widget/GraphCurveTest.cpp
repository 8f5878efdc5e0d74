#include "views/graph/widget/GraphCurve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace VELIX;

namespace {

/// 100 x 100 pixels showing 0..100 s and 0..100: a value's y is 100 - value.
GraphCurve::Target squareTarget()
{
    return {QRectF(0.0, 0.0, 100.0, 100.0), 0.0, 100.0, GraphYScale{0.0, 100.0}};
}

GraphTrace::FrameType one(double time, double value, bool gap = false)
{
    return {2, time, value, 0.0, 0.0, false, gap};
}

GraphTrace::FrameType many(double time, double low, double high, double last)
{
    return {4, time, low, high, last, false, false};
}

/// The strips as text, "x,y x,y | x,y".
std::string drawn(const std::deque<GraphTrace::FrameType>& frames,
                  const GraphCurve::Target& target = squareTarget())
{
    GraphCurve curve;
    curve.build(frames, target);
    std::string text;
    for (std::size_t strip = 0; strip < curve.starts().size(); ++strip) {
        text += strip == 0 ? "" : " |";
        for (int i = 0; i < curve.sizes()[strip]; ++i) {
            const auto index =
                static_cast<std::size_t>(curve.starts()[strip]) + static_cast<std::size_t>(i);
            const GraphVertex& vertex = curve.vertices()[index];
            char number[64];
            std::snprintf(number, sizeof number, "%s%g,%g", text.empty() ? "" : " ",
                          static_cast<double>(vertex.x), static_cast<double>(vertex.y));
            text += number;
        }
    }
    return text;
}

TEST(GraphCurveTest, FramesBecomeStrips)
{
    const struct
    {
        const char* what;
        std::deque<GraphTrace::FrameType> frames;
        const char* strips;
    } rows[] = {
        {"nothing", {}, ""},
        {"single samples are joined", {one(10, 20), one(20, 40)}, "10,80 20,60"},
        {"a lone sample is a point", {one(10, 20)}, "10,80"},
        {"a gap parts the line",
         {one(10, 20), one(20, 40), one(30, 50, true)},
         "10,80 20,60 | 30,50"},
        {"two samples in the order of arrival",
         {one(10, 20), {3, 20, 70, 30, 0, false, false}, one(30, 50)},
         "10,80 20,30 20,70 30,50"},
        {"more in the middle of their column, the nearer end first, on from the last",
         {one(10, 20), many(20, 30, 90, 50), one(30, 60)},
         "10,80 20.5,70 20.5,10 | 20.5,50 30,40"},
        {"touching columns need no line between them",
         {many(20, 30, 90, 50), many(21, 10, 80, 40)},
         "20.5,70 20.5,10 | 21.5,20 21.5,90"},
        {"a column left out between touching ones is filled",
         {many(20, 30, 90, 50), many(22, 10, 80, 40)},
         "20.5,70 20.5,10 | 21.5,20 21.5,90 | 22.5,20 22.5,90"},
        {"columns apart are joined",
         {many(20, 10, 20, 15), many(21, 60, 90, 70)},
         "20.5,90 20.5,80 | 20.5,85 21.5,40 21.5,10"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(drawn(row.frames), row.strips) << row.what;
    }
}

TEST(GraphCurveTest, LinesAreCutBesideTheArea)
{
    EXPECT_EQ(drawn({one(-1000, 0), one(1000, 100)}), "-16,50.8 116,44.2");
    EXPECT_EQ(drawn({one(-50, 10), one(-40, 20)}), "");
    EXPECT_EQ(drawn({one(-50, 10), one(-40, 20), one(50, 60)}), "-16,69.3333 50,40");
    EXPECT_EQ(drawn({one(50, 60), one(200, 60), one(300, 90)}), "50,40 116,40");
}

TEST(GraphCurveTest, CoordinatesStaySmallInTheDeepestZoom)
{
    GraphCurve::Target target = squareTarget();
    target.start = 50'000.0;
    target.stop = 50'000.0 + 1e-6;
    target.scale = {0.0, 1e-9};
    GraphCurve curve;
    curve.build({one(49'999, -1e30), one(50'000 + 5e-7, 0), one(50'001, 1e30)}, target);
    ASSERT_FALSE(curve.vertices().empty());
    for (const GraphVertex& vertex : curve.vertices()) {
        EXPECT_LE(std::abs(vertex.x), 200.0F);
        EXPECT_LE(std::abs(vertex.y), 60'000.0F);
    }
}

TEST(GraphCurveTest, NoAreaOrRangeDrawsNothing)
{
    GraphCurve::Target target = squareTarget();
    target.area = QRectF();
    EXPECT_EQ(drawn({one(10, 20), one(20, 40)}, target), "");
    target = squareTarget();
    target.stop = target.start;
    EXPECT_EQ(drawn({one(10, 20), one(20, 40)}, target), "");
}

} // namespace
