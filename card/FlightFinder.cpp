#include "card/FlightFinder.h"

#include <algorithm>

namespace VELIX {

namespace {

constexpr double kTakeoffSpeed = 50.0;
constexpr double kLandingSpeed = 40.0;
constexpr int kConfirming = 10;  // samples beyond the first that must agree
constexpr double kMargin = 30.0; // s kept before take-off and after landing

} // namespace

std::optional<FlightFinder::Flight> FlightFinder::add(double time, double speed)
{
    switch (mState) {
    case State::Ground:
        onGround(speed);
        break;
    case State::TakeoffCandidate:
        onTakeoffCandidate(time, speed);
        break;
    case State::Flying:
    case State::LandingCandidate:
        if (isLanded(speed)) {
            return landed(time);
        }
        break;
    }
    return std::nullopt;
}

void FlightFinder::onGround(double speed)
{
    if (speed > kTakeoffSpeed) {
        mState = State::TakeoffCandidate;
        mCount = 0;
    }
}

void FlightFinder::onTakeoffCandidate(double time, double speed)
{
    if (speed < kTakeoffSpeed) {
        mState = State::Ground;
        mCount = 1;
    } else if (++mCount > kConfirming) {
        mState = State::Flying;
        mFlight = {std::max(0.0, time - kMargin), 0.0, time, 0.0};
    }
}

// The counter runs on from the take-off, and flying at exactly 40 (or at no number) counts like a
// landing candidate: both are kept for compatibility.
bool FlightFinder::isLanded(double speed)
{
    if (speed > kLandingSpeed) {
        mState = State::Flying;
        mCount = 1;
        return false;
    }
    if (mState == State::Flying && speed < kLandingSpeed) {
        mState = State::LandingCandidate;
        mCount = 1;
        return false;
    }
    return ++mCount > kConfirming;
}

std::optional<FlightFinder::Flight> FlightFinder::landed(double time)
{
    mState = State::Ground;
    mFlight.landingTime = time;
    mFlight.stopTime = time + kMargin;
    return mFlight;
}

} // namespace VELIX
