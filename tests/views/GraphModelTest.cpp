#include "views/GraphModel.h"

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

struct Sample
{
    double time;
    double value;
};

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

    void feed(unsigned int trace, const std::vector<Sample>& samples)
    {
        for (const Sample& sample : samples) {
            model.setTime(sample.time);
            model.putValue(trace, sample.value, false);
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

TEST(GraphModelTest, TracesStartWithTheirDefaults)
{
    GraphModel model;
    model.setMaxParameters(8);
    EXPECT_EQ(model.count(), 8U);
    EXPECT_EQ(model.nrActive(), 0U);
    const auto& last = model.parameter(7);
    EXPECT_EQ(last.name, QStringLiteral("NoName"));
    EXPECT_EQ(last.unit, QStringLiteral("-"));
    EXPECT_EQ(last.colour, (GraphModel::Colour{0.0F, 0.7F, 0.0F}));
    EXPECT_EQ(last.colourKey, QStringLiteral("GraphColor7"));
    EXPECT_EQ(last.precision, 2);
    EXPECT_EQ(model.xmin(), 0.0);
    EXPECT_EQ(model.xmax(), 60.0);
    EXPECT_EQ(model.scaling().ymin(), -0.5);
    EXPECT_EQ(model.scaling().ymax(), 1.5);
    EXPECT_EQ(model.secondsPerPixel(), 6.0) << "ten pixels until the first resize";
}

TEST(GraphModelTest, CurrentTimeStaysWithinADay)
{
    const std::vector<std::pair<double, double>> cases = {
        {90000, 86400}, {-5, 0}, {kInfinity, 86400}, {-kInfinity, 0}, {12.5, 12.5}};
    for (const auto& [given, kept] : cases) {
        GraphModel model;
        model.setTime(given);
        EXPECT_EQ(model.currentTime(), kept) << given;
    }
    GraphModel model;
    model.setTime(7.0);
    model.setTime(kNan);
    EXPECT_EQ(model.currentTime(), 7.0);
}

TEST(GraphModelTest, ValuesAreStoredAtTheCurrentTime)
{
    Fixture f;
    f.model.putValue(0, 1.0, false);
    EXPECT_EQ(f.samples(0), "") << "before the first time";
    f.model.setTime(3.0);
    EXPECT_FALSE(f.model.hasNewValue(0));
    f.model.putValue(0, 1.5, false);
    f.model.putValue(3, 9.0, false);
    f.model.putValue(~0U, 9.0, false);
    EXPECT_EQ(f.samples(0), "3 1.5");
    EXPECT_TRUE(f.model.hasNewValue(0));
    EXPECT_FALSE(f.model.hasNewValue(1));
    f.model.setTime(4.0);
    EXPECT_FALSE(f.model.hasNewValue(0));
    f.model.clear();
    f.model.putValue(0, 1.0, false);
    EXPECT_EQ(f.samples(0), "") << "after clearing, before the next time";
}

TEST(GraphModelTest, AutomaticModeRepeatsLastValues)
{
    struct Case
    {
        const char* name;
        std::function<void(Fixture&)> change;
        const char* samples;
    };
    const std::vector<Case> cases = {
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
    for (const Case& c : cases) {
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
    struct Case
    {
        const char* name;
        std::function<void(GraphModel&)> change;
        const char* range;
    };
    const auto automatic = [](GraphModel& m) { m.setGraphMode(GraphModel::GraphAutomatic); };
    const std::vector<Case> cases = {
        {"automatic mode ends at the present",
         [&](GraphModel& m) {
             automatic(m);
             m.setTime(100);
         },
         "40..100"},
        {"manual mode stays", [](GraphModel& m) { m.setTime(100); }, "0..60"},
        {"width in manual mode", [](GraphModel& m) { m.setXrange(10); }, "0..10"},
        {"width in automatic mode",
         [&](GraphModel& m) {
             automatic(m);
             m.setXrange(10);
         },
         "50..60"},
        {"width of nothing", [](GraphModel& m) { m.setXrange(-5); }, "0..1e-06"},
        {"width of all time", [](GraphModel& m) { m.setXrange(kInfinity); }, "0..1e+09"},
        {"width that is no number", [](GraphModel& m) { m.setXrange(kNan); }, "0..60"},
        {"start keeps the width", [](GraphModel& m) { m.setT0(5); }, "5..65"},
        {"ends one by one",
         [](GraphModel& m) {
             m.setXmin(100);
             m.setXmax(150);
         },
         "100..150"},
        {"ends in the other order",
         [](GraphModel& m) {
             m.setT0(1000);
             m.setXmax(50);
             m.setXmin(20);
         },
         "20..50"},
        {"ends that are no numbers",
         [](GraphModel& m) {
             m.setXmin(kNan);
             m.setXmax(kInfinity);
             m.setT0(-kInfinity);
         },
         "0..60"},
        {"floating cursor", [](GraphModel& m) { m.setCursorPosition(100); }, "0..60"},
        {"centred cursor",
         [](GraphModel& m) {
             m.setCursorMode(GraphModel::CursorCentre);
             m.setCursorPosition(100);
         },
         "70..130"},
        {"cursor at the end",
         [](GraphModel& m) {
             m.setCursorMode(GraphModel::CursorEnd);
             m.setCursorPosition(100);
         },
         "40..100"},
        {"cursor nowhere",
         [](GraphModel& m) {
             m.setCursorMode(GraphModel::CursorCentre);
             m.setCursorPosition(kNan);
         },
         "0..60"},
        {"between the markers",
         [](GraphModel& m) {
             m.setMarker(5, 8);
             m.zoomToMarker();
         },
         "5..8"},
        {"dragged to the left edge",
         [](GraphModel& m) {
             m.pan({10, 70}, -30);
         },
         "-20..40"},
        {"wheel away from the user", [](GraphModel& m) { m.zoomStep(20, true); }, "2..56"},
        {"wheel towards the user", [](GraphModel& m) { m.zoomStep(18, false); }, "-2..64.6667"},
    };
    for (const Case& c : cases) {
        Fixture f;
        c.change(f.model);
        EXPECT_EQ(f.range(), c.range) << c.name;
    }
}

TEST(GraphModelTest, ZoomingToTheMarkersOfOneTimeLeavesAMillionth)
{
    Fixture f;
    f.model.setGraphMode(GraphModel::GraphAutomatic);
    f.model.setMarker(50000.0, 50000.0);
    f.model.zoomToMarker();
    EXPECT_NEAR(f.model.range().span(), 1e-6, 1e-10);
    EXPECT_EQ(f.model.graphMode(), GraphModel::GraphManual);
}

TEST(GraphModelTest, WheelStepsUndoEachOtherAndEnd)
{
    Fixture f;
    for (int step = 0; step < 6; ++step) {
        f.model.zoomStep(17.0, step < 3);
    }
    EXPECT_NEAR(f.model.xmin(), 0.0, 1e-12);
    EXPECT_NEAR(f.model.xmax(), 60.0, 1e-12);
    for (int step = 0; step < 1000; ++step) {
        f.model.zoomStep(17.0, true);
    }
    EXPECT_GE(f.model.xmax() - f.model.xmin(), GraphTimeRange::kMinSpan);
    for (int step = 0; step < 1000; ++step) {
        f.model.zoomStep(17.0, false);
    }
    EXPECT_LE(f.model.range().span(), GraphTimeRange::kMaxSpan);
    f.model.zoomStep(kNan, true);
    EXPECT_TRUE(std::isfinite(f.model.xmin()));
}

TEST(GraphModelTest, OneChangeIsFollowedByFourRecomputations)
{
    Fixture f;
    EXPECT_FALSE(f.model.recalc().running());
    f.model.setXrange(10.0);
    int steps = 1;
    while (f.model.stepRecalc()) {
        ++steps;
    }
    EXPECT_EQ(steps, 4);
    EXPECT_EQ(f.model.recalc().countdown(), -1);
    f.model.zoomStep(5.0, true);
    EXPECT_TRUE(f.model.stepRecalc());
    f.model.zoomStep(5.0, true);
    EXPECT_EQ(f.model.recalc().countdown(), 2) << "a running countdown is not started again";
    f.model.startRecalc();
    EXPECT_EQ(f.model.recalc().countdown(), 3);
    GraphModel other;
    other.startRecalcTimer();
    EXPECT_TRUE(other.recalc().running());
    EXPECT_FALSE(other.stepRecalc());
    EXPECT_EQ(other.recalc().countdown(), -1);
}

/// Whatever changes range, width or traces, the frames drawn are those of a fresh computation.
TEST(GraphModelTest, DrawnFramesAreNeverOutOfDate)
{
    const std::vector<std::function<void(GraphModel&)>> changes = {
        [](GraphModel& m) { m.setXmin(10); },
        [](GraphModel& m) { m.setXmax(15); },
        [](GraphModel& m) { m.setT0(20); },
        [](GraphModel& m) { m.setPlotWidth(7); },
        [](GraphModel& m) { m.zoomStep(25, false); },
        [](GraphModel& m) { m.pan(m.range(), -12); },
        [](GraphModel& m) {
            m.setRange({0, 300});
        },
        [](GraphModel& m) {
            m.setActive(0, false);
            m.setXrange(30);
            m.setActive(0, true);
        },
        [](GraphModel& m) { m.setXrange(5); },
        [](GraphModel& m) {
            m.setCursorMode(GraphModel::CursorCentre);
            m.setCursorPosition(150);
        },
        [](GraphModel& m) {
            m.setGraphMode(GraphModel::GraphAutomatic);
            m.setTime(40);
        },
        [](GraphModel& m) { m.setTime(30); },
        [](GraphModel& m) { m.setTime(70); },
        [](GraphModel& m) {
            m.setTime(200);
            m.putValue(0, 1.0, false);
        },
        [](GraphModel& m) { m.setXmin(500); },
    };
    Fixture f;
    for (int i = 0; i < 2000; ++i) {
        f.feed(0, {{i * 0.1, std::sin(i * 0.37)}});
    }
    for (std::size_t step = 0; step < changes.size(); ++step) {
        changes[step](f.model);
        f.model.calcFrame();
        ASSERT_GT(f.model.secondsPerPixel(), 0.0) << "change " << step;
        GraphTrace fresh = f.model.parameter(0).trace;
        fresh.recalcFrameBuffer(f.model.xmin(), f.model.xmax(), f.model.secondsPerPixel());
        const auto& drawn = f.model.parameter(0).trace.frames();
        ASSERT_EQ(drawn.size(), fresh.frames().size()) << "change " << step;
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            ASSERT_EQ(drawn[i].startTime, fresh.frames()[i].startTime) << "change " << step;
            ASSERT_EQ(drawn[i].slotB, fresh.frames()[i].slotB) << "change " << step;
        }
    }
}

TEST(GraphModelTest, ChangingTheGraphModeRebuildsAtTheNextTime)
{
    Fixture f;
    f.feed(0, {{1, 1}, {2, 2}, {3, 3}});
    f.model.setXmax(300.0);
    f.model.setTime(4.0);
    EXPECT_EQ(f.model.parameter(0).trace.frames().size(), 3U);
    f.model.setGraphMode(GraphModel::GraphManual);
    f.model.setTime(5.0);
    EXPECT_EQ(f.model.parameter(0).trace.frames().size(), 1U) << "three seconds for each pixel";
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
    EXPECT_EQ(scales(), "-5..15 15..35 -0.5..1.5 ");
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
    EXPECT_TRUE(f.model.getParameterRangeX(1, low, high));
    EXPECT_TRUE(low == 0.5 && high == 90.0);
    EXPECT_TRUE(f.model.getParameterRangeY(0, low, high));
    EXPECT_TRUE(low == 4.0 && high == 50.0);
    EXPECT_FALSE(f.model.getParameterRangeY(1, low, high)) << "only gaps";
    EXPECT_TRUE(low == 0.0 && high == 0.0);
    EXPECT_FALSE(f.model.getParameterRangeX(2, low, high));
    EXPECT_FALSE(f.model.getParameterRangeX(99, low, high));
    EXPECT_FALSE(f.model.getValue(99, 1.0, low));

    EXPECT_EQ(f.model.getCurrentAverageValue(), 5.0)
        << "of the first trace, while none is selected";
    f.model.setSelectedTrace(1);
    EXPECT_EQ(f.model.getCurrentAverageValue(), 0.0) << "nothing but gaps";
    f.model.setMarker(150.0, 1.5);
    EXPECT_EQ(f.model.markerStatistics(0).average, 28.0);
    f.model.setMarker(3.0, 3.0);
    EXPECT_EQ(f.model.markerStatistics(0).average, 5.0) << "the visible range";
    EXPECT_EQ(f.model.markerStatistics(99).count, 0U);
    f.model.clear();
    EXPECT_FALSE(f.model.dataExtent(low, high));
}

TEST(GraphModelTest, Markers)
{
    struct Case
    {
        double time;
        double marker1;
        double marker2;
    };
    for (const Case& c : {Case{11.9, 11.9, 14}, Case{12, 10, 12}, Case{30, 10, 30},
                          Case{-9, -9, 14}, Case{kNan, 10, 14}}) {
        GraphModel model;
        model.setMarker(10.0, 14.0);
        model.setNearerMarker(c.time);
        EXPECT_EQ(model.marker1(), c.marker1) << c.time;
        EXPECT_EQ(model.marker2(), c.marker2) << c.time;
    }
    GraphModel model;
    model.setMarker(9.0, 4.0);
    EXPECT_EQ(model.markerDistance(), -5.0);
    model.sortMarkers();
    EXPECT_EQ(model.markerDistance(), 5.0);
    model.sortMarkers();
    EXPECT_EQ(model.marker1(), 4.0);
    model.addTopMarker(2, 1e12);
    model.addTopMarker(2, kNan);
    EXPECT_EQ(model.topMarkers().size(), 1U);
}

TEST(GraphModelTest, OrderAndSelectionFollowWhatIsShown)
{
    Fixture f;
    f.model.moveParameter(0, 2);
    EXPECT_EQ(f.model.displayOrder(), (std::vector<unsigned int>{1, 2, 0}));
    f.model.moveParameter(2, 1);
    EXPECT_EQ(f.model.displayOrder(), (std::vector<unsigned int>{1, 0, 2}));
    f.model.moveParameter(3, 0);
    f.model.moveParameter(0, 3);
    EXPECT_EQ(f.model.displayOrder(), (std::vector<unsigned int>{1, 0, 2}));
    EXPECT_EQ(f.model.selectedTrace(), 1U);
    f.model.setSelectedTrace(2);
    EXPECT_EQ(f.model.selectedTrace(), 2U);
    f.model.setVisible(2, false);
    f.model.setActive(1, false);
    EXPECT_EQ(f.model.selectedTrace(), 0U);
    f.model.setActive(0, false);
    EXPECT_EQ(f.model.selectedTrace(), GraphModel::kNoTrace);
    EXPECT_EQ(f.model.nrActive(), 1U) << "hidden, but with its place kept";
    EXPECT_EQ(f.model.getCurrentAverageValue(), 0.0);
}

TEST(GraphModelTest, DrawingChangesNothingThatIsSeen)
{
    Fixture f;
    f.model.setGraphMode(GraphModel::GraphAutomatic);
    f.feed(0, {{1, 1}, {2, 2}});
    f.model.setXmin(-30.0);
    f.model.setTime(9.0);
    const auto before = f.model.revision();
    f.model.calcFrame();
    EXPECT_EQ(f.model.revision(), before);
    const auto plot = f.model.plotRevision();
    f.model.setCursorPosition(1.0);
    f.model.setMarker(1.0, 2.0);
    f.model.setSelectedTrace(1);
    EXPECT_NE(f.model.revision(), before);
    EXPECT_EQ(f.model.plotRevision(), plot) << "what moves over the traces leaves them as they are";
    f.model.setCursorMode(GraphModel::CursorCentre);
    f.model.setCursorPosition(2.0);
    EXPECT_NE(f.model.plotRevision(), plot);
}

TEST(GraphModelTest, RepaintsAfterSevenTenthsOfAPixel)
{
    Fixture f;
    f.model.setXrange(10.0);
    EXPECT_FALSE(f.model.repaintDue(0.069));
    EXPECT_TRUE(f.model.repaintDue(0.071));
    f.model.setPlotWidth(-3);
    EXPECT_EQ(f.model.plotWidth(), 1);
}

TEST(GraphModelTest, ResetKeepsTracesAndOfflineMode)
{
    Fixture f;
    f.feed(0, {{1, 1}});
    f.model.setOfflineMode(true);
    f.model.setRange({5, 6});
    f.model.setDisplayMode(GraphModel::DisplaySplit);
    f.model.setCursorMode(GraphModel::CursorEnd);
    f.model.changeScaling().setYmax(9.0);
    f.model.reset();
    EXPECT_EQ(f.range(), "0..60");
    EXPECT_EQ(f.model.displayMode(), GraphModel::DisplaySingle);
    EXPECT_EQ(f.model.cursorMode(), GraphModel::CursorFloating);
    EXPECT_EQ(f.model.scaling().ymax(), 1.5);
    EXPECT_EQ(f.samples(0), "1 1");
    EXPECT_TRUE(f.model.offlineMode());
    f.model.setTime(50.0);
    EXPECT_TRUE(f.model.inRange());
    f.model.setTime(70.0);
    EXPECT_FALSE(f.model.inRange());
}

TEST(GraphModelTest, TracesThatDoNotExistAreIgnored)
{
    GraphModel model;
    model.setTime(1.0);
    for (const unsigned int i : {0U, 30U, GraphModel::kNoTrace}) {
        model.putValue(i, 1.0, false);
        model.setActive(i, true);
        model.setParameterName(i, "x");
        model.setPrecision(i, 99);
        EXPECT_FALSE(model.isShown(i) || model.hasNewValue(i));
        EXPECT_EQ(model.scaleOf(i).maximum, 1.5);
    }
    model.calcFrame();
    model.zoomToMarker();
    EXPECT_FALSE(model.hasShownSamples());
    model.setMaxParameters(~0U);
    EXPECT_EQ(model.count(), GraphModel::kMaxTraces);
}

} // namespace
