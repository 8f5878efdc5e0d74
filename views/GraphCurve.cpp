#include "views/GraphCurve.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// Pixels beyond the area at which lines are cut: more than any width of a line.
constexpr double kBeyond = 16.0;
/// Pixels beyond the area to which values are limited. Lines to values far outside the scale
/// become a little steeper or flatter there, which nobody sees.
constexpr double kFar = 50'000.0;

} // namespace

void GraphCurve::build(const std::deque<GraphTrace::FrameType>& frames, const Target& target)
{
    mVertices.clear();
    mStarts.clear();
    mConnected = false;
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
}

int GraphCurve::stripSize(std::size_t strip) const
{
    const bool last = strip + 1 == mStarts.size();
    return (last ? static_cast<int>(mVertices.size()) : mStarts[strip + 1]) - mStarts[strip];
}

void GraphCurve::addFrame(const GraphTrace::FrameType& frame, const Target& target)
{
    const double x = target.area.left() + (frame.startTime - target.start) * target.area.width() /
                                              (target.stop - target.start);
    const auto pointAt = [&](double value) {
        const double y =
            target.area.top() + (1.0 - target.scale.fraction(value)) * target.area.height();
        return Point{x, std::clamp(y, mTop, mBottom)};
    };
    Point first = pointAt(frame.slotA);
    if (frame.gapBefore) {
        mConnected = false;
    }
    if (frame.state < 3) {
        mConnected ? lineTo(first) : moveTo(first);
        return;
    }
    Point second = pointAt(frame.slotB);
    // Of three and more values only the extremes are known, not their order: the nearer one first
    // gives the same picture with half the ink.
    if (frame.state > 3 && mConnected &&
        std::abs(second.y - mLast.y) < std::abs(first.y - mLast.y)) {
        std::swap(first, second);
    }
    mConnected ? lineTo(first) : moveTo(first);
    lineTo(second);
    if (frame.state > 3) {
        lineTo(pointAt(frame.lastValue));
    }
}

void GraphCurve::moveTo(const Point& point)
{
    mConnected = true;
    mLast = point;
    startStrip();
    if (point.x >= mLeft && point.x <= mRight) {
        push(point);
    }
}

void GraphCurve::lineTo(const Point& point)
{
    const Point from = mLast;
    mLast = point;
    const double low = std::min(from.x, point.x);
    const double high = std::max(from.x, point.x);
    if (high < mLeft || low > mRight) {
        return;
    }
    const auto cutAt = [&](double x) {
        const double part = (x - from.x) / (point.x - from.x);
        return Point{x, from.y + part * (point.y - from.y)};
    };
    if (from.x < mLeft || from.x > mRight) {
        startStrip();
        push(cutAt(from.x < mLeft ? mLeft : mRight));
    }
    if (point.x < mLeft || point.x > mRight) {
        push(cutAt(point.x < mLeft ? mLeft : mRight));
    } else {
        push(point);
    }
}

void GraphCurve::startStrip()
{
    const int start = static_cast<int>(mVertices.size());
    if (mStarts.empty() || mStarts.back() != start) {
        mStarts.push_back(start);
    }
}

void GraphCurve::push(const Point& point)
{
    mVertices.push_back({static_cast<float>(point.x), static_cast<float>(point.y)});
}

} // namespace VELIX
