#include "platform/openstreetmap/RetryPlan.h"

#include <algorithm>
#include <cmath>

namespace OpenStreet {

namespace {

/// So many tiles are remembered; then all are tried anew.
constexpr std::size_t kMostTiles = 20000;

} // namespace

void RetryPlan::setPauses(double first, double longest)
{
    mFirstPause = first;
    mLongestPause = longest;
}

void RetryPlan::extend(Pause& pause, double now) const
{
    const double doubled = mFirstPause * std::pow(2.0, std::min(pause.failures, 20));
    pause.until = now + std::min(doubled, mLongestPause);
    ++pause.failures;
}

void RetryPlan::failed(const TileAddress& tile, Failure failure, double now)
{
    if (mTiles.size() >= kMostTiles) {
        mTiles.clear();
    }
    extend(mTiles[tile], now);
    // Requests that ran side by side fail side by side: they count once.
    if (failure == Failure::Server && now >= mServer.until) {
        extend(mServer, now);
    }
}

void RetryPlan::succeeded(const TileAddress& tile)
{
    mTiles.erase(tile);
    mServer = {};
}

bool RetryPlan::mayAsk(const TileAddress& tile, double now) const
{
    const auto found = mTiles.find(tile);
    return now >= mServer.until && (found == mTiles.end() || now >= found->second.until);
}

void RetryPlan::clear()
{
    mTiles.clear();
    mServer = {};
}

} // namespace OpenStreet
