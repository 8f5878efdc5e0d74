#include "views/replay/ReplayClock.h"

#include <algorithm>
#include <utility>

namespace VELIX {

ReplayClock::ReplayClock(Now now) : mNow(std::move(now)) {}

void ReplayClock::setRecord(double start, double stop)
{
    mStart = start;
    mStop = stop;
    mCursor = start;
    mLastTick = mNow(); // the time that loading took is no part of the replay
}

void ReplayClock::step(double seconds)
{
    mCursor = std::max(mStart, std::min(mCursor + seconds, mStop));
}

void ReplayClock::toggle()
{
    if (mState == eReplayRunning) {
        mState = eReplayPaused;
        return;
    }
    mState = eReplayRunning;
    mLastTick = mNow();
}

void ReplayClock::rewind()
{
    mState = eReplayStopped;
    mCursor = mStart;
}

bool ReplayClock::tick()
{
    const double now = mNow();
    mCursor += (now - mLastTick) * mSpeed;
    mLastTick = now;
    return mCursor > mStop;
}

} // namespace VELIX
