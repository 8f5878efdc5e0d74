#pragma once

#include <functional>

namespace VELIX {

/// What the replay is doing. Other windows see these numbers.
enum EReplayState : int { eReplayStopped = 0, eReplayRunning = 1, eReplayPaused = 2 };

/// The common time cursor and the clock that moves it through a record.
///
/// Steps follow the time that really passed, so that a busy machine shows fewer positions but
/// does not fall behind. Record times are seconds on the record's own axis.
class ReplayClock
{
public:
    using Now = std::function<double()>;

    /// now: seconds since any fixed moment.
    explicit ReplayClock(Now now);

    EReplayState state() const { return mState; }
    double cursor() const { return mCursor; }
    double start() const { return mStart; }
    double stop() const { return mStop; }
    double speed() const { return mSpeed; }

    /// Takes a new record: the cursor goes to its start, a running replay continues from there.
    void setRecord(double start, double stop);
    void setCursor(double seconds) { mCursor = seconds; }
    /// Moves the cursor by some seconds, but not out of the record.
    void step(double seconds);
    /// Sets the speed.
    /// factor: seconds of the record per second that passes
    void setSpeed(double factor) { mSpeed = factor; }

    /// Starts, pauses or resumes the replay.
    void toggle();
    /// Ends the replay and returns to the start of the record.
    void rewind();
    /// Moves the cursor by the time that passed since the last tick; true once it is beyond the
    /// record.
    [[nodiscard]] bool tick();

private:
    Now mNow;
    EReplayState mState = eReplayStopped;
    double mLastTick = 0.0;
    double mCursor = 0.0;
    double mSpeed = 1.0;
    double mStart = 0.0;
    double mStop = 0.0;
};

} // namespace VELIX
