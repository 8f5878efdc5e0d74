#include "tools/democard/FlightModel.h"

#include "tools/democard/PlainMath.h"

namespace VELIX::Demo {

namespace {

constexpr double kKmh = 1.0 / 3.6;
constexpr double kLiftOffSpeed = 97.0 * kKmh;   ///< through the air
constexpr double kTouchdownSpeed = 92.0 * kKmh; ///< through the air
constexpr RunwayPoint kAimingPoint{130.0, 0.0};
constexpr double kGlidePath = 0.075;  ///< metres of height per metre of distance
constexpr double kFlareHeight = 6.0;  ///< m
constexpr double kWindFrom = 4.01;    ///< rad: from 230 degrees
constexpr double kWindAtGround = 3.2; ///< m/s

} // namespace

FlightModel::FlightModel(std::uint64_t seed)
    : mGusts(seed + 1, 4.0), mThermals(seed + 2, 25.0), mBumps(seed + 3, 0.25), mHand(seed + 4, 3.0)
{
    mState.position = Airfield::toPlane(Airfield::kApron);
    mState.heading = Airfield::kHeading - 2.6;
    mTrackEast = sine(mState.heading);
    mTrackNorth = cosine(mState.heading);
}

void FlightModel::setLegs(const std::vector<Leg>& legs)
{
    mLegs = legs;
    mLeg = 0;
    mElapsed = 0.0;
}

void FlightModel::step(double dt)
{
    mGusts.next();
    mThermals.next();
    mBumps.next();
    mHand.next();
    moveLevers(dt);
    steer(dt);
    changeSpeed(dt);
    changeHeight(dt);
    move(dt);
    mElapsed += dt;
    if (legEnds()) {
        nextLeg();
    }
}

bool FlightModel::legEnds() const
{
    double ahead = 0.0;
    const double distance = distanceTo(Airfield::toPlane(leg().to), ahead);
    switch (leg().phase) {
    case EPhase::Hold:
        return mElapsed >= leg().seconds;
    case EPhase::Taxi:
        return distance < 7.0 || (ahead < 0.0 && distance < 35.0);
    case EPhase::TakeOff:
        return mState.height > 25.0;
    case EPhase::Climb:
        return mState.height > leg().height || distance < 350.0;
    case EPhase::Cruise:
        return distance < 350.0 || (ahead < 0.0 && distance < 1200.0);
    case EPhase::Final:
        return !mState.airborne;
    case EPhase::RollOut:
        return mState.groundSpeed < leg().speed * kKmh + 0.1;
    }
    return true;
}

void FlightModel::nextLeg()
{
    // A climb that reached its height needs none of its remaining corners.
    const bool high = leg().phase == EPhase::Climb && mState.height > leg().height;
    do {
        ++mLeg;
    } while (high && !finished() && leg().phase == EPhase::Climb);
    mElapsed = 0.0;
}

void FlightModel::moveLevers(double dt)
{
    // Take-off power comes in over three seconds; nobody moves the lever in steps.
    const double wanted =
        leg().throttle + (leg().phase == EPhase::Hold ? 0.0 : mHand.value() * 0.5);
    mState.throttle = std::clamp(approach(mState.throttle, wanted, 30.0 * dt), 0.0, 100.0);
    double flaps = 0.0;
    if (leg().phase == EPhase::TakeOff || (leg().phase == EPhase::Climb && mState.height < 90.0)) {
        flaps = 10.0;
    } else if (leg().phase == EPhase::Final || leg().phase == EPhase::RollOut) {
        flaps = 35.0;
    }
    mState.flaps = approach(mState.flaps, flaps, 5.0 * dt);
}

/// The point to steer for: the leg's own, or one ahead on the centre line.
PlanePoint FlightModel::target() const
{
    double lookAhead = 0.0;
    switch (leg().phase) {
    case EPhase::TakeOff:
    case EPhase::RollOut:
        lookAhead = 70.0;
        break;
    case EPhase::Final:
        lookAhead = mState.height < 30.0 ? 250.0 : 500.0;
        break;
    default:
        return Airfield::toPlane(leg().to);
    }
    return Airfield::toPlane({Airfield::toRunway(mState.position).along + lookAhead, 0.0});
}

/// Distance (m) to a point; `ahead`: its part along the present track.
double FlightModel::distanceTo(const PlanePoint& p, double& ahead) const
{
    const double east = p.east - mState.position.east;
    const double north = p.north - mState.position.north;
    ahead = east * mTrackEast + north * mTrackNorth;
    return std::sqrt(east * east + north * north);
}

void FlightModel::steer(double dt)
{
    double bank = 0.0;
    if (leg().phase != EPhase::Hold) {
        const PlanePoint p = target();
        double ahead = 0.0;
        const double distance = std::max(distanceTo(p, ahead), 1.0);
        const double east = (p.east - mState.position.east) / distance;
        const double north = (p.north - mState.position.north) / distance;
        double right = east * mTrackNorth - north * mTrackEast; // sine of the angle to the target
        if (ahead < 0.0) {
            right = right < 0.0 ? -1.0 : 1.0;
        }
        if (mState.airborne) {
            const double limit = leg().towing ? 0.36 : 0.56; // 21 and 32 degrees
            // Close to the ground only the rudder keeps the centre line.
            const double share = std::clamp(mState.height / 40.0, 0.1, 1.0);
            bank = std::clamp(right * 2.2, -1.0, 1.0) * limit * share;
        } else {
            const double grip = std::min(mState.groundSpeed / 3.0, 1.0);
            const double most = mState.groundSpeed > 8.0 ? 0.12 : 0.42; // rad/s
            mState.heading += std::clamp(right * 1.4, -most, most) * grip * dt;
        }
    }
    bank += mState.airborne ? mBumps.value() * 0.012 : 0.0;
    mState.bank = approach(mState.bank, bank, 0.16 * dt);
    if (mState.airborne) {
        const double tangent = sine(mState.bank) / cosine(mState.bank);
        mState.heading += kGravity * tangent / mState.airspeed * dt;
    }
    mState.heading = wrapAngle(mState.heading);
}

void FlightModel::changeSpeed(double dt)
{
    double& v = mState.airborne ? mState.airspeed : mState.groundSpeed;
    const double wanted = leg().speed * kKmh;
    switch (leg().phase) {
    case EPhase::Hold:
        v = approach(v, 0.0, 0.9 * dt);
        break;
    case EPhase::Taxi:
        v = approach(v, wanted + mGusts.value() * 0.12, 0.7 * dt);
        break;
    case EPhase::TakeOff:
        // Thrust falls and drag grows with speed; the glider on the rope costs a quarter.
        if (mState.airborne) {
            v = approach(v, wanted, 0.6 * dt);
        } else {
            v += (mState.throttle / 100.0) * (leg().towing ? 1.72 : 2.2) * (1.0 - v / 55.0) * dt;
        }
        break;
    case EPhase::Climb:
    case EPhase::Cruise:
        v = approach(v, wanted + mGusts.value() * 0.5, 0.75 * dt);
        break;
    case EPhase::Final:
        v = mState.height < kFlareHeight ? approach(v, kTouchdownSpeed, 0.9 * dt)
                                         : approach(v, wanted + mGusts.value() * 0.5, 0.8 * dt);
        break;
    case EPhase::RollOut:
        v = approach(v, wanted, (v > 14.0 ? 0.9 : 1.35) * dt);
        break;
    }
}

void FlightModel::changeHeight(double dt)
{
    const double headwind = kWindAtGround * cosine(mState.heading - kWindFrom);
    if (!mState.airborne) {
        mState.airspeed = std::max(mState.groundSpeed + headwind + mGusts.value() * 0.4, 0.0);
        mState.height = 0.0;
        mState.verticalSpeed = 0.0;
        if (leg().phase == EPhase::TakeOff && mState.airspeed > kLiftOffSpeed) {
            mState.airborne = true;
        }
        return;
    }
    const double sink = leg().rate;
    double wanted = leg().height;
    if (leg().phase == EPhase::Final) {
        double ahead = 0.0;
        wanted = distanceTo(Airfield::toPlane(kAimingPoint), ahead) * kGlidePath;
        wanted = ahead < 0.0 ? 0.0 : wanted;
    }
    double rate = std::clamp((wanted - mState.height) * 0.2, -sink, sink);
    if (leg().phase == EPhase::Climb) {
        rate = leg().rate * (1.0 - mState.height / 6500.0);
    } else if (leg().phase == EPhase::TakeOff) {
        rate = 2.2;
    } else if (leg().phase == EPhase::Final && mState.height < kFlareHeight) {
        rate = -0.35 - mState.height * 0.28;
    } else if (leg().phase == EPhase::Final) {
        // Level until the glide path is met, then along it.
        rate = std::clamp(rate - mState.groundSpeed * kGlidePath, -sink, 0.0);
    }
    const double air = std::clamp((mState.height - 30.0) / 300.0, 0.0, 1.0);
    rate += mThermals.value() * 0.55 * air + mGusts.value() * 0.12 * air;
    mState.verticalSpeed = lag(mState.verticalSpeed, rate, dt, 1.4);
    mState.height += mState.verticalSpeed * dt;
    if (mState.height <= 0.0 && leg().phase == EPhase::Final) {
        mState.airborne = false;
    }
}

void FlightModel::move(double dt)
{
    const double s = sine(mState.heading);
    const double c = cosine(mState.heading);
    const bool free = mState.airborne && (leg().phase != EPhase::Final || mState.height > 8.0);
    mDrift = approach(mDrift, free ? 1.0 : 0.0, dt / 4.0);

    double forward = mState.groundSpeed;
    double sideways = 0.0;
    if (mState.airborne) {
        const double wind = kWindAtGround * (1.0 + mState.height / 900.0);
        forward = mState.airspeed - wind * cosine(mState.heading - kWindFrom);
        sideways = wind * sine(mState.heading - kWindFrom) * mDrift;
    }
    const double east = forward * s + sideways * c;
    const double north = forward * c - sideways * s;
    mState.position.east += east * dt;
    mState.position.north += north * dt;
    mState.groundSpeed = std::sqrt(east * east + north * north);
    if (mState.groundSpeed > 0.2) {
        mTrackEast = east / mState.groundSpeed;
        mTrackNorth = north / mState.groundSpeed;
    } else {
        mTrackEast = s;
        mTrackNorth = c;
    }
    const double rough = mState.airborne ? 0.035 + 0.05 * (mState.height < 400.0 ? 1.0 : 0.4)
                                         : 0.006 * mState.groundSpeed;
    mState.loadFactor = 1.0 / cosine(mState.bank) + mBumps.value() * rough;
}

} // namespace VELIX::Demo
