#include "tools/democard/MonitorModel.h"

namespace VELIX::Demo {

namespace {

constexpr double kSelfTestEnd = 6.0; ///< s on the unit's clock
constexpr double kLampTestEnd = 5.0; ///< s on the unit's clock

/// Becomes true above `on` and false again below `off`; the other way round when off > on.
void latch(bool& flag, double value, double on, double off)
{
    const double rising = on > off ? value : -value;
    if (rising > (on > off ? on : -on)) {
        flag = true;
    } else if (rising < (on > off ? off : -off)) {
        flag = false;
    }
}

template <typename Bit>
void setBit(std::uint32_t& word, Bit bit, bool set)
{
    word |= set ? 1U << static_cast<unsigned>(bit) : 0U;
}

ELamp lamp(bool amber, bool red)
{
    return red ? ELamp::Red : amber ? ELamp::Amber : ELamp::Off;
}

} // namespace

void MonitorModel::powerUp()
{
    *this = MonitorModel();
}

void MonitorModel::step(const MonitorInput& in, const EngineState& engine)
{
    judgeModes(in, engine);
    judgeValues(engine);
    lightLamps(in);
    setFaults(in, engine);
}

void MonitorModel::judgeModes(const MonitorInput& in, const EngineState& engine)
{
    const bool running = engine.speed > 900.0;
    mState.unitMode = in.clock < kSelfTestEnd ? EUnitMode::SelfTest
                      : in.positionKnown      ? EUnitMode::Recording
                                              : EUnitMode::NoClock;
    ELaneMode a = ELaneMode::Waiting;
    ELaneMode b = ELaneMode::Waiting;
    if (in.clock < kSelfTestEnd) {
        a = b = ELaneMode::SelfTest;
    } else if (running) {
        // One lane controls, the other follows and takes over within a turn of the crankshaft.
        a = in.key == EKey::LaneAOff ? ELaneMode::Off : ELaneMode::Control;
        b = in.key == EKey::LaneBOff   ? ELaneMode::Off
            : in.key == EKey::LaneAOff ? ELaneMode::Control
                                       : ELaneMode::Standby;
    }
    mState.laneModeA = a;
    mState.laneModeB = b;
}

void MonitorModel::judgeValues(const EngineState& engine)
{
    latch(mOilHot, engine.oilTemperature, 116.0, 114.0);
    latch(mOilLimit, engine.oilTemperature, 124.0, 122.5);
    latch(mBusLow, engine.voltage, 12.1, 12.4);
    latch(mBusLimit, engine.voltage, 11.7, 11.9);
    latch(mFuelLow, engine.fuelLevel, 30.0, 32.0);
    latch(mOverspeed, engine.speed, 5400.0, 5300.0);
}

void MonitorModel::lightLamps(const MonitorInput& in)
{
    if (in.clock < kLampTestEnd) { // shows the pilot that no bulb is broken
        mState.lampA = mState.lampB = mState.lampOil = ELamp::Red;
        mState.lampPower = mState.lampFuel = ELamp::Red;
        return;
    }
    mState.lampA = lamp(in.key == EKey::LaneAOff || mOverspeed, false);
    mState.lampB = lamp(in.key == EKey::LaneBOff || in.exhaustSensorFailed, false);
    mState.lampOil = lamp(mOilHot, mOilLimit);
    mState.lampPower = lamp(mBusLow, mBusLimit);
    mState.lampFuel = lamp(mFuelLow, false);
}

void MonitorModel::setFaults(const MonitorInput& in, const EngineState& engine)
{
    const bool testing = in.clock < kSelfTestEnd;
    mState.faultsA = mState.faultsB = mState.faultsUnit = 0;
    setBit(mState.faultsA, EFaultA::SelfTest, testing);
    setBit(mState.faultsA, EFaultA::LaneOff, in.key == EKey::LaneAOff);
    setBit(mState.faultsA, EFaultA::OilHot, mOilHot);
    setBit(mState.faultsA, EFaultA::OilLimit, mOilLimit);
    setBit(mState.faultsA, EFaultA::Overspeed, mOverspeed);
    setBit(mState.faultsA, EFaultA::SupplyLow, mBusLow);

    setBit(mState.faultsB, EFaultB::SelfTest, testing);
    setBit(mState.faultsB, EFaultB::LaneOff, in.key == EKey::LaneBOff);
    setBit(mState.faultsB, EFaultB::OilPressureLow,
           engine.speed > 100.0 && engine.oilPressure < 1.1);
    setBit(mState.faultsB, EFaultB::ExhaustSensor, in.exhaustSensorFailed);
    setBit(mState.faultsB, EFaultB::SupplyLow, mBusLow);

    setBit(mState.faultsUnit, EFaultUnit::ClockNotSet, !in.positionKnown);
    setBit(mState.faultsUnit, EFaultUnit::NoPosition, !in.positionKnown);
    setBit(mState.faultsUnit, EFaultUnit::PositionJump, in.positionJumps);
    setBit(mState.faultsUnit, EFaultUnit::FuelLow, mFuelLow);
    setBit(mState.faultsUnit, EFaultUnit::GeneratorOff,
           engine.speed > 1400.0 && engine.voltage < 13.0);
    setBit(mState.faultsUnit, EFaultUnit::BusLow, mBusLow);
    setBit(mState.faultsUnit, EFaultUnit::WorkshopDue, engine.runningTime > 766800.0);
}

} // namespace VELIX::Demo
