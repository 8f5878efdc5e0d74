#pragma once

#include "platform/openstreetmap/TileAddress.h"

#include <map>

namespace OpenStreet {

/// When a tile may be asked for again after failures: later and later, and not at all for a while
/// when the server itself cannot be reached. Times are seconds of any steady clock.
class RetryPlan
{
public:
    enum class Failure {
        Tile,   ///< the server answered, but with no tile
        Server, ///< no answer
        Refusal ///< the server wants no requests for now
    };

    /// Seconds after the first failure; each one more doubles it, up to the longest.
    void setPauses(double first, double longest);
    /// @param pause that the server asked for after a refusal; an hour at most is granted
    void failed(const TileAddress& tile, Failure failure, double now, double pause = 0.0);
    void succeeded(const TileAddress& tile, double now);
    [[nodiscard]] bool mayAsk(const TileAddress& tile, double now) const;
    /// Another try at once; but a server that refused is left alone for its time.
    void retry();
    /// For another server.
    void clear();

private:
    struct Pause
    {
        int failures = 0;
        double until = 0.0;
    };

    void extend(Pause& pause, double now) const;

    double mFirstPause = 2.0;
    double mLongestPause = 300.0;
    std::map<TileAddress, Pause> mTiles;
    Pause mServer;
    bool mRefused = false; ///< why the server is left alone
};

} // namespace OpenStreet
