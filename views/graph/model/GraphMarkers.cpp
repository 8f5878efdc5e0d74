#include "views/graph/model/GraphMarkers.h"

#include <cmath>
#include <utility>

namespace VELIX {

void GraphMarkers::set(double first, double second)
{
    if (std::isfinite(first) && std::isfinite(second)) {
        mFirst = first;
        mSecond = second;
    }
}

void GraphMarkers::setNearer(double time)
{
    const bool first = time < (mFirst + mSecond) / 2.0;
    set(first ? time : mFirst, first ? mSecond : time);
}

void GraphMarkers::sort()
{
    if (mFirst > mSecond) {
        std::swap(mFirst, mSecond);
    }
}

} // namespace VELIX
