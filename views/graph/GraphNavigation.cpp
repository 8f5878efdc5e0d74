#include "views/graph/GraphNavigation.h"

#include <algorithm>

namespace VELIX::GraphNavigation {

namespace {

constexpr double kZoomFactor = 0.97;
constexpr double kLargestZoomedIn = 5000.0; // s
constexpr double kLeastZoomedOut = 1.0;     // s
constexpr double kPageMargin = 0.1;
constexpr double kEventRange = 30.0; // s

} // namespace

double zoomedIn(double width)
{
    return std::min(width * kZoomFactor, kLargestZoomedIn);
}

double zoomedOut(double width)
{
    return std::max(width / kZoomFactor, kLeastZoomedOut);
}

GraphTimeRange paged(const GraphTimeRange& visible, double cursor)
{
    const double margin = kPageMargin * visible.span();
    GraphTimeRange range = visible;
    if (cursor < range.xmin() + margin) {
        range.moveStartTo(cursor - margin);
    }
    if (cursor > range.xmax() - margin) {
        range.moveEndTo(cursor + margin);
    }
    return range;
}

GraphTimeRange wholeRecord(double start, double stop)
{
    const auto duration = static_cast<float>(stop - start);
    if (!(duration > 0.0F)) {
        return {start - 0.5, start + 0.5};
    }
    const auto margin = static_cast<double>(duration / 10.0F);
    return {start - margin, stop + margin};
}

GraphTimeRange around(double time)
{
    return {time - kEventRange / 2.0, time + kEventRange / 2.0};
}

} // namespace VELIX::GraphNavigation
