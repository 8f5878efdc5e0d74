#include "views/graph/model/GraphYScale.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// Beyond these, distances between values would overflow.
constexpr double kLargest = 1e300;
/// Below this distance values are drawn as one line in the middle of the scale.
constexpr double kFlat = 0.001;
constexpr double kFlatMargin = 0.0001;

GraphYScale withMargin(double low, double high, double margin)
{
    // A margin that gets lost in large values would leave a scale without height.
    const double least = std::max(std::abs(low), std::abs(high)) * 1e-14;
    margin = std::max(margin, least);
    return {low - margin, high + margin};
}

} // namespace

GraphYScale GraphYScale::autoscale(double low, double high, double spread)
{
    low = std::clamp(low, -kLargest, kLargest);
    high = std::clamp(high, -kLargest, kLargest);
    const double span = high - low;
    return withMargin(low, high, span < kFlat ? kFlatMargin : spread * span);
}

GraphYScale GraphYScale::fixed(double a, double b)
{
    const double low = std::clamp(std::min(a, b), -kLargest, kLargest);
    const double high = std::clamp(std::max(a, b), -kLargest, kLargest);
    return low < high ? GraphYScale{low, high} : withMargin(low, high, kFlatMargin);
}

} // namespace VELIX
