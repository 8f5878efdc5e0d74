#include "tools/democard/MessageTable.h"

#include "tools/democard/PlainMath.h"
#include "tools/democard/Simulation.h"

#include <limits>

namespace VELIX::Demo {

namespace {

constexpr unsigned kModeBit = 4; ///< of the lane mode word
constexpr unsigned kLampBit = 8; ///< of the lamp words of the lanes

template <typename Value>
double shifted(Value value, unsigned bit = 0)
{
    return static_cast<double>(static_cast<std::uint32_t>(value) << bit);
}

/// A broken wire: the lane sends "not a number" instead of a temperature.
double exhaustThree(const UnitState& s)
{
    return s.exhaustSensorFailed ? std::numeric_limits<double>::quiet_NaN() : s.engine.exhaust[2];
}

using S = const UnitState&;

const std::vector<Message> kAirframe = {
    {0x40C, "Airframe/Latitude", eFloat, 5, [](S s) { return s.latitude; }, 1.0, 0.0, true},
    {0x40D, "Airframe/Longitude", eFloat, 5, [](S s) { return s.longitude; }, 1.0, 0.0, true},
    {0x40E, "Airframe/Altitude", eFloat, 5, [](S s) { return s.altitude; }},
    {0x304, "Airframe/Ground Speed", eFloat, 5, [](S s) { return s.groundSpeed; }, 1.0, 0.0, true},
    {0x305, "Airframe/Heading", eUShort, 5, [](S s) { return s.heading; }, 0.1},
    {0x306, "Airframe/Vertical Speed", eFloat, 5, [](S s) { return s.flight.verticalSpeed; }},
    {0x307, "Airframe/Airspeed", eUShort, 5, [](S s) { return s.airspeed; }, 0.1},
    {0x308, "Airframe/Load Factor", eFloat, 10, [](S s) { return s.flight.loadFactor; }},
    {0x309, "Airframe/Outside Temperature", eChar, 1, [](S s) { return s.outside; }},
    {0x30A, "Airframe/Static Pressure", eUShort, 2, [](S s) { return s.pressure; }, 0.1},
    {0x30B, "Airframe/Fuel Level", eFloat, 1, [](S s) { return s.engine.fuelLevel; }},
    {0x30C, "Airframe/Bus Voltage", eFloat, 4, [](S s) { return s.engine.voltage; }},
    {0x30D, "Airframe/Battery Current", eShort, 2, [](S s) { return s.engine.current; }, 0.1},
    {0x30E, "Airframe/Satellites", eUChar, 1, [](S s) { return s.satellites; }},
    {.id = 0x30F, // the first of the two bytes is the pilot's selection, which nobody debriefs
     .name = "Airframe/Flaps",
     .type = eUChar2,
     .rate = 2,
     .value = [](S s) { return s.flight.flaps; },
     .factor = 0.5,
     .startByte = 5},
    {0x310, "Airframe/Tow Hook", eBShort, 2, [](S s) { return s.towing ? 1.0 : 0.0; }},
    {0x311, "Airframe/Unit Mode", eBShort, 1, [](S s) { return shifted(s.monitor.unitMode); }},
    {0x312, "Airframe/Time Powered", eULong, 1, [](S s) { return std::floor(s.clock); }},
    {0x313, "Airframe/Power Lamp", eBShort, 2, [](S s) { return shifted(s.monitor.lampPower); }},
    {0x314, "Airframe/Fuel Lamp", eBShort, 2, [](S s) { return shifted(s.monitor.lampFuel); }},
    {0x3F0, "Airframe/Fault Word", eBLong, 2, [](S s) { return shifted(s.monitor.faultsUnit); }},
};

const std::vector<Message> kLaneA = {
    {0x401, "Lane A/Engine Speed", eUShort, 20, [](S s) { return s.speed[0]; }},
    {0x402, "Lane A/Manifold Pressure", eUShort, 10, [](S s) { return s.manifold[0]; }, 0.1},
    {0x403, "Lane A/Throttle", eFloat, 10, [](S s) { return s.throttle[0]; }},
    {0x404, "Lane A/Fuel Flow", eFloat, 4, [](S s) { return s.flow[0]; }},
    {0x405, "Lane A/Lane Mode", eBLong, 2,
     [](S s) { return shifted(s.monitor.laneModeA, kModeBit); }},
    {0x406, "Lane A/Lane Lamp", eBLong, 2, [](S s) { return shifted(s.monitor.lampA, kLampBit); }},
    {0x407, "Lane A/Supply Voltage", eUChar, 1, [](S s) { return s.supply[0]; }, 0.1},
    {0x408, "Lane A/Running Time", eULong, 1, [](S s) { return std::floor(s.engine.runningTime); }},
    {0x409, "Lane A/Ignition Timing", eChar, 4, [](S s) { return s.engine.ignition; }, 0.5},
    {0x40A, "Lane A/Injection Time", eFloat, 10, [](S s) { return s.engine.injection; }},
    {0x410, "Lane A/Propeller Speed", eUShort, 10,
     [](S s) { return s.speed[0] / EngineModel::kGearRatio; }},
    {0x411, "Lane A/Oil Temperature", eShort, 2, [](S s) { return s.engine.oilTemperature; }, 0.1},
    {0x412, "Lane A/Coolant Temperature", eShort, 1, [](S s) { return s.engine.coolant; }, 0.1},
    {0x413, "Lane A/Cylinder Head 1", eShort2, 1, [](S s) { return s.engine.head[0]; }, 0.25,
     -50.0},
    {0x414, "Lane A/Cylinder Head 2", eShort2, 1, [](S s) { return s.engine.head[1]; }, 0.25,
     -50.0},
    {0x415, "Lane A/Exhaust 1", eFloat, 2, [](S s) { return s.engine.exhaust[0]; }},
    {0x416, "Lane A/Exhaust 2", eFloat, 2, [](S s) { return s.engine.exhaust[1]; }},
    {0x417, "Lane A/Revolutions", eLong, 1, [](S s) { return s.engine.revolutions; }, 10.0},
    {0x418, "Lane A/Oil Lamp", eBLong, 2, [](S s) { return shifted(s.monitor.lampOil, kLampBit); }},
    {0x4F0, "Lane A/Fault Word", eBLong, 2, [](S s) { return shifted(s.monitor.faultsA); }},
};

const std::vector<Message> kLaneB = {
    {0x501, "Lane B/Engine Speed", eUShort, 20, [](S s) { return s.speed[1]; }},
    {0x502, "Lane B/Manifold Pressure", eUShort, 10, [](S s) { return s.manifold[1]; }, 0.1},
    {0x503, "Lane B/Throttle", eFloat, 10, [](S s) { return s.throttle[1]; }},
    {0x504, "Lane B/Fuel Flow", eFloat, 4, [](S s) { return s.flow[1]; }},
    {0x505, "Lane B/Lane Mode", eBLong, 2,
     [](S s) { return shifted(s.monitor.laneModeB, kModeBit); }},
    {0x506, "Lane B/Lane Lamp", eBLong, 2, [](S s) { return shifted(s.monitor.lampB, kLampBit); }},
    {0x507, "Lane B/Supply Voltage", eUChar, 1, [](S s) { return s.supply[1]; }, 0.1},
    {0x510, "Lane B/Oil Pressure", eFloat, 4, [](S s) { return s.engine.oilPressure; }},
    {0x511, "Lane B/Fuel Pressure", eFloat, 4, [](S s) { return s.engine.fuelPressure; }},
    {0x513, "Lane B/Cylinder Head 3", eShort2, 1, [](S s) { return s.engine.head[2]; }, 0.25,
     -50.0},
    {0x514, "Lane B/Cylinder Head 4", eShort2, 1, [](S s) { return s.engine.head[3]; }, 0.25,
     -50.0},
    {0x515, "Lane B/Exhaust 3", eFloat, 2, exhaustThree},
    {0x516, "Lane B/Exhaust 4", eFloat, 2, [](S s) { return s.engine.exhaust[3]; }},
    {0x5F0, "Lane B/Fault Word", eBLong, 2, [](S s) { return shifted(s.monitor.faultsB); }},
};

std::vector<Message> allMessages()
{
    std::vector<Message> all = kLaneA;
    all.insert(all.end(), kLaneB.begin(), kLaneB.end());
    all.insert(all.end(), kAirframe.begin(), kAirframe.end());
    return all;
}

} // namespace

const std::vector<Message>& messageTable()
{
    static const std::vector<Message> kAll = allMessages();
    return kAll;
}

} // namespace VELIX::Demo
