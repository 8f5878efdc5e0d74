// The pieces of the generator whose faults the finished card would hide.

#include "profile/Profile.h"
#include "tools/democard/Airfield.h"
#include "tools/democard/Message.h"
#include "tools/democard/PlainMath.h"
#include "tools/democard/Simulation.h"
#include "tools/democard/SmoothNoise.h"

#include <gtest/gtest.h>

namespace VELIX::Demo {
namespace {

TEST(PlainMath, SineAndCosineAgreeWithTheLibrary)
{
    for (double angle = -25.0; angle < 25.0; angle += 0.037) {
        EXPECT_NEAR(sine(angle), std::sin(angle), 1e-10) << angle;
        EXPECT_NEAR(cosine(angle), std::cos(angle), 1e-10) << angle;
    }
}

TEST(SmoothNoise, HasTheStatedStrengthAndWanders)
{
    for (const double seconds : {0.2, 4.0, 30.0}) {
        SmoothNoise noise(7, seconds);
        double sum = 0.0;
        double squares = 0.0;
        double steps = 0.0;
        const int count = 400000;
        double last = noise.next();
        for (int i = 0; i < count; ++i) {
            const double v = noise.next();
            sum += v;
            squares += v * v;
            steps += (v - last) * (v - last);
            last = v;
        }
        // A signal that wanders slowly says little new in the time: four standard deviations.
        const double spread = 4.0 * std::sqrt(2.0 * seconds / (count * 0.05));
        EXPECT_NEAR(sum / count, 0.0, spread) << seconds;
        EXPECT_NEAR(squares / count, 1.0, spread) << seconds;
        // Two independent values would differ by 2 in the mean square.
        EXPECT_LT(steps / count, 2.2 * 0.05 / seconds) << seconds;
    }
}

TEST(Airfield, RunwayFrameTurnsThereAndBack)
{
    const PlanePoint ahead = Airfield::toPlane({1000.0, 0.0});
    EXPECT_LT(ahead.east, -980.0); // runway 26 leads west and a little south
    EXPECT_LT(ahead.north, -100.0);
    const RunwayPoint back = Airfield::toRunway(Airfield::toPlane({321.0, -45.0}));
    EXPECT_NEAR(back.along, 321.0, 1e-6);
    EXPECT_NEAR(back.right, -45.0, 1e-6);
}

TEST(Airfield, MinutesFormIsWhatTheProgramDecodes)
{
    for (const double degrees : {0.25, 12.534, 49.1218, 179.999}) {
        EXPECT_NEAR(Profile::calcCoordinate(degreesAndMinutes(degrees)), degrees, 1e-6);
    }
}

struct EncodingCase
{
    const char* name;
    EDataType type;
    double value;
    double factor;
    double offset;
    int startByte;
    std::array<std::uint8_t, 4> data; ///< bytes 4 to 7
};

double gValue = 0.0; // the table's functions are plain pointers, so the value travels here

TEST(Message, EncodesBigEndianCountsThatFitTheType)
{
    const EncodingCase cases[] = {
        {"single precision", eFloat, -2.5, 1.0, 0.0, 4, {0xC0, 0x20, 0, 0}},
        {"negative long", eLong, -3.0, 1.0, 0.0, 4, {0xFF, 0xFF, 0xFF, 0xFD}},
        {"all bits of a bit field", eBLong, 4294967295.0, 1.0, 0.0, 4, {0xFF, 0xFF, 0xFF, 0xFF}},
        {"factor, rounded half up", eUShort, 26.25, 0.1, 0.0, 4, {0x01, 0x07, 0, 0}},
        {"factor and offset", eShort2, 25.0, 0.25, -50.0, 4, {0x01, 0x2C, 0, 0}},
        {"negative byte", eChar, -7.4, 1.0, 0.0, 4, {0xF9, 0, 0, 0}},
        {"second byte of two", eUChar2, 35.0, 0.5, 0.0, 5, {0, 70, 0, 0}},
        {"too large for the type", eUChar, 300.0, 1.0, 0.0, 4, {0xFF, 0, 0, 0}},
        {"below the type", eUShort, -1.0, 1.0, 0.0, 4, {0, 0, 0, 0}},
    };
    for (const EncodingCase& c : cases) {
        gValue = c.value;
        const Message m{.id = 0x5AB,
                        .name = c.name,
                        .type = c.type,
                        .rate = 1,
                        .value = [](const UnitState&) { return gValue; },
                        .factor = c.factor,
                        .offset = c.offset,
                        .startByte = c.startByte};
        const std::array<std::uint8_t, 8> bytes = payload(m, UnitState(), 258);
        EXPECT_EQ(bytes[1], c.type) << c.name;
        EXPECT_EQ(bytes[3], 2) << c.name << ": the running number wraps";
        for (std::size_t i = 0; i < c.data.size(); ++i) {
            EXPECT_EQ(bytes[4 + i], c.data[i]) << c.name << " byte " << 4 + i;
        }
        EXPECT_EQ(sourceOf(m), 1) << c.name;
    }
}

/// Lets an engine run in still air for a time and returns its state.
EngineState runEngine(EngineModel& engine, const EngineInput& in, double seconds)
{
    for (double t = 0.0; t < seconds; t += Simulation::kStep) {
        engine.step(Simulation::kStep, in);
    }
    return engine.state();
}

TEST(EngineModel, StartsOnlyWhenCrankedAndStopsWithTheKey)
{
    EngineModel engine(1);
    EngineInput in{.powered = true, .key = EKey::Run, .throttle = 10.0};
    EXPECT_EQ(runEngine(engine, in, 5.0).speed, 0.0);
    in.key = EKey::Start;
    EXPECT_LT(runEngine(engine, in, 3.0).speed, 400.0);
    EXPECT_LT(engine.state().voltage, 10.5) << "the starter pulls the battery down";
    in.key = EKey::Run;
    EXPECT_GT(runEngine(engine, in, 10.0).speed, 1500.0);
    EXPECT_GT(engine.state().voltage, 13.5) << "the generator charges";
    in.key = EKey::Off;
    EXPECT_EQ(runEngine(engine, in, 20.0).speed, 0.0);
    EXPECT_EQ(engine.state().fuelFlow, 0.0);
}

TEST(EngineModel, OneLaneAloneInjectsAllTheFuelAtLessSpeed)
{
    EngineModel engine(1);
    EngineInput in{.powered = true, .key = EKey::Start, .throttle = 45.0};
    runEngine(engine, in, 3.0);
    in.key = EKey::Run;
    const double both = runEngine(engine, in, 20.0).speed;
    in.key = EKey::LaneAOff;
    const EngineState alone = runEngine(engine, in, 6.0);
    EXPECT_LT(alone.speed, both - 60.0);
    EXPECT_GT(alone.speed, both - 200.0);
    EXPECT_LT(alone.shareA, 0.01);
}

TEST(MonitorModel, OilLampFollowsItsBandsWithoutFlicker)
{
    MonitorModel monitor;
    EngineState engine;
    const MonitorInput in{.clock = 100.0, .key = EKey::Run, .positionKnown = true};
    const auto lampAt = [&](double celsius) {
        engine.oilTemperature = celsius;
        monitor.step(in, engine);
        return monitor.state().lampOil;
    };
    EXPECT_EQ(lampAt(115.9), ELamp::Off);
    EXPECT_EQ(lampAt(116.1), ELamp::Amber);
    EXPECT_EQ(lampAt(115.5), ELamp::Amber) << "stays lit just below the threshold";
    EXPECT_EQ(lampAt(124.1), ELamp::Red);
    EXPECT_EQ(lampAt(122.0), ELamp::Amber);
    EXPECT_EQ(lampAt(113.0), ELamp::Off);
    EXPECT_EQ(monitor.state().faultsA, 0U);
}

} // namespace
} // namespace VELIX::Demo
