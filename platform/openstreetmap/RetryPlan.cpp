#include "platform/openstreetmap/RetryPlan.h"

#include <algorithm>
#include <cmath>

namespace OpenStreet {

namespace {

constexpr double kLongestGranted = 3600.0;
/// So many tiles are remembered; then all are tried again.
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

void RetryPlan::failed(const TileAddress& tile, Failure failure, double now, double pause)
{
    if (mTiles.size() >= kMostTiles) {
        mTiles.clear();
    }
    extend(mTiles[tile], now);
    // Requests that ran side by side fail side by side: they count once.
    if (failure != Failure::Tile && now >= mServer.until) {
        extend(mServer, now);
        mRefused = false;
    }
    if (failure == Failure::Refusal) {
        mServer.until = std::max(mServer.until, now + std::min(pause, kLongestGranted));
        mRefused = true;
    }
}

void RetryPlan::succeeded(const TileAddress& tile, double now)
{
    mTiles.erase(tile);
    // A request that was under way when another one was refused does not end the pause.
    if (!mRefused || now >= mServer.until) {
        mServer = {};
    }
}

bool RetryPlan::mayAsk(const TileAddress& tile, double now) const
{
    const auto found = mTiles.find(tile);
    return now >= mServer.until && (found == mTiles.end() || now >= found->second.until);
}

void RetryPlan::retry()
{
    mTiles.clear();
    if (!mRefused) {
        mServer = {};
    }
}

void RetryPlan::clear()
{
    mTiles.clear();
    mServer = {};
    mRefused = false;
}

} // namespace OpenStreet
