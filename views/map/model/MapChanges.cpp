#include "views/map/model/MapChanges.h"

#include <cmath>
#include <cstddef>

namespace VELIX {

namespace {

constexpr double kLongest = 1.0; // s without a frame
/// The same while tiles come: a frame for each of them would take most of the time.
constexpr double kLongestLoading = 0.04;

} // namespace

void MapChanges::mark(Part part)
{
    mParts.set(static_cast<std::size_t>(part));
    mFrame = true;
}

bool MapChanges::take(Part part)
{
    const bool isMarked = mParts.test(static_cast<std::size_t>(part));
    mParts.reset(static_cast<std::size_t>(part));
    return isMarked;
}

void MapChanges::beginFrame(double now)
{
    mFrame = false;
    mLastFrame = now;
}

bool MapChanges::isDue(bool moving, double now) const
{
    // A clock that was set back must not stop the map.
    const double age = std::abs(now - mLastFrame);
    return mFrame || moving || age > (mLoading ? kLongestLoading : kLongest);
}

} // namespace VELIX
