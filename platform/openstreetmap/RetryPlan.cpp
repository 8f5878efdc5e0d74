#include "platform/openstreetmap/RetryPlan.h"

#include <algorithm>
#include <cmath>

namespace OpenStreet {

namespace {

constexpr double kFirstPause = 2.0;
constexpr double kLongestPause = 300.0;
/// So many tiles are remembered; then all are tried anew.
constexpr std::size_t kMostTiles = 20000;

} // namespace

void RetryPlan::Pause::extend(double now)
{
    until = now + std::min(kFirstPause * std::pow(2.0, std::min(failures, 20)), kLongestPause);
    ++failures;
}

void RetryPlan::failed(const TileAddress& tile, Failure failure, double now)
{
    if (mTiles.size() >= kMostTiles) {
        mTiles.clear();
    }
    mTiles[tile].extend(now);
    // Requests that ran side by side fail side by side: they count once.
    if (failure == Failure::Server && now >= mServer.until) {
        mServer.extend(now);
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
