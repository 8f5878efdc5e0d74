#pragma once

#include "tools/democard/Airfield.h"
#include "tools/democard/FlightPlan.h"
#include "tools/democard/SmoothNoise.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace VELIX::Demo {

/// Where the aircraft is and how it moves.
struct FlightState
{
    PlanePoint position;
    double height = 0.0;        ///< m above the airfield
    double heading = 0.0;       ///< rad from north
    double bank = 0.0;          ///< rad, right wing down positive
    double airspeed = 0.0;      ///< m/s
    double groundSpeed = 0.0;   ///< m/s
    double verticalSpeed = 0.0; ///< m/s
    double loadFactor = 1.0;    ///< g
    double throttle = 0.0;      ///< %, lever
    double flaps = 0.0;         ///< degrees
    bool airborne = false;
};

/// Flies a plan: a point mass with limited bank, climb and acceleration, in a light wind.
class FlightModel
{
public:
    /// At rest on the apron.
    explicit FlightModel(std::uint64_t seed);

    /// Goes on from where the last legs ended.
    void setLegs(const std::vector<Leg>& legs);
    bool finished() const { return mLeg >= mLegs.size(); }
    /// The leg being flown; only while not finished.
    const Leg& leg() const { return mLegs[mLeg]; }
    const FlightState& state() const { return mState; }

    void step(double dt);

private:
    bool legEnds() const;
    void nextLeg();
    void moveLevers(double dt);
    void steer(double dt);
    void changeSpeed(double dt);
    void changeHeight(double dt);
    void move(double dt);
    PlanePoint target() const;
    double distanceTo(const PlanePoint& p, double& ahead) const;

    std::vector<Leg> mLegs;
    std::size_t mLeg = 0;
    double mElapsed = 0.0; ///< s in the leg
    FlightState mState;
    double mDrift = 0.0; ///< 0: wheels hold the track, 1: the wind carries the aircraft along
    double mTrackEast = 0.0;
    double mTrackNorth = 0.0; ///< direction of the movement over ground, length 1
    SmoothNoise mGusts;
    SmoothNoise mThermals;
    SmoothNoise mBumps;
    SmoothNoise mHand; ///< the pilot's, on the throttle
};

} // namespace VELIX::Demo
