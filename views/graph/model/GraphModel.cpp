#include "views/graph/model/GraphModel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace VELIX {

namespace {

constexpr double kZoomFactor = 0.9;
constexpr double kRepaintPixels = 0.7;

} // namespace

GraphModel::GraphModel() = default;

// --- feeding

void GraphModel::setActive(unsigned int i, bool active)
{
    if (i < parameters().size()) {
        mFramesStale = mFramesStale || (active && !parameters()[i].active);
        parameters()[i].active = active;
        touch();
    }
}

void GraphModel::setTime(double t)
{
    if (std::isnan(t)) {
        return;
    }
    const double time = std::clamp(t, 0.0, kSecondsPerDay);
    if (mGraphMode == GraphAutomatic) {
        // Frames grow with new samples only: those of older ones that come into view are missing.
        mFramesStale = mFramesStale || time < mRange.xmax() || mLatestTime > mRange.xmax();
        mRange.moveEndTo(time);
    }
    mCurrentTime = time;
    mSampling = true;
    ++mTimeStep;
    touch();
    if (mRecalcPending) {
        recalcFrameBuffer();
    }
}

void GraphModel::putValue(unsigned int i, double value, bool hold)
{
    if (i >= parameters().size() || !mSampling) {
        return;
    }
    store(parameters()[i], value, hold);
    touch();
}

void GraphModel::store(ParStruct& parameter, double value, bool hold)
{
    parameter.trace.putValue(mCurrentTime, value, hold, secondsPerPixel(), mRange.xmax());
    parameter.newAt = mTimeStep;
    mLatestTime = std::max(mLatestTime, mCurrentTime);
}

bool GraphModel::hasNewValue(unsigned int i) const
{
    return i < parameters().size() && parameters()[i].newAt != 0 &&
           parameters()[i].newAt == mTimeStep;
}

void GraphModel::clear()
{
    for (ParStruct& parameter : parameters()) {
        parameter.trace.clear();
        parameter.newAt = 0;
    }
    mTopMarkers.clear();
    mHasExtent = false;
    mLatestTime = 0.0;
    mSampling = false;
    touch();
}

void GraphModel::reset()
{
    const GraphModel fresh;
    changeRange(fresh.mRange);
    mCursorTime = fresh.mCursorTime;
    mCursorValue = fresh.mCursorValue;
    mMarkers = fresh.mMarkers;
    mCursorMode = fresh.mCursorMode;
    mGraphMode = fresh.mGraphMode;
    mDisplayMode = fresh.mDisplayMode;
    mScaling = fresh.mScaling;
}

// --- values

double GraphModel::getCurrentAverageValue() const
{
    const unsigned int i = selectedTrace();
    return i == kNoTrace ? 0.0
                         : parameters()[i].trace.statistics(mRange.xmin(), mRange.xmax()).average;
}

GraphTrace::Statistics GraphModel::markerStatistics(unsigned int i) const
{
    if (i >= parameters().size()) {
        return {};
    }
    const GraphTrace& trace = parameters()[i].trace;
    return mMarkers.coincide() ? trace.statistics(mRange.xmin(), mRange.xmax())
                               : trace.statistics(mMarkers.start(), mMarkers.stop());
}

bool GraphModel::dataExtent(double& first, double& last) const
{
    first = mHasExtent ? mExtentFirst : 0.0;
    last = mHasExtent ? mExtentLast : 0.0;
    return mHasExtent;
}

// --- the visible range

void GraphModel::changeRange(const GraphTimeRange& range)
{
    mRange = range;
    mFramesStale = true;
    touch();
}

void GraphModel::setXmin(double xmin)
{
    GraphTimeRange range = mRange;
    range.setXmin(xmin);
    changeRange(range);
}

void GraphModel::setXmax(double xmax)
{
    GraphTimeRange range = mRange;
    range.setXmax(xmax);
    changeRange(range);
}

void GraphModel::setRange(const GraphTimeRange& range)
{
    changeRange(range);
}

void GraphModel::setT0(double t0)
{
    GraphTimeRange range = mRange;
    range.moveStartTo(t0);
    changeRange(range);
}

void GraphModel::setXrange(double width)
{
    if (std::isnan(width)) {
        return;
    }
    GraphTimeRange range = mRange;
    if (mGraphMode == GraphAutomatic) {
        range.setSpanFromEnd(width);
    } else {
        range.setSpanFromStart(width);
    }
    changeRange(range);
    startRecalc();
    recalcFrameBuffer();
}

void GraphModel::zoomToMarker()
{
    mGraphMode = GraphManual;
    changeRange({marker1(), std::max(marker2(), marker1() + GraphTimeRange::kMinSpan)});
    startRecalc();
    recalcFrameBuffer();
}

void GraphModel::zoomStep(double pivot, bool in)
{
    GraphTimeRange range = mRange;
    if (!range.zoomAbout(pivot, in ? kZoomFactor : 1.0 / kZoomFactor)) {
        return;
    }
    changeRange(range);
    if (!mRecalc.running()) {
        startRecalc();
    }
}

void GraphModel::pan(const GraphTimeRange& atPress, double seconds)
{
    mGraphMode = GraphManual;
    GraphTimeRange range = atPress;
    range.moveStartTo(atPress.xmin() + seconds);
    changeRange(range);
}

void GraphModel::setPlotWidth(int pixels)
{
    const int width = std::max(pixels, 1);
    if (width != mPlotWidth) {
        mPlotWidth = width;
        changeRange(mRange);
    }
}

double GraphModel::secondsPerPixel() const
{
    return mRange.span() / mPlotWidth;
}

// --- frames

void GraphModel::recalcFrameBuffer()
{
    for (ParStruct& parameter : parameters()) {
        if (parameter.active) {
            parameter.trace.recalcFrameBuffer(mRange.xmin(), mRange.xmax(), secondsPerPixel());
        }
    }
    mRecalcPending = false;
    mFramesStale = false;
}

void GraphModel::calcFrame()
{
    if (mFramesStale) {
        recalcFrameBuffer();
    }
    updateScales();
    updateExtent();
    if (mGraphMode == GraphAutomatic) {
        repeatHeldValues();
        for (ParStruct& parameter : parameters()) {
            parameter.trace.dropFramesBefore(mRange.xmin());
        }
    }
}

void GraphModel::updateScales()
{
    const GraphYScale fixed = mScaling.fixed();
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (ParStruct& parameter : parameters()) {
        const GraphTrace& trace = parameter.trace;
        parameter.yScale = fixed;
        if (mScaling.fitsValues() && trace.hasRange()) {
            parameter.yScale = mScaling.fitted(trace.minimum(), trace.maximum());
            if (parameter.active && parameter.visible) {
                low = std::min(low, trace.minimum());
                high = std::max(high, trace.maximum());
            }
        }
    }
    mCommonScale = low <= high ? mScaling.fitted(low, high) : fixed;
}

void GraphModel::updateExtent()
{
    mHasExtent = false;
    for (const ParStruct& parameter : parameters()) {
        const GraphTrace& trace = parameter.trace;
        if (!trace.isEmpty()) {
            mExtentFirst =
                mHasExtent ? std::min(mExtentFirst, trace.firstTime()) : trace.firstTime();
            mExtentLast =
                mHasExtent ? std::max(mExtentLast, trace.latestTime()) : trace.latestTime();
            mHasExtent = true;
        }
    }
}

void GraphModel::repeatHeldValues()
{
    if (mOffline) {
        return;
    }
    for (ParStruct& parameter : parameters()) {
        const GraphTrace& trace = parameter.trace;
        const bool behind = !trace.isEmpty() && trace.latestTime() <= mCurrentTime;
        if (parameter.active && behind && parameter.newAt != mTimeStep) {
            store(parameter, trace.lastValue(), true);
        }
    }
}

const GraphYScale& GraphModel::scaleOf(unsigned int i) const
{
    return mDisplayMode == DisplaySingle || i >= parameters().size() ? mCommonScale
                                                                     : parameters()[i].yScale;
}

bool GraphModel::stepRecalc()
{
    recalcFrameBuffer();
    return mRecalc.step();
}

bool GraphModel::repaintDue(double elapsed) const
{
    return elapsed > kRepaintPixels * secondsPerPixel();
}

// --- cursor and markers

void GraphModel::setCursorInPlace(double x)
{
    if (std::isfinite(x)) {
        mCursorTime = x;
        touchPointer();
    }
}

void GraphModel::setCursorPosition(double x)
{
    setCursorInPlace(x);
    if (mCursorMode == CursorFloating || !std::isfinite(x)) {
        return;
    }
    GraphTimeRange range = mRange;
    if (mCursorMode == CursorCenter) {
        range.centerOn(x);
    } else {
        range.moveEndTo(x);
    }
    changeRange(range);
}

void GraphModel::setCursorValue(double y)
{
    if (std::isfinite(y)) {
        mCursorValue = y;
        touchPointer();
    }
}

void GraphModel::setMarker(double marker1, double marker2)
{
    mMarkers.set(marker1, marker2);
    touchPointer();
}

void GraphModel::setNearerMarker(double time)
{
    mMarkers.setNearer(time);
    touchPointer();
}

void GraphModel::sortMarkers()
{
    mMarkers.sort();
    touchPointer();
}

void GraphModel::addTopMarker(unsigned int number, double time)
{
    if (std::isfinite(time)) {
        mTopMarkers.push_back({number, time});
        touchPointer();
    }
}

// --- modes

void GraphModel::setCursorMode(eCursorMode mode)
{
    mCursorMode = mode;
    touchPointer();
}

void GraphModel::setGraphMode(eGraphMode mode)
{
    mGraphMode = mode;
    mRecalcPending = true;
    touch();
}

void GraphModel::setDisplayMode(eDisplayMode mode)
{
    mDisplayMode = mode;
    touch();
}

void GraphModel::setOfflineMode(bool on)
{
    mOffline = on;
    touch();
}

} // namespace VELIX
