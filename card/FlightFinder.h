#pragma once

#include <optional>

namespace VELIX {

/// Cuts flights out of a series of ground speeds.
///
/// Take-off needs a sample above 50 and eleven more not below it, landing one below 40 and ten
/// more not above it: a hysteresis that taxiing and gusts do not cross. Speeds are in the unit in
/// which they are shown.
class FlightFinder
{
public:
    struct Flight
    {
        double startTime = 0.0;   ///< s, 30 s before take-off, not below 0
        double stopTime = 0.0;    ///< s, 30 s after landing
        double takeoffTime = 0.0; ///< s, sample that confirmed the take-off
        double landingTime = 0.0; ///< s, sample that confirmed the landing
    };

    /// Takes the next sample; returns a flight if this sample confirms its landing.
    std::optional<Flight> add(double time, double speed);

private:
    enum class State { Ground, TakeoffCandidate, Flying, LandingCandidate };

    void onGround(double speed);
    void onTakeoffCandidate(double time, double speed);
    bool isLanded(double speed);
    std::optional<Flight> landed(double time);

    State mState = State::Ground;
    int mCount = 0;
    Flight mFlight;
};

} // namespace VELIX
