#pragma once

#include "tools/democard/EngineModel.h"

#include <cstdint>

namespace VELIX::Demo {

/// Bits of the three fault words; the profile assigns a parameter to each.
enum class EFaultA : unsigned {
    SelfTest = 0,
    LaneOff = 1,
    OilHot = 4,
    OilLimit = 5,
    Overspeed = 9,
    SupplyLow = 14,
};
enum class EFaultB : unsigned {
    SelfTest = 0,
    LaneOff = 1,
    OilPressureLow = 3,
    ExhaustSensor = 11,
    SupplyLow = 14,
};
enum class EFaultUnit : unsigned {
    ClockNotSet = 0,
    NoPosition = 1,
    PositionJump = 2,
    FuelLow = 6,
    GeneratorOff = 8,
    BusLow = 9,
    WorkshopDue = 31,
};

/// Values of the enumerations that the profile names.
enum class ELaneMode : unsigned { Waiting = 0, SelfTest = 1, Control = 2, Standby = 3, Off = 6 };
enum class EUnitMode : unsigned { SelfTest = 1, NoClock = 2, Recording = 3 };
enum class ELamp : unsigned { Off = 0, Amber = 1, Red = 2 };

/// What the unit concludes from what it measures.
struct MonitorState
{
    ELaneMode laneModeA = ELaneMode::Waiting;
    ELaneMode laneModeB = ELaneMode::Waiting;
    EUnitMode unitMode = EUnitMode::SelfTest;
    ELamp lampA = ELamp::Off;
    ELamp lampB = ELamp::Off;
    ELamp lampOil = ELamp::Off;
    ELamp lampPower = ELamp::Off;
    ELamp lampFuel = ELamp::Off;
    std::uint32_t faultsA = 0;
    std::uint32_t faultsB = 0;
    std::uint32_t faultsUnit = 0;
};

/// The circumstances that MonitorModel judges beside the engine's state.
struct MonitorInput
{
    double clock = 0.0; ///< s since power-up
    EKey key = EKey::Off;
    bool positionKnown = false; ///< and with it the date: both come from the satellites
    bool positionJumps = false;
    bool exhaustSensorFailed = false;
};

/// Lamps, modes and fault bits, with the hysteresis that keeps lamps from flickering.
class MonitorModel
{
public:
    const MonitorState& state() const { return mState; }
    void powerUp();
    void step(const MonitorInput& in, const EngineState& engine);

private:
    void judgeModes(const MonitorInput& in, const EngineState& engine);
    void judgeValues(const EngineState& engine);
    void lightLamps(const MonitorInput& in);
    void setFaults(const MonitorInput& in, const EngineState& engine);

    MonitorState mState;
    bool mOilHot = false;
    bool mOilLimit = false;
    bool mBusLow = false;
    bool mBusLimit = false;
    bool mFuelLow = false;
    bool mOverspeed = false;
};

} // namespace VELIX::Demo
