#pragma once

#include "views/graph/model/GraphMarkers.h"
#include "views/graph/model/GraphRecalc.h"
#include "views/graph/model/GraphScaling.h"
#include "views/graph/model/GraphTimeRange.h"
#include "views/graph/model/GraphTrace.h"
#include "views/graph/model/GraphTraceSet.h"
#include "views/graph/model/GraphYScale.h"

#include <cstdint>
#include <vector>

namespace VELIX {

/// All that a graph shows, without the showing: its traces, the visible range, cursor, markers and
/// modes, and the rules by which they change. Graph widgets add drawing, timers and signals.
///
/// Times are seconds. Trace numbers beyond count() are ignored everywhere, as are times and limits
/// that are not finite. Feeding: setTime(t), then putValue(i, value, hold) for every trace i with a
/// sample at that time.
class GraphModel : public GraphTraceSet
{
public:
    enum eCursorMode : int {
        CursorFloating = 0, ///< the cursor moves through the visible range
        CursorCenter = 1,   ///< the visible range follows, the cursor stays in its middle
        CursorEnd = 2       ///< the visible range follows, the cursor stays at its end
    };
    enum eGraphMode : int {
        GraphManual = 0,
        GraphAutomatic = 1 ///< the visible range ends at the current time
    };
    enum eDisplayMode : int {
        DisplaySingle = 0, ///< all traces on one Y scale
        DisplaySplit = 1   ///< each trace in a band of its own; so does any value but 0
    };

    /// A labelled triangle at the upper edge of the plot.
    struct TopMarker
    {
        unsigned int number = 0;
        double time = 0.0; ///< seconds
    };

    static constexpr double kSecondsPerDay = 86400.0;

    GraphModel();

    // --- feeding

    /// Lists the trace in the graph and its legend, or takes it out of both. Samples stay.
    void setActive(unsigned int i, bool active);

    /// The current time, limited to 0..86400. Moves the visible range in automatic mode, allows
    /// samples, and rebuilds the frames if that is pending.
    void setTime(double t);
    [[nodiscard]] double currentTime() const { return mCurrentTime; }
    /// A sample of trace @p i at the current time; ignored before the first setTime() after
    /// construction or clear().
    /// @param hold true: the last value repeated, false: a recorded sample
    void putValue(unsigned int i, double value, bool hold);
    /// Whether the trace got a value since the last setTime().
    [[nodiscard]] bool hasNewValue(unsigned int i) const;
    /// Drops all samples, frames and top markers. Appearance, modes and range stay.
    void clear();
    /// Returns range, Y range, modes, cursor, markers and autoscale to their defaults. Traces stay.
    void reset();

    // --- values

    /// Mean of the selected trace's samples in the visible range; 0 when there are none.
    [[nodiscard]] double getCurrentAverageValue() const;
    /// Minimum, maximum and average between the markers, or in the visible range when they
    /// coincide.
    [[nodiscard]] GraphTrace::Statistics markerStatistics(unsigned int i) const;
    /// Time of the earliest and of the latest sample of all traces, as of the last calcFrame();
    /// false without samples.
    bool dataExtent(double& first, double& last) const;

    // --- the visible range
    // Changes take effect on the frames at the next calcFrame(), unless said otherwise.

    [[nodiscard]] const GraphTimeRange& range() const { return mRange; }
    [[nodiscard]] double xmin() const { return mRange.xmin(); }
    [[nodiscard]] double xmax() const { return mRange.xmax(); }
    void setXmin(double xmin);
    void setXmax(double xmax);
    /// Sets both ends. Does not touch the modes.
    void setRange(const GraphTimeRange& range);
    /// Moves xmin and keeps the width.
    void setT0(double t0);
    /// Sets the width: from xmax in automatic mode, else from xmin. Starts the recomputation and
    /// rebuilds the frames at once.
    void setXrange(double width);
    /// Shows the time between the markers, at least 1e-6 s, in manual mode. Rebuilds as
    /// setXrange() does.
    void zoomToMarker();
    /// A wheel step about the time @p pivot: @p in narrows the range to 0.9 of its width, else the
    /// reverse. Starts the recomputation unless it runs.
    void zoomStep(double pivot, bool in);
    /// Moves the range that was visible when a drag began by @p seconds, in manual mode.
    void pan(const GraphTimeRange& atPress, double seconds);
    /// Whether the current time is visible.
    [[nodiscard]] bool inRange() const { return mRange.contains(mCurrentTime); }

    /// Width of the plot in pixels, at least 1; 10 until it is set.
    void setPlotWidth(int pixels);
    [[nodiscard]] int plotWidth() const { return mPlotWidth; }
    [[nodiscard]] double secondsPerPixel() const;

    // --- frames

    /// Rebuilds the frames of every active trace for the visible range and width, at once.
    void recalcFrameBuffer();
    /// Prepares drawing: frames that are out of date, scales, extent of the data, and in automatic
    /// mode (unless offline) the repetition of the last values at the current time. A trace that
    /// has samples beyond the current time is left alone.
    void calcFrame();
    /// The one scale of all shown traces in single mode, as of the last calcFrame().
    [[nodiscard]] const GraphYScale& commonScale() const { return mCommonScale; }
    /// The scale by which trace @p i is drawn in the display mode in force.
    [[nodiscard]] const GraphYScale& scaleOf(unsigned int i) const;

    /// One change of range or size is followed by four recomputations. startRecalc() arms them;
    /// the owner's timer calls stepRecalc() each time.
    void startRecalc() { mRecalc.start(); }
    /// Arms the timer for a single recomputation, or for what is left of four.
    void startRecalcTimer() { mRecalc.startTimer(); }
    /// Rebuilds the frames. @return whether the timer is to be started again
    bool stepRecalc();
    [[nodiscard]] const GraphRecalc& recalc() const { return mRecalc; }

    /// Whether the traces have moved on enough (0.7 pixels) for a repaint, @p elapsed seconds
    /// after the last one.
    [[nodiscard]] bool repaintDue(double elapsed) const;

    // --- cursor and markers

    [[nodiscard]] double cursorTime() const { return mCursorTime; }
    [[nodiscard]] double cursorValue() const { return mCursorValue; }
    /// Stores the cursor and moves the range as the cursor mode says.
    void setCursorPosition(double x);
    /// Stores the cursor; the range stays, whatever the cursor mode.
    void setCursorInPlace(double x);
    /// The cursor's Y value, in the unit of the selected trace.
    void setCursorValue(double y);

    [[nodiscard]] double marker1() const { return mMarkers.first(); }
    [[nodiscard]] double marker2() const { return mMarkers.second(); }
    [[nodiscard]] const GraphMarkers& markers() const { return mMarkers; }
    void setMarker(double marker1, double marker2);
    /// Moves the nearer marker: marker 1 for a time left of the midpoint of both, else marker 2.
    void setNearerMarker(double time);
    /// Swaps the markers if marker 1 is later than marker 2.
    void sortMarkers();
    [[nodiscard]] double markerDistance() const { return marker2() - marker1(); }
    void addTopMarker(unsigned int number, double time);
    [[nodiscard]] const std::vector<TopMarker>& topMarkers() const { return mTopMarkers; }

    // --- modes and scales

    [[nodiscard]] eCursorMode cursorMode() const { return mCursorMode; }
    void setCursorMode(eCursorMode mode);
    [[nodiscard]] eGraphMode graphMode() const { return mGraphMode; }
    /// Also marks the frames for recomputation at the next setTime().
    void setGraphMode(eGraphMode mode);
    [[nodiscard]] eDisplayMode displayMode() const { return mDisplayMode; }
    void setDisplayMode(eDisplayMode mode);
    /// Offline: last values are not repeated at the current time.
    void setOfflineMode(bool on);
    [[nodiscard]] bool offlineMode() const { return mOffline; }

    [[nodiscard]] const GraphScaling& scaling() const { return mScaling; }
    /// For a change of the rule, which takes effect at the next calcFrame().
    [[nodiscard]] GraphScaling& changeScaling()
    {
        touch();
        return mScaling;
    }

private:
    void store(ParStruct& parameter, double value, bool hold);
    void repeatHeldValues();
    void updateScales();
    void updateExtent();
    void changeRange(const GraphTimeRange& range);

    GraphTimeRange mRange;
    int mPlotWidth = 10;
    double mCurrentTime = 0.0;
    double mLatestTime = 0.0; ///< of all samples
    std::uint64_t mTimeStep = 0;
    bool mSampling = false;
    bool mRecalcPending = false; ///< rebuild at the next setTime()
    bool mFramesStale = false;   ///< rebuild at the next calcFrame()
    GraphRecalc mRecalc;

    double mCursorTime = 0.0;
    double mCursorValue = 0.0;
    GraphMarkers mMarkers;
    std::vector<TopMarker> mTopMarkers;

    eCursorMode mCursorMode = CursorFloating;
    eGraphMode mGraphMode = GraphManual;
    eDisplayMode mDisplayMode = DisplaySingle;
    bool mOffline = false;

    GraphScaling mScaling;
    GraphYScale mCommonScale;
    bool mHasExtent = false;
    double mExtentFirst = 0.0;
    double mExtentLast = 0.0;
};

} // namespace VELIX
