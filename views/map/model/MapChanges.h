#pragma once

#include <bitset>

namespace VELIX {

/// What has changed on the map since its last frame: what the next one has to make again, and
/// whether that frame is due.
class MapChanges
{
public:
    enum class Part {
        Record, ///< another record: lines and view
        Lines,  ///< the lines of the path alone
        View    ///< the path is to be fitted into the window
    };

    /// Has a frame drawn.
    void mark() { mFrame = true; }
    /// Has a part made again, with a frame.
    void mark(Part part);
    /// Returns whether a part is to be made again, and takes that as done.
    bool take(Part part);
    /// Takes all parts as done.
    void takeAll() { mParts.reset(); }

    /// Whether tiles came since the last frame, or are still to come.
    void setLoading(bool loading) { mLoading = loading; }
    /// Has later changes wait for the next frame; time in seconds, as for isDue().
    void beginFrame(double now);
    /// Whether to draw: after a change, while the map moves, and when the last frame is too old.
    [[nodiscard]] bool isDue(bool moving, double now) const;

private:
    bool mFrame = true;
    std::bitset<3> mParts;
    bool mLoading = false;
    double mLastFrame = 0.0; ///< s
};

} // namespace VELIX
