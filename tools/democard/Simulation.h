#pragma once

#include "tools/democard/EngineModel.h"
#include "tools/democard/FlightModel.h"
#include "tools/democard/FlightPlan.h"
#include "tools/democard/MonitorModel.h"
#include "tools/democard/SmoothNoise.h"

#include <array>
#include <cstdint>

namespace VELIX::Demo {

/// What the sensors read at one time: the source of every message.
struct UnitState
{
    double clock = 0.0; ///< s since power-up
    bool positionKnown = false;
    double latitude = 0.0;    ///< dddmm.mmmm
    double longitude = 0.0;   ///< dddmm.mmmm
    double altitude = 0.0;    ///< m above sea level
    double groundSpeed = 0.0; ///< km/h
    double airspeed = 0.0;    ///< km/h
    double heading = 0.0;     ///< degrees 0..360
    double outside = 0.0;     ///< degrees Celsius
    double pressure = 0.0;    ///< hPa
    double satellites = 0.0;
    bool towing = false;
    FlightState flight;
    EngineState engine; ///< with the errors of its sensors
    MonitorState monitor;
    bool exhaustSensorFailed = false;
    std::array<double, 2> speed{};    ///< rpm as lanes A and B count it
    std::array<double, 2> manifold{}; ///< hPa as lanes A and B measure it
    std::array<double, 2> throttle{}; ///< % as lanes A and B measure it
    std::array<double, 2> flow{};     ///< l/h injected by lanes A and B
    std::array<double, 2> supply{};   ///< V at lanes A and B
};

/// The aircraft with its engine and its unit over the whole afternoon, in steps of 50 ms.
class Simulation
{
public:
    static constexpr int kStepsPerSecond = 20;
    static constexpr double kStep = 1.0 / kStepsPerSecond; ///< s

    explicit Simulation(std::uint64_t seed);

    /// Lets the engine cool, refuels and switches the unit on.
    void powerUp(const PowerCycle& cycle);
    /// Whether the present power cycle is over.
    bool finished() const { return mFlight.finished(); }
    const UnitState& state() const { return mState; }
    void step();

private:
    bool happens(EUpset what) const;
    EngineInput engineInput(bool powered, EKey key, bool generatorFailed) const;
    void measureAir();
    void measurePosition();
    void measureEngine();

    FlightModel mFlight;
    EngineModel mEngine;
    MonitorModel mMonitor;
    PowerCycle mCycle;
    UnitState mState;
    SmoothNoise mNorth;
    SmoothNoise mEast;
    SmoothNoise mLevel;
    SmoothNoise mSlow;
    std::array<SmoothNoise, 12> mFast;
};

} // namespace VELIX::Demo
