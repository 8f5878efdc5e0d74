#pragma once

#include "views/graph/GraphRangeHistory.h"

namespace VELIX {

/// Finds out which of the ranges that a graph shows the user has visited, and leads back and forth
/// through them.
class GraphVisits
{
public:
    /// Forgets all visits; the first is that of a range.
    void restart(const GraphTimeRange& range);

    /// Takes note of the range shown: one that was not reported by follow() is the user's choice.
    /// To be called before the range is changed by anyone else. @return whether it is a new choice
    bool note(const GraphTimeRange& shown);
    /// Takes note of a range that moved with the cursor, which is no visit.
    void follow(const GraphTimeRange& shown);
    /// Counts a range as visited once it rests for some ticks: holding a zoom button is one visit,
    /// not twenty.
    void tick(const GraphTimeRange& shown);

    bool canGoBack() const { return mHistory.canGoBack() || mPending; }
    bool canGoForward() const { return mHistory.canGoForward() && !mPending; }
    /// The range to show instead of the one shown; nothing at the end of the way.
    std::optional<GraphTimeRange> back(const GraphTimeRange& shown);
    std::optional<GraphTimeRange> forward(const GraphTimeRange& shown);

private:
    void settle(const GraphTimeRange& shown);

    GraphRangeHistory mHistory;
    GraphTimeRange mSeen;
    bool mPending = false; ///< the user changed the range a moment ago
    int mStillTicks = 0;   ///< ticks since then without a further change
};

} // namespace VELIX
