#pragma once

namespace VELIX {

/// Counts the recomputations that follow a change of range or size, so that the final size and
/// range of a widget are caught. The owner's timer calls step() kIntervalMs after each start.
class GraphRecalc
{
public:
    static constexpr int kIntervalMs = 50;

    /// Four recomputations are to come.
    void start()
    {
        mCountdown = kMore;
        mRunning = true;
    }
    /// A single one is to come, or what is left of four.
    void startTimer() { mRunning = true; }
    /// One has been made. @return whether the timer is to be started again
    bool step()
    {
        mRunning = mCountdown > 0;
        mCountdown = mCountdown > -1 ? mCountdown - 1 : -1;
        return mRunning;
    }
    [[nodiscard]] bool running() const { return mRunning; }
    /// Counts down to -1.
    [[nodiscard]] int countdown() const { return mCountdown; }

private:
    static constexpr int kMore = 3; ///< after the first one
    bool mRunning = false;
    int mCountdown = -1;
};

} // namespace VELIX
