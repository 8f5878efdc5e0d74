#pragma once

#include "tools/democard/Airfield.h"

#include <vector>

namespace VELIX::Demo {

enum class EPhase { Hold, Taxi, TakeOff, Climb, Cruise, Final, RollOut };

/// The ignition key. The two lane positions switch one lane off, as pilots do before take-off.
enum class EKey { Off, Start, Run, LaneAOff, LaneBOff };

/// One thing that the pilot does, up to the point, height or time that ends it.
struct Leg
{
    EPhase phase = EPhase::Hold;
    RunwayPoint to{};      ///< where to; Hold, TakeOff, Final and RollOut need none
    double height = 0.0;   ///< m above the airfield to climb or descend to
    double speed = 0.0;    ///< km/h; over ground while taxiing, else through the air
    double rate = 0.0;     ///< m/s: largest climb or sink
    double throttle = 0.0; ///< %
    double seconds = 0.0;  ///< length of a Hold
    EKey key = EKey::Run;
    bool towing = false; ///< a glider hangs on the rope
};

/// What goes wrong in a power cycle, for a while.
enum class EUpset { GeneratorFailure, ExhaustSensorFailure, LatitudeJump, LongitudeJump };

struct Upset
{
    EUpset what;
    double start;   ///< s on the unit's clock
    double seconds; ///< how long it lasts
};

/// One power-up of the unit: what is flown, and how the engine was left since the last one.
struct PowerCycle
{
    int hour;            ///< UTC, at power-up
    int minute;          ///< UTC, at power-up
    int second;          ///< UTC, at power-up
    double clockStart;   ///< s: the unit's clock when its first message is recorded
    double positionFix;  ///< s: the unit's clock when the satellite receiver knows where it is
    double restSeconds;  ///< how long the engine has cooled before
    double refuelLitres; ///< tanked before
    std::vector<Leg> legs;
    std::vector<Upset> upsets;
};

/// The afternoon of the demo: two tows, a refuelling stop, and a third tow with a longer way home.
std::vector<PowerCycle> demoCycles();

} // namespace VELIX::Demo
