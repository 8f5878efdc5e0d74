#include "views/graph/GraphRangeHistory.h"

namespace VELIX {

void GraphRangeHistory::clear()
{
    mRanges.clear();
    mCurrent = 0;
}

void GraphRangeHistory::visit(const GraphTimeRange& range)
{
    if (!mRanges.empty()) {
        if (mRanges[mCurrent] == range) {
            return;
        }
        mRanges.resize(mCurrent + 1);
    }
    mRanges.push_back(range);
    if (mRanges.size() > kCapacity) {
        mRanges.pop_front();
    }
    mCurrent = mRanges.size() - 1;
}

void GraphRangeHistory::follow(const GraphTimeRange& range)
{
    if (mRanges.empty()) {
        visit(range);
    } else {
        mRanges[mCurrent] = range;
    }
}

std::optional<GraphTimeRange> GraphRangeHistory::back()
{
    if (!canGoBack()) {
        return std::nullopt;
    }
    return mRanges[--mCurrent];
}

std::optional<GraphTimeRange> GraphRangeHistory::forward()
{
    if (!canGoForward()) {
        return std::nullopt;
    }
    return mRanges[++mCurrent];
}

} // namespace VELIX
