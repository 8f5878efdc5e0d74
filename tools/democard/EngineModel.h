#pragma once

#include "tools/democard/FlightPlan.h"
#include "tools/democard/SmoothNoise.h"

#include <array>
#include <cstdint>

namespace VELIX::Demo {

/// What the engine gets from the pilot and the air.
struct EngineInput
{
    bool powered = false; ///< the master switch is on
    EKey key = EKey::Off;
    double throttle = 0.0;     ///< %
    double airspeed = 0.0;     ///< km/h
    double pressure = 970.0;   ///< hPa, of the air outside
    double temperature = 20.0; ///< degrees Celsius, of the air outside
    bool generatorFailed = false;
};

/// The engine's physical state, without the errors of the sensors.
struct EngineState
{
    double speed = 0.0;              ///< rpm of the crankshaft
    double manifold = 970.0;         ///< hPa
    double fuelFlow = 0.0;           ///< l/h, both lanes
    double shareA = 0.5;             ///< of the fuel flow that lane A injects
    double fuelLevel = 41.0;         ///< l
    double fuelPressure = 0.0;       ///< bar
    double oilTemperature = 19.0;    ///< degrees Celsius
    double oilPressure = 0.0;        ///< bar
    double coolant = 19.0;           ///< degrees Celsius
    std::array<double, 4> head{};    ///< degrees Celsius, cylinder heads
    std::array<double, 4> exhaust{}; ///< degrees Celsius
    double voltage = 12.5;           ///< V
    double current = 0.0;            ///< A into the battery
    double injection = 0.0;          ///< ms
    double ignition = 0.0;           ///< degrees before top dead centre
    double revolutions = 0.0;        ///< of the crankshaft, since it was built
    double runningTime = 0.0;        ///< s, since it was built
};

/// A four-cylinder engine with a geared propeller of fixed pitch, as lags towards steady states.
///
/// The constants are invented; they make curves of the right shape and order for an engine of this
/// kind, not those of any type.
class EngineModel
{
public:
    static constexpr double kGearRatio = 2.17;

    explicit EngineModel(std::uint64_t seed);

    const EngineState& state() const { return mState; }
    void refuel(double litres) { mState.fuelLevel += litres; }
    void step(double dt, const EngineInput& in);

private:
    double steadySpeed(const EngineInput& in) const;
    void turn(double dt, const EngineInput& in);
    void burn(double dt, const EngineInput& in);
    void heat(double dt, const EngineInput& in);
    void pumpOil(double dt);
    void charge(double dt, const EngineInput& in);

    EngineState mState;
    bool mRunning = false;
    double mLoad = 0.0;   ///< fuel flow over that of full power: 0..1
    double mCharge = 1.0; ///< of the battery, 0..1
    SmoothNoise mFiring;
    SmoothNoise mMixture;
};

} // namespace VELIX::Demo
