#include "views/graph/model/GraphTimeRange.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

GraphTimeRange::GraphTimeRange(double xmin, double xmax)
{
    set(xmin, xmax);
}

void GraphTimeRange::set(double xmin, double xmax)
{
    if (std::isfinite(xmin) && std::isfinite(xmax)) {
        mXmin = xmin;
        mXmax = xmax;
    }
}

double GraphTimeRange::span() const
{
    return std::max(mXmax - mXmin, kMinSpan);
}

void GraphTimeRange::setXmin(double xmin)
{
    set(xmin, mXmax);
}

void GraphTimeRange::setXmax(double xmax)
{
    set(mXmin, xmax);
}

void GraphTimeRange::moveStartTo(double t0)
{
    set(t0, t0 + (mXmax - mXmin));
}

void GraphTimeRange::moveEndTo(double t1)
{
    set(t1 - (mXmax - mXmin), t1);
}

void GraphTimeRange::centerOn(double time)
{
    const double half = (mXmax - mXmin) / 2.0;
    set(time - half, time + half);
}

void GraphTimeRange::setSpanFromStart(double span)
{
    set(mXmin, mXmin + std::clamp(span, kMinSpan, kMaxSpan));
}

void GraphTimeRange::setSpanFromEnd(double span)
{
    set(mXmax - std::clamp(span, kMinSpan, kMaxSpan), mXmax);
}

bool GraphTimeRange::zoomAbout(double pivot, double factor)
{
    const double xmin = pivot - factor * (pivot - mXmin);
    const double xmax = pivot - factor * (pivot - mXmax);
    // Written so that a range that is not a number is refused as well.
    if (!(xmax - xmin >= kMinSpan && xmax - xmin <= kMaxSpan)) {
        return false;
    }
    set(xmin, xmax);
    return true;
}

} // namespace VELIX
