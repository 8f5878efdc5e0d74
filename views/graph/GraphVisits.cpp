#include "views/graph/GraphVisits.h"

namespace VELIX {

namespace {

constexpr int kTicksOfRest = 6; ///< a range that stays for that many ticks was visited

} // namespace

void GraphVisits::restart(const GraphTimeRange& range)
{
    mHistory.clear();
    mHistory.visit(range);
    mSeen = range;
    mPending = false;
}

bool GraphVisits::note(const GraphTimeRange& shown)
{
    if (shown == mSeen) {
        return false;
    }
    mSeen = shown;
    mPending = true;
    mStillTicks = 0;
    return true;
}

void GraphVisits::follow(const GraphTimeRange& shown)
{
    if (mPending) {
        mSeen = shown; // still the range that the user chose, moved along
    } else if (!(shown == mSeen)) {
        mSeen = shown;
        mHistory.follow(shown);
    }
}

void GraphVisits::tick(const GraphTimeRange& shown)
{
    if (!note(shown) && mPending && ++mStillTicks >= kTicksOfRest) {
        mPending = false;
        mHistory.visit(mSeen);
    }
}

void GraphVisits::settle(const GraphTimeRange& shown)
{
    note(shown);
    if (mPending) {
        mPending = false;
        mHistory.visit(mSeen);
    }
}

std::optional<GraphTimeRange> GraphVisits::back(const GraphTimeRange& shown)
{
    settle(shown);
    const auto range = mHistory.back();
    mSeen = range.value_or(mSeen);
    return range;
}

std::optional<GraphTimeRange> GraphVisits::forward(const GraphTimeRange& shown)
{
    settle(shown);
    const auto range = mHistory.forward();
    mSeen = range.value_or(mSeen);
    return range;
}

} // namespace VELIX
