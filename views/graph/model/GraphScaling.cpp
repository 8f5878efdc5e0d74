#include "views/graph/model/GraphScaling.h"

#include <cmath>

namespace VELIX {

void GraphScaling::setSpread(double spread)
{
    if (std::isfinite(spread) && spread >= 0.0) {
        mSpread = spread;
    }
}

void GraphScaling::setYmin(double ymin)
{
    if (std::isfinite(ymin)) {
        mYmin = ymin;
    }
}

void GraphScaling::setYmax(double ymax)
{
    if (std::isfinite(ymax)) {
        mYmax = ymax;
    }
}

GraphYScale GraphScaling::fitted(double low, double high) const
{
    return GraphYScale::autoscale(low, high, mSpread);
}

} // namespace VELIX
