#include "views/graph/widget/GraphCurve.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// Pixels beyond the area at which lines are cut: more than any width of a line.
constexpr double kBeyond = 16.0;
/// Pixels beyond the area to which values are limited. Lines to values far outside the scale
/// become a little steeper or flatter there, which cannot be seen.
constexpr double kFar = 50000.0;
/// Pixels that two neighbouring columns must have in common to look connected without a line.
constexpr double kSolid = 2.0;

} // namespace

void GraphCurve::build(const std::deque<GraphTrace::FrameType>& frames, const Target& target)
{
    mVertices.clear();
    mStarts.clear();
    mSizes.clear();
    mConnected = false;
    mPenThere = false;
    mColumn = {};
    if (target.area.isEmpty() || !(target.stop > target.start)) {
        return;
    }
    mLeft = target.area.left() - kBeyond;
    mRight = target.area.right() + kBeyond;
    mTop = target.area.top() - kFar;
    mBottom = target.area.bottom() + kFar;
    for (const GraphTrace::FrameType& frame : frames) {
        addFrame(frame, target);
    }
    endStrips();
}

void GraphCurve::addFrame(const GraphTrace::FrameType& frame, const Target& target)
{
    const double x = target.area.left() + (frame.startTime - target.start) * target.area.width() /
                                              (target.stop - target.start);
    const auto yOf = [&](double value) {
        const double y =
            target.area.top() + (1.0 - target.scale.fraction(value)) * target.area.height();
        return std::clamp(y, mTop, mBottom);
    };
    if (frame.gapBefore) {
        mConnected = false;
    }
    if (frame.state > 3 && x >= mLeft && x <= mRight) {
        addColumn(std::floor(x) + 0.5, yOf(frame.slotA), yOf(frame.slotB), yOf(frame.lastValue));
        return;
    }
    mColumn.valid = false;
    lineTo({x, yOf(frame.slotA)});
    if (frame.state >= 3) {
        lineTo({x, yOf(frame.slotB)});
    }
    if (frame.state > 3) {
        lineTo({x, yOf(frame.lastValue)});
    }
}

// Of more than two samples in a pixel column only the extremes can be seen. They are drawn as one
// line through the middle of the column, and columns that touch need no line between them: noise
// takes a quarter of the ink that way, and the result is the same.
void GraphCurve::addColumn(double x, double first, double second, double last)
{
    const Column column{std::min(first, second), std::max(first, second), true};
    const double common =
        std::min(column.bottom, mColumn.bottom) - std::max(column.top, mColumn.top);
    const double step = x - mLast.x;
    // Frames are a little wider than a column, so that one is left out now and then.
    if (mConnected && mColumn.valid && common >= kSolid && step >= 0.0 && step < 2.5) {
        for (double drawn = std::min(mLast.x + 1.0, x); drawn <= x; drawn += 1.0) {
            vertical(drawn, column.top, column.bottom);
        }
    } else {
        const bool topFirst =
            mConnected && std::abs(column.top - mLast.y) < std::abs(column.bottom - mLast.y);
        lineTo({x, topFirst ? column.top : column.bottom});
        lineTo({x, topFirst ? column.bottom : column.top});
    }
    mPenThere = false;
    mLast = {x, last};
    mColumn = column;
}

void GraphCurve::vertical(double x, double from, double to)
{
    startStrip();
    push({x, from});
    push({x, to});
}

void GraphCurve::lineTo(const Point& point)
{
    const Point from = mConnected ? mLast : point;
    const bool penThere = mConnected && mPenThere;
    mLast = point;
    mConnected = true;
    mPenThere = false;
    if (std::max(from.x, point.x) < mLeft || std::min(from.x, point.x) > mRight) {
        return;
    }
    const auto cut = [&](const Point& end) {
        const double x = std::clamp(end.x, mLeft, mRight);
        const double part = x == end.x ? 0.0 : (x - from.x) / (point.x - from.x);
        return x == end.x ? end : Point{x, from.y + part * (point.y - from.y)};
    };
    if (!penThere) {
        startStrip();
        push(cut(from));
    }
    if (from.x != point.x || from.y != point.y) {
        push(cut(point));
    }
    mPenThere = point.x >= mLeft && point.x <= mRight;
}

void GraphCurve::startStrip()
{
    mStarts.push_back(static_cast<int>(mVertices.size()));
}

void GraphCurve::endStrips()
{
    for (std::size_t strip = 0; strip < mStarts.size(); ++strip) {
        const bool last = strip + 1 == mStarts.size();
        const int end = last ? static_cast<int>(mVertices.size()) : mStarts[strip + 1];
        mSizes.push_back(end - mStarts[strip]);
    }
}

void GraphCurve::push(const Point& point)
{
    mVertices.push_back({static_cast<float>(point.x), static_cast<float>(point.y)});
}

} // namespace VELIX
