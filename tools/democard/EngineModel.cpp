#include "tools/democard/EngineModel.h"

#include "tools/democard/PlainMath.h"

namespace VELIX::Demo {

namespace {

constexpr double kIdleSpeed = 1650.0;
constexpr double kPropellerSpeed = 3300.0; ///< rpm that full throttle adds at rest
constexpr double kFullFlow = 34.5;         ///< l/h
constexpr std::array<double, 4> kHeadSpread{-2.5, 1.5, 4.0, -1.0};
constexpr std::array<double, 4> kExhaustSpread{-14.0, 9.0, 17.0, -6.0};

bool turnedOn(EKey key)
{
    return key == EKey::Run || key == EKey::LaneAOff || key == EKey::LaneBOff;
}

} // namespace

EngineModel::EngineModel(std::uint64_t seed) : mFiring(seed + 1, 0.15), mMixture(seed + 2, 6.0)
{
    mState.head.fill(19.0);
    mState.exhaust.fill(19.0);
    mState.revolutions = 48217350.0;
    mState.runningTime = 763412.0;
}

void EngineModel::step(double dt, const EngineInput& in)
{
    mFiring.next();
    mMixture.next();
    turn(dt, in);
    burn(dt, in);
    heat(dt, in);
    pumpOil(dt);
    charge(dt, in);
}

/// Crankshaft speed that the throttle and the windmilling propeller settle at.
double EngineModel::steadySpeed(const EngineInput& in) const
{
    const double t = in.throttle / 100.0;
    const double opening = t * (1.55 - 0.55 * t);
    double speed = kIdleSpeed + kPropellerSpeed * opening + 2.3 * in.airspeed * (0.35 + 0.65 * t);
    if (in.key != EKey::Run) {
        speed -= 115.0; // one spark per cylinder burns slower than two
    }
    return speed;
}

void EngineModel::turn(double dt, const EngineInput& in)
{
    if (in.key == EKey::Off) {
        mRunning = false;
    } else if (turnedOn(in.key) && mState.speed > 200.0) {
        mRunning = true;
    }
    if (mRunning) {
        mState.speed = lag(mState.speed, steadySpeed(in), dt, 0.8);
        mState.speed += mFiring.value() * (mState.speed < 2000.0 ? 3.0 : 1.6) * dt / 0.05;
        mState.runningTime += dt;
    } else if (in.key == EKey::Start) {
        mState.speed = lag(mState.speed, 285.0 + mFiring.value() * 22.0, dt, 0.35);
    } else {
        mState.speed = approach(mState.speed, 0.0, (260.0 + mState.speed * 0.55) * dt);
    }
    mState.revolutions += mState.speed / 60.0 * dt;

    const double t = in.throttle / 100.0;
    const double vacuum = mRunning ? 0.37 + 0.615 * t * (1.4 - 0.4 * t) : 1.0;
    mState.manifold = lag(mState.manifold, in.pressure * vacuum, dt, 0.4);
}

void EngineModel::burn(double dt, const EngineInput& in)
{
    double flow = 0.0;
    if (mRunning) {
        const double air = (mState.manifold / 970.0) * (mState.speed / 5200.0);
        const double rich = in.throttle > 93.0 ? 1.08 : 1.0; // full power is cooled by fuel
        flow = (0.8 + 31.0 * air * rich) * (1.0 + mMixture.value() * 0.008);
    } else if (in.key == EKey::Start) {
        flow = 3.1;
    }
    mState.fuelFlow = lag(mState.fuelFlow, flow, dt, 0.6);
    if (mState.fuelFlow < 0.005) {
        mState.fuelFlow = 0.0; // less than the lanes can measure
    }
    double share = 0.504;
    if (in.key == EKey::LaneAOff || in.key == EKey::LaneBOff) {
        share = in.key == EKey::LaneAOff ? 0.0 : 1.0;
    }
    mState.shareA = lag(mState.shareA, share, dt, 0.25);
    mState.fuelLevel -= mState.fuelFlow / 3600.0 * dt;
    mState.fuelPressure = lag(mState.fuelPressure, in.key == EKey::Off ? 0.0 : 3.05, dt, 0.9);
    mLoad = mState.fuelFlow / kFullFlow;

    const double perTurn = mState.speed > 100.0 ? mState.fuelFlow / mState.speed : 0.0;
    mState.injection = mRunning ? 0.6 + perTurn * 1180.0 : 0.0;
    const double advance = 12.0 + mState.speed / 5200.0 * 19.0 - mState.manifold / 970.0 * 5.0;
    mState.ignition = mRunning ? advance : 0.0;
}

void EngineModel::heat(double dt, const EngineInput& in)
{
    const double outside = in.temperature;
    const double draught = 1.42 - std::min(in.airspeed, 220.0) / 290.0; // weak air cools less
    double oil = outside;
    double coolant = outside;
    if (mRunning) {
        oil = outside + 27.0 + 90.0 * mLoad * draught;
        // The thermostat holds the coolant until the radiator has all of it.
        coolant = std::max(77.0 + mLoad * 8.0, outside + 27.0 + 66.0 * mLoad * draught);
    }
    const double oilLag = mRunning ? (oil > mState.oilTemperature ? 270.0 : 210.0) : 3400.0;
    mState.oilTemperature = lag(mState.oilTemperature, oil, dt, oilLag);
    mState.coolant = lag(mState.coolant, coolant, dt, mRunning ? 130.0 : 2600.0);
    for (std::size_t i = 0; i < mState.head.size(); ++i) {
        const double head = mState.coolant + (mRunning ? 6.0 + 31.0 * mLoad + kHeadSpread[i] : 0.0);
        mState.head[i] = lag(mState.head[i], head, dt, 45.0);
        double gas = outside + (mState.coolant - outside) * 0.5;
        if (mRunning) {
            const double wander = mMixture.value() * 5.0;
            gas = 452.0 + 372.0 * std::sqrt(mLoad) + kExhaustSpread[i] + wander;
            gas -= in.throttle > 93.0 ? 26.0 : 0.0;
        }
        mState.exhaust[i] = lag(mState.exhaust[i], gas, dt, mRunning ? 5.0 : 75.0);
    }
}

void EngineModel::pumpOil(double dt)
{
    double pressure = 0.0;
    if (mState.speed > 60.0) {
        const double thin = 1.27 - 0.0037 * mState.oilTemperature;
        pressure = std::min(0.35 + mState.speed / 5200.0 * 4.6, 4.75) * thin;
    }
    mState.oilPressure = lag(mState.oilPressure, pressure, dt, 0.7);
    if (mState.oilPressure < 0.005) {
        mState.oilPressure = 0.0;
    }
}

void EngineModel::charge(double dt, const EngineInput& in)
{
    const bool generating = mRunning && mState.speed > 1350.0 && !in.generatorFailed;
    const double load = in.powered ? 11.5 + (mState.fuelPressure > 0.5 ? 6.0 : 0.0) : 0.0;
    double current = -load;
    double voltage = 10.9 + 1.75 * mCharge;
    if (generating) {
        current = (1.02 - mCharge) * 110.0;
        voltage = 13.95;
    } else if (in.key == EKey::Start) {
        current = -155.0;
        voltage -= 2.6;
    }
    mState.current = lag(mState.current, current, dt, 0.5);
    mState.voltage = lag(mState.voltage, voltage, dt, 0.4);
    // A tired battery of 2.4 Ah: a failed generator shows within minutes.
    mCharge = std::clamp(mCharge + mState.current * dt / 3600.0 / 2.4, 0.0, 1.0);
}

} // namespace VELIX::Demo
