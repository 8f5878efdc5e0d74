#include "views/graph/model/GraphModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

using namespace VELIX;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A model with three active traces; plot 100 pixels wide.
struct Fixture
{
    Fixture()
    {
        model.setMaxParameters(3);
        for (unsigned int i = 0; i < 3; ++i) {
            model.setActive(i, true);
        }
        model.setPlotWidth(100);
    }

    void feed(unsigned int trace, const std::vector<std::pair<double, double>>& samples)
    {
        for (const auto& [time, value] : samples) {
            model.setTime(time);
            model.putValue(trace, value, false);
        }
    }

    /// "time value" of all samples of a trace, repeated ones in brackets.
    std::string samples(unsigned int trace) const
    {
        std::string result;
        for (const auto& entry : model.parameter(trace).trace.entries()) {
            const std::string text =
                QString::asprintf("%g %g", entry.time, entry.value).toStdString();
            result += (result.empty() ? "" : ", ") + (entry.hold ? "(" + text + ")" : text);
        }
        return result;
    }

    std::string range() const
    {
        return QString::asprintf("%g..%g", model.xmin(), model.xmax()).toStdString();
    }

    GraphModel model;
};

TEST(GraphModelTest, ValuesAreStoredAtTheCurrentTime)
{
    Fixture f;
    f.model.putValue(0, 1.0, false);
    EXPECT_EQ(f.samples(0), "") << "before the first time";
    for (const double time : {-5.0, 3.0, kNan, 90000.0, kInfinity}) { // within a day
        f.model.setTime(time);
        EXPECT_EQ(f.model.hasNewValue(0), std::isnan(time)) << "of the time before";
        f.model.putValue(0, 1.5, false);
        EXPECT_TRUE(f.model.hasNewValue(0));
        EXPECT_FALSE(f.model.hasNewValue(1));
    }
    f.model.putValue(3, 9.0, false);
    EXPECT_EQ(f.samples(0), "0 1.5, 3 1.5, 3 1.5, 86400 1.5, 86400 1.5");
    f.model.clear();
    f.model.putValue(0, 1.0, false);
    EXPECT_EQ(f.samples(0), "") << "after clearing, before the next time";
}

TEST(GraphModelTest, AutomaticModeRepeatsLastValues)
{
    const struct
    {
        const char* name;
        std::function<void(Fixture&)> change;
        const char* samples;
    } cases[] = {
        {"up to the present", [](Fixture&) {}, "1 7, 2 8, (5 8)"},
        {"once for each time", [](Fixture& f) { f.model.calcFrame(); }, "1 7, 2 8, (5 8)"},
        {"not in manual mode", [](Fixture& f) { f.model.setGraphMode(GraphModel::GraphManual); },
         "1 7, 2 8"},
        {"not offline", [](Fixture& f) { f.model.setOfflineMode(true); }, "1 7, 2 8"},
        {"not while inactive", [](Fixture& f) { f.model.setActive(0, false); }, "1 7, 2 8"},
        {"not with a value of its own", [](Fixture& f) { f.model.putValue(0, 9.0, false); },
         "1 7, 2 8, 5 9"},
        {"not into the past", [](Fixture& f) { f.model.setTime(1.5); }, "1 7, 2 8"},
    };
    for (const auto& c : cases) {
        Fixture f;
        f.model.setGraphMode(GraphModel::GraphAutomatic);
        f.feed(0, {{1, 7}, {2, 8}});
        f.model.setTime(5.0);
        c.change(f);
        f.model.calcFrame();
        EXPECT_EQ(f.samples(0), c.samples) << c.name;
        EXPECT_EQ(f.samples(1), "") << c.name << ": nothing to repeat";
    }
}

TEST(GraphModelTest, VisibleRange)
{
    using M = GraphModel;
    constexpr auto kManual = GraphModel::GraphManual;
    constexpr auto kAutomatic = GraphModel::GraphAutomatic;
    constexpr auto kFloating = GraphModel::CursorFloating;
    constexpr auto kCenter = GraphModel::CursorCenter;
    constexpr auto kEnd = GraphModel::CursorEnd;
    const struct
    {
        const char* name;
        GraphModel::eGraphMode mode;
        GraphModel::eCursorMode cursor;
        std::function<void(GraphModel&)> change;
        const char* range;
    } cases[] = {
        {"automatic mode ends at the present", kAutomatic, kFloating, [](M& m) { m.setTime(100); },
         "40..100"},
        {"manual mode stays", kManual, kFloating, [](M& m) { m.setTime(100); }, "0..60"},
        {"width in manual mode", kManual, kFloating, [](M& m) { m.setXrange(10); }, "0..10"},
        {"width in automatic mode", kAutomatic, kFloating, [](M& m) { m.setXrange(10); }, "50..60"},
        {"width of nothing", kManual, kFloating, [](M& m) { m.setXrange(-5); }, "0..1e-06"},
        {"width of all time", kManual, kFloating, [](M& m) { m.setXrange(kInfinity); }, "0..1e+09"},
        {"start keeps the width", kManual, kFloating, [](M& m) { m.setT0(5); }, "5..65"},
        {"an end before the other", kManual, kFloating, [](M& m) { m.setXmax(-5); }, "0..-5"},
        {"an end that is no number", kManual, kFloating, [](M& m) { m.setXmax(kNan); }, "0..60"},
        {"floating cursor", kManual, kFloating, [](M& m) { m.setCursorPosition(100); }, "0..60"},
        {"cursor in the middle", kManual, kCenter, [](M& m) { m.setCursorPosition(100); },
         "70..130"},
        {"cursor at the end", kManual, kEnd, [](M& m) { m.setCursorPosition(100); }, "40..100"},
        {"cursor nowhere", kManual, kCenter, [](M& m) { m.setCursorPosition(kNan); }, "0..60"},
        {"between the markers", kAutomatic, kFloating, [](M& m) { m.zoomToMarker(); }, "5..8"},
        {"dragged to the left edge", kManual, kFloating, [](M& m) { m.pan(m.range(), -30); },
         "-30..30"},
        {"wheel away from the user", kManual, kFloating, [](M& m) { m.zoomStep(20, true); },
         "2..56"},
        {"wheel towards the user", kManual, kFloating, [](M& m) { m.zoomStep(18, false); },
         "-2..64.6667"},
    };
    for (const auto& c : cases) {
        Fixture f;
        f.model.setGraphMode(c.mode);
        f.model.setCursorMode(c.cursor);
        f.model.setMarker(5, 8);
        c.change(f.model);
        EXPECT_EQ(f.range(), c.range) << c.name;
    }
    Fixture f;
    f.model.setGraphMode(kAutomatic);
    f.model.setMarker(50000.0, 50000.0);
    f.model.zoomToMarker();
    EXPECT_NEAR(f.model.range().span(), 1e-6, 1e-10) << "markers of one time leave a millionth";
    EXPECT_EQ(f.model.graphMode(), kManual);
}

TEST(GraphModelTest, WheelStepsUndoEachOtherAndEnd)
{
    Fixture f;
    for (int step = 0; step < 6; ++step) {
        f.model.zoomStep(17.0, step < 3);
    }
    EXPECT_NEAR(f.model.xmin(), 0.0, 1e-12);
    EXPECT_NEAR(f.model.xmax(), 60.0, 1e-12);
    for (const bool in : {true, false}) {
        for (int step = 0; step < 1000; ++step) {
            f.model.zoomStep(17.0, in);
        }
        EXPECT_GE(f.model.xmax() - f.model.xmin(), GraphTimeRange::kMinSpan);
        EXPECT_LE(f.model.range().span(), GraphTimeRange::kMaxSpan);
    }
    f.model.zoomStep(kNan, true);
    EXPECT_TRUE(std::isfinite(f.model.xmin()));
}

TEST(GraphModelTest, OneChangeIsFollowedByFourRecomputations)
{
    Fixture f;
    f.model.setXrange(10.0);
    for (const bool more : {true, true, true, false}) {
        EXPECT_EQ(f.model.stepRecalc(), more);
    }
    f.model.zoomStep(5.0, true);
    f.model.stepRecalc();
    f.model.zoomStep(5.0, true);
    EXPECT_EQ(f.model.recalc().countdown(), 2) << "a running countdown is not started again";
    GraphModel other;
    other.startRecalcTimer();
    EXPECT_FALSE(other.stepRecalc()) << "after a drag once is enough";
}

/// Whatever changes range, width or traces, the frames drawn are those of a fresh computation.
TEST(GraphModelTest, DrawnFramesAreNeverOutOfDate)
{
    using M = GraphModel;
    const std::vector<std::function<void(M&)>> changes = {
        [](M& m) { m.setXmin(10); },
        [](M& m) { m.setXmax(15); },
        [](M& m) { m.setT0(20); },
        [](M& m) { m.setPlotWidth(7); },
        [](M& m) { m.zoomStep(25, false); },
        [](M& m) { m.pan(m.range(), -12); },
        [](M& m) { m.setRange(GraphTimeRange(0, 300)); },
        [](M& m) {
            m.setActive(0, false);
            m.setXrange(30);
            m.setActive(0, true);
        },
        [](M& m) { m.setXrange(5); },
        [](M& m) { m.setCursorMode(GraphModel::CursorCenter); },
        [](M& m) { m.setCursorPosition(150); },
        [](M& m) { m.setGraphMode(GraphModel::GraphAutomatic); },
        [](M& m) { m.setTime(40); },
        [](M& m) { m.setTime(30); },
        [](M& m) { m.setTime(70); },
        [](M& m) { m.setTime(200); },
        [](M& m) { m.putValue(0, 1.0, false); },
        [](M& m) { m.setXmin(500); },
    };
    const auto text = [](const auto& frames) {
        QString result;
        for (const auto& frame : frames) {
            result += QString::asprintf("%g:%g ", frame.startTime, frame.slotB);
        }
        return result.toStdString();
    };
    Fixture f;
    for (int i = 0; i < 2000; ++i) {
        f.feed(0, {{i * 0.1, std::sin(i * 0.37)}});
    }
    for (std::size_t step = 0; step < changes.size(); ++step) {
        changes[step](f.model);
        f.model.calcFrame();
        GraphTrace fresh = f.model.parameter(0).trace;
        fresh.recalcFrameBuffer(f.model.xmin(), f.model.xmax(), f.model.secondsPerPixel());
        ASSERT_EQ(text(f.model.parameter(0).trace.frames()), text(fresh.frames()))
            << "change " << step;
    }
}

TEST(GraphModelTest, Scales)
{
    Fixture f;
    f.feed(0, {{1, 0}, {2, 10}});
    f.feed(1, {{1, 20}, {2, 30}, {3, kNan}});
    const auto scales = [&f] {
        f.model.calcFrame();
        std::string result;
        for (unsigned int i = 0; i < 3; ++i) {
            const GraphYScale& scale = f.model.scaleOf(i);
            result += QString::asprintf("%g..%g ", scale.minimum, scale.maximum).toStdString();
        }
        return result;
    };
    EXPECT_EQ(scales(), "-3..33 -3..33 -3..33 ") << "one scale for all";
    f.model.setVisible(1, false);
    EXPECT_EQ(scales(), "-1..11 -1..11 -1..11 ") << "for all that are shown";
    f.model.setDisplayMode(GraphModel::DisplaySplit);
    EXPECT_EQ(scales(), "-1..11 19..31 -0.5..1.5 ") << "a scale each";
    f.model.changeScaling().setSpread(0.5);
    f.model.changeScaling().setSpread(-1.0);
    f.model.changeScaling().setSpread(kNan);
    EXPECT_EQ(scales(), "-5..15 15..35 -0.5..1.5 ") << "no spread at all";
    f.model.changeScaling().setYmin(-7.0);
    f.model.changeScaling().setYmax(7.0);
    f.model.changeScaling().setRangeOn(true);
    EXPECT_EQ(scales(), "-7..7 -7..7 -7..7 ");
    f.model.changeScaling().setRangeOn(false);
    f.model.changeScaling().setAutoScale(false);
    f.model.changeScaling().setYmin(9.0);
    f.model.changeScaling().setYmax(kNan);
    EXPECT_EQ(scales(), "7..9 7..9 7..9 ") << "ends the wrong way round";
}

TEST(GraphModelTest, RangesAndAverages)
{
    Fixture f;
    f.feed(0, {{1, 4}, {2, 6}, {100, 50}});
    f.feed(1, {{0.5, kNan}, {90, kInfinity}});
    f.model.calcFrame();
    double low = 1.0;
    double high = 1.0;
    EXPECT_TRUE(f.model.dataExtent(low, high));
    EXPECT_TRUE(low == 0.5 && high == 100.0);
    EXPECT_TRUE(f.model.getParameterRangeY(0, low, high));
    EXPECT_TRUE(low == 4.0 && high == 50.0);
    EXPECT_FALSE(f.model.getParameterRangeY(1, low, high)) << "only gaps";
    EXPECT_FALSE(f.model.getParameterRangeX(2, low, high)) << "no samples";

    EXPECT_EQ(f.model.getCurrentAverageValue(), 5.0)
        << "of the first trace, while none is selected";
    f.model.setSelectedTrace(1);
    EXPECT_EQ(f.model.getCurrentAverageValue(), 0.0) << "nothing but gaps";
    f.model.setMarker(150.0, 1.5);
    EXPECT_EQ(f.model.markerStatistics(0).average, 28.0);
    f.model.setMarker(3.0, 3.0);
    EXPECT_EQ(f.model.markerStatistics(0).average, 5.0) << "the visible range";
}

TEST(GraphModelTest, OrderAndSelectionFollowWhatIsShown)
{
    Fixture f;
    f.model.moveParameter(0, 2);
    EXPECT_EQ(f.model.displayOrder(), (std::vector<unsigned int>{1, 2, 0}));
    f.model.moveParameter(2, 1);
    f.model.moveParameter(3, 0);
    f.model.moveParameter(0, 3);
    EXPECT_EQ(f.model.displayOrder(), (std::vector<unsigned int>{1, 0, 2}));
    EXPECT_EQ(f.model.selectedTrace(), 1U);
    f.model.setSelectedTrace(2);
    f.model.setVisible(2, false);
    f.model.setActive(1, false);
    EXPECT_EQ(f.model.selectedTrace(), 0U);
    f.model.setActive(0, false);
    EXPECT_EQ(f.model.selectedTrace(), GraphModel::kNoTrace);
    EXPECT_EQ(f.model.nrActive(), 1U) << "hidden, but still listed";
    EXPECT_EQ(f.model.getCurrentAverageValue(), 0.0);
}

TEST(GraphModelTest, WhatMovesOverTheTracesLeavesThemAsTheyAre)
{
    Fixture f;
    f.feed(0, {{1, 1}, {2, 2}});
    f.model.calcFrame();
    const auto seen = f.model.revision();
    const auto plot = f.model.plotRevision();
    f.model.setCursorPosition(1.0);
    f.model.setMarker(1.0, 2.0);
    f.model.setSelectedTrace(1);
    EXPECT_NE(f.model.revision(), seen);
    EXPECT_EQ(f.model.plotRevision(), plot);
    f.model.setCursorMode(GraphModel::CursorCenter);
    f.model.setCursorPosition(2.0);
    EXPECT_NE(f.model.plotRevision(), plot);
}

TEST(GraphModelTest, ResetKeepsTracesAndOfflineMode)
{
    Fixture f;
    f.feed(0, {{1, 1}});
    f.model.setOfflineMode(true);
    f.model.setRange({5, 6});
    f.model.setCursorMode(GraphModel::CursorEnd);
    f.model.changeScaling().setYmax(9.0);
    f.model.reset();
    EXPECT_EQ(f.range(), "0..60");
    EXPECT_EQ(f.model.cursorMode(), GraphModel::CursorFloating);
    EXPECT_EQ(f.model.scaling().ymax(), 1.5);
    EXPECT_EQ(f.samples(0), "1 1");
    EXPECT_TRUE(f.model.offlineMode());
}

TEST(GraphModelTest, TracesThatDoNotExistAreIgnored)
{
    GraphModel model;
    model.setTime(1.0);
    for (const unsigned int i : {0U, GraphModel::kNoTrace}) {
        model.putValue(i, 1.0, false);
        model.setActive(i, true);
        model.setParameterName(i, "x");
        EXPECT_FALSE(model.isShown(i) || model.hasNewValue(i));
        EXPECT_EQ(model.scaleOf(i).maximum, 1.5);
    }
    model.setMaxParameters(~0U);
    EXPECT_EQ(model.count(), GraphModel::kMaxTraces);
}

} // namespace
