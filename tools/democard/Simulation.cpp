#include "tools/democard/Simulation.h"

#include "tools/democard/PlainMath.h"

namespace VELIX::Demo {

Simulation::Simulation(std::uint64_t seed)
    : mFlight(seed),
      mEngine(seed + 10),
      mNorth(seed + 20, 30.0),
      mEast(seed + 21, 30.0),
      mLevel(seed + 22, 2.5),
      mSlow(seed + 23, 60.0),
      mFast{SmoothNoise(seed + 30, 0.2), SmoothNoise(seed + 31, 0.2), SmoothNoise(seed + 32, 0.3),
            SmoothNoise(seed + 33, 0.3), SmoothNoise(seed + 34, 1.0), SmoothNoise(seed + 35, 1.0),
            SmoothNoise(seed + 36, 2.0), SmoothNoise(seed + 37, 2.0), SmoothNoise(seed + 38, 4.0),
            SmoothNoise(seed + 39, 4.0), SmoothNoise(seed + 40, 8.0), SmoothNoise(seed + 41, 8.0)}
{
    measureAir();
}

void Simulation::powerUp(const PowerCycle& cycle)
{
    mCycle = cycle;
    const EngineInput atRest = engineInput(false, EKey::Off, false);
    for (double t = 0.0; t < cycle.restSeconds; t += 0.2) {
        mEngine.step(0.2, atRest);
    }
    mEngine.refuel(cycle.refuelLitres);
    mFlight.setLegs(cycle.legs);
    mMonitor.powerUp();
    mState.clock = cycle.clockStart;
}

void Simulation::step()
{
    for (SmoothNoise* noise : {&mNorth, &mEast, &mLevel, &mSlow}) {
        noise->next();
    }
    for (SmoothNoise& noise : mFast) {
        noise.next();
    }
    const Leg leg = mFlight.leg();
    mFlight.step(kStep);
    mState.flight = mFlight.state();
    mState.towing = leg.towing;
    measureAir();
    mEngine.step(kStep, engineInput(true, leg.key, happens(EUpset::GeneratorFailure)));
    measurePosition();
    measureEngine();

    MonitorInput in;
    in.clock = mState.clock;
    in.key = leg.key;
    in.positionKnown = mState.positionKnown;
    in.positionJumps = happens(EUpset::LatitudeJump) || happens(EUpset::LongitudeJump);
    in.exhaustSensorFailed = happens(EUpset::ExhaustSensorFailure);
    mState.exhaustSensorFailed = in.exhaustSensorFailed;
    mMonitor.step(in, mEngine.state());
    mState.monitor = mMonitor.state();
    mState.clock += kStep;
}

bool Simulation::happens(EUpset what) const
{
    for (const Upset& u : mCycle.upsets) {
        if (u.what == what && mState.clock >= u.start && mState.clock < u.start + u.seconds) {
            return true;
        }
    }
    return false;
}

EngineInput Simulation::engineInput(bool powered, EKey key, bool generatorFailed) const
{
    EngineInput in;
    in.powered = powered;
    in.key = key;
    in.throttle = mState.flight.throttle;
    in.airspeed = mState.flight.airspeed * 3.6;
    in.pressure = mState.pressure;
    in.temperature = mState.outside;
    in.generatorFailed = generatorFailed;
    return in;
}

void Simulation::measureAir()
{
    const double h = mState.flight.height;
    mState.outside = 23.5 - h * 0.0068 + mSlow.value() * 0.4;
    mState.pressure = 969.6 - h * 0.1122 + h * h * 4.6e-6;
}

void Simulation::measurePosition()
{
    const FlightState& f = mState.flight;
    mState.positionKnown = mState.clock >= mCycle.positionFix;
    const PlanePoint p{f.position.east + mEast.value() * 0.7,
                       f.position.north + mNorth.value() * 0.7};
    // A receiver that locks on to a reflected signal is tens of kilometres off for some samples.
    const double jumpNorth = happens(EUpset::LatitudeJump) ? 0.19 : 0.0;
    const double jumpEast = happens(EUpset::LongitudeJump) ? 0.27 : 0.0;
    mState.latitude = degreesAndMinutes(Airfield::latitude(p) + jumpNorth);
    mState.longitude = degreesAndMinutes(Airfield::longitude(p) + jumpEast);
    mState.satellites = mState.positionKnown ? 11.0 + mSlow.value() * 1.4 : 2.0;
    mState.altitude = Airfield::kElevation + f.height + mLevel.value() * 0.12;
    mState.groundSpeed = std::max(f.groundSpeed * 3.6 + mFast[4].value() * 0.12, 0.0);
    mState.airspeed = f.airspeed > 9.0 ? f.airspeed * 3.6 + mFast[2].value() * 0.9 : 0.0;
    mState.heading = f.heading * 180.0 / kPi + (f.airborne ? mFast[5].value() * 0.5 : 0.0);
    mState.heading -= 360.0 * std::floor(mState.heading / 360.0);
}

void Simulation::measureEngine()
{
    EngineState e = mEngine.state();
    const bool turning = e.speed > 50.0;
    for (std::size_t lane = 0; lane < 2; ++lane) {
        const double rough = turning ? mFast[lane].value() : 0.0;
        mState.speed[lane] = std::max(e.speed + rough * 2.5, 0.0);
        mState.manifold[lane] = e.manifold + rough * 2.2 + mFast[2 + lane].value() * 0.4;
        mState.throttle[lane] =
            std::clamp(mState.flight.throttle + mFast[6 + lane].value() * 0.08, 0.0, 100.0);
        mState.supply[lane] = e.voltage - 0.12 - 0.05 * static_cast<double>(lane);
        const double flow = e.fuelFlow * (lane == 0 ? e.shareA : 1.0 - e.shareA);
        mState.flow[lane] = std::max(flow * (1.0 + mFast[4 + lane].value() * 0.006), 0.0);
    }
    const double slosh = mState.flight.airborne ? 0.35 : 0.06;
    e.fuelLevel += mFast[8].value() * slosh + sine(mState.flight.bank) * 1.1;
    e.oilTemperature += mFast[10].value() * 0.06;
    e.oilPressure = std::max(e.oilPressure + (turning ? mFast[3].value() * 0.025 : 0.0), 0.0);
    e.fuelPressure = std::max(e.fuelPressure + (turning ? mFast[5].value() * 0.02 : 0.0), 0.0);
    e.coolant += mFast[11].value() * 0.08;
    for (std::size_t i = 0; i < e.head.size(); ++i) {
        e.head[i] += mFast[8 + i].value() * 0.15;
        e.exhaust[i] += turning ? mFast[4 + i].value() * 1.6 : 0.0;
    }
    e.voltage += mFast[6].value() * 0.004;
    e.current += mFast[7].value() * 0.3;
    mState.engine = e;
}

} // namespace VELIX::Demo
