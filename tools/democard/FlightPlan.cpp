#include "tools/democard/FlightPlan.h"

namespace VELIX::Demo {

namespace {

constexpr RunwayPoint kPump{520.0, -120.0};

Leg hold(double seconds, double throttle, EKey key = EKey::Run)
{
    return {.phase = EPhase::Hold, .throttle = throttle, .seconds = seconds, .key = key};
}

Leg taxi(const RunwayPoint& to, double speed)
{
    return {.phase = EPhase::Taxi, .to = to, .speed = speed, .throttle = 13.0 + speed * 0.4};
}

Leg takeOff(bool towing)
{
    return {.phase = EPhase::TakeOff, .speed = 116.0, .throttle = 100.0, .towing = towing};
}

Leg tow(const RunwayPoint& to, double height, double speed, double rate)
{
    return {.phase = EPhase::Climb,
            .to = to,
            .height = height,
            .speed = speed,
            .rate = rate,
            .throttle = 98.0,
            .towing = true};
}

Leg fly(const RunwayPoint& to, double height, double speed, double rate, double throttle)
{
    return {.phase = EPhase::Cruise,
            .to = to,
            .height = height,
            .speed = speed,
            .rate = rate,
            .throttle = throttle};
}

void append(std::vector<Leg>& legs, const std::vector<Leg>& more)
{
    legs.insert(legs.end(), more.begin(), more.end());
}

/// Power-up, cranking and warming up on the apron.
std::vector<Leg> startEngine(double waiting, double warmUp)
{
    return {hold(waiting, 0.0, EKey::Off), hold(3.0, 8.0, EKey::Start), hold(12.0, 6.0),
            hold(warmUp, 15.0)};
}

/// The way from the apron to the runway, with the check of both lanes on it.
std::vector<Leg> taxiOutAndCheck()
{
    return {taxi({330.0, -85.0}, 16.0),
            taxi({70.0, -70.0}, 19.0),
            taxi({10.0, -42.0}, 12.0),
            hold(9.0, 14.0),
            hold(7.0, 46.0),
            hold(6.0, 46.0, EKey::LaneAOff),
            hold(4.0, 46.0),
            hold(6.0, 46.0, EKey::LaneBOff),
            hold(5.0, 46.0),
            hold(12.0, 13.0)};
}

/// Onto the centre line, rope tight, go.
std::vector<Leg> lineUpAndGo(double waiting)
{
    return {taxi({4.0, -14.0}, 11.0),
            taxi({30.0, 0.0}, 9.0),
            taxi({48.0, 0.0}, 7.0),
            {.phase = EPhase::Hold, .throttle = 9.0, .seconds = waiting, .towing = true},
            takeOff(true)};
}

/// Back from the landing to the beginning of the runway, where the next glider waits.
std::vector<Leg> taxiBack()
{
    return {taxi({600.0, -38.0}, 14.0), taxi({560.0, -62.0}, 16.0), taxi({70.0, -70.0}, 21.0),
            taxi({10.0, -42.0}, 13.0), hold(105.0, 13.0)};
}

/// From the landing to the pump; a minute of idling cools the engine evenly.
std::vector<Leg> taxiInAndStop()
{
    return {taxi({600.0, -38.0}, 14.0), taxi({570.0, -80.0}, 15.0), taxi(kPump, 11.0),
            hold(70.0, 9.0), hold(35.0, 0.0, EKey::Off)};
}

/// Right-hand circuit from the end of the descent to the taxiing speed.
std::vector<Leg> circuitAndLand()
{
    return {fly({1400.0, 1350.0}, 270.0, 150.0, 3.0, 38.0),
            fly({-1300.0, 1300.0}, 225.0, 125.0, 2.0, 36.0),
            fly({-2350.0, 620.0}, 165.0, 115.0, 2.0, 28.0),
            {.phase = EPhase::Final, .speed = 108.0, .rate = 4.0, .throttle = 24.0},
            {.phase = EPhase::RollOut, .speed = 16.0, .throttle = 7.0}};
}

/// A tow in wide right turns around the field, release, steep descent.
std::vector<Leg> firstTow()
{
    std::vector<Leg> legs;
    for (const RunwayPoint& p :
         {RunwayPoint{2600.0, 0.0}, RunwayPoint{3700.0, 1600.0}, RunwayPoint{1500.0, 3000.0},
          RunwayPoint{-2500.0, 3200.0}, RunwayPoint{-4200.0, 500.0}, RunwayPoint{-1500.0, -1600.0},
          RunwayPoint{2600.0, -2000.0}, RunwayPoint{4800.0, 500.0}, RunwayPoint{2500.0, 3600.0}}) {
        legs.push_back(tow(p, 1010.0, 114.0, 2.9));
    }
    append(legs, {fly({800.0, -3400.0}, 680.0, 158.0, 5.0, 42.0),
                  fly({4300.0, -1900.0}, 420.0, 172.0, 5.0, 24.0),
                  fly({4600.0, 900.0}, 300.0, 165.0, 5.0, 24.0)});
    append(legs, circuitAndLand());
    return legs;
}

/// A heavy two-seater in the afternoon heat: slow, long, left-hand, and hot for the oil.
std::vector<Leg> secondTow()
{
    std::vector<Leg> legs;
    for (const RunwayPoint& p :
         {RunwayPoint{2800.0, 0.0}, RunwayPoint{4300.0, -1500.0}, RunwayPoint{2800.0, -3600.0},
          RunwayPoint{-1200.0, -3900.0}, RunwayPoint{-3800.0, -1600.0},
          RunwayPoint{-3000.0, 2200.0}, RunwayPoint{900.0, 3100.0}, RunwayPoint{4200.0, 1700.0},
          RunwayPoint{4800.0, -1800.0}, RunwayPoint{1900.0, -3900.0},
          RunwayPoint{-2600.0, -3500.0}}) {
        legs.push_back(tow(p, 1040.0, 100.0, 2.25));
    }
    append(legs, {fly({2600.0, 3700.0}, 620.0, 160.0, 5.0, 40.0),
                  fly({5600.0, 2400.0}, 430.0, 170.0, 5.0, 26.0),
                  fly({4200.0, 900.0}, 340.0, 165.0, 5.0, 26.0)});
    append(legs, circuitAndLand());
    return legs;
}

/// A tow to the ridge in the north-west, then home in a wide triangle.
std::vector<Leg> ridgeFlight()
{
    std::vector<Leg> legs;
    for (const RunwayPoint& p : {RunwayPoint{3200.0, 0.0}, RunwayPoint{6400.0, 1400.0},
                                 RunwayPoint{10500.0, 5200.0}, RunwayPoint{14000.0, 9500.0}}) {
        legs.push_back(tow(p, 840.0, 116.0, 2.8));
    }
    append(legs, {
                     fly({15200.0, 13500.0}, 1380.0, 140.0, 4.2, 94.0),
                     // Pushed over with the throttle forgotten wide open: the overspeed of the day.
                     fly({14200.0, 15400.0}, 1180.0, 232.0, 6.5, 100.0),
                     fly({9000.0, 25500.0}, 1240.0, 186.0, 2.0, 73.0),
                     fly({-12500.0, 17500.0}, 1290.0, 188.0, 1.5, 74.0),
                     fly({-16000.0, -3000.0}, 1140.0, 184.0, 1.5, 71.0),
                     fly({-4500.0, -8600.0}, 900.0, 178.0, 2.5, 62.0),
                     fly({4200.0, -5200.0}, 560.0, 172.0, 4.0, 34.0),
                     fly({5400.0, 900.0}, 330.0, 165.0, 4.0, 27.0),
                 });
    append(legs, circuitAndLand());
    return legs;
}

} // namespace

std::vector<PowerCycle> demoCycles()
{
    PowerCycle tows{.hour = 12,
                    .minute = 41,
                    .second = 17,
                    .clockStart = 3.2,
                    .positionFix = 38.0,
                    .restSeconds = 0.0,
                    .refuelLitres = 0.0,
                    .legs = startEngine(44.0, 270.0),
                    .upsets = {{EUpset::LatitudeJump, 1010.0, 0.7}}};
    append(tows.legs, taxiOutAndCheck());
    append(tows.legs, lineUpAndGo(38.0));
    append(tows.legs, firstTow());
    append(tows.legs, taxiBack());
    append(tows.legs, lineUpAndGo(52.0));
    append(tows.legs, secondTow());
    append(tows.legs, taxiInAndStop());

    PowerCycle ridge{.hour = 14,
                     .minute = 2,
                     .second = 44,
                     .clockStart = 3.2,
                     .positionFix = 21.0,
                     .restSeconds = 1260.0,
                     .refuelLitres = 61.5,
                     .legs = startEngine(26.0, 110.0),
                     .upsets = {{EUpset::LongitudeJump, 1385.0, 0.9},
                                {EUpset::ExhaustSensorFailure, 1652.0, 31.0},
                                {EUpset::GeneratorFailure, 2040.0, 260.0}}};
    append(ridge.legs, taxiOutAndCheck());
    append(ridge.legs, lineUpAndGo(30.0));
    append(ridge.legs, ridgeFlight());
    append(ridge.legs, taxiInAndStop());

    return {tows, ridge};
}

} // namespace VELIX::Demo
