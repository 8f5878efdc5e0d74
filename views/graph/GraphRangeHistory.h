#pragma once

#include "views/graph/model/GraphTimeRange.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace VELIX {

/// The time ranges that the user has looked at, to step back and forth through as in a browser.
class GraphRangeHistory
{
public:
    static constexpr std::size_t kCapacity = 50;

    void clear();
    /// The user went to another range: it becomes the current one, what was ahead is forgotten.
    void visit(const GraphTimeRange& range);
    /// The range moved without the user choosing another one, as with the cursor: no step of its
    /// own, but where the current step leads back to.
    void follow(const GraphTimeRange& range);

    bool canGoBack() const { return mCurrent > 0; }
    bool canGoForward() const { return mCurrent + 1 < mRanges.size(); }
    /// The range visited before, which becomes the current one; nothing at the oldest.
    std::optional<GraphTimeRange> back();
    /// The range that back() came from; nothing at the latest.
    std::optional<GraphTimeRange> forward();

private:
    std::deque<GraphTimeRange> mRanges;
    std::size_t mCurrent = 0;
};

} // namespace VELIX
