#include "views/replay/ReplayClock.h"

#include <gtest/gtest.h>

namespace VELIX {
namespace {

/// A replay over a record from 100 s to 160 s, with a clock that the test moves.
struct ReplayClockTest : ::testing::Test
{
    double now = 5000.0;
    ReplayClock clock{[this] { return now; }};

    void SetUp() override { clock.setRecord(100.0, 160.0); }
    bool tickAfter(double seconds)
    {
        now += seconds;
        return clock.tick();
    }
};

TEST_F(ReplayClockTest, StepsFollowTheTimeThatReallyPassed)
{
    clock.toggle();
    EXPECT_EQ(clock.state(), eReplayRunning);
    EXPECT_FALSE(tickAfter(0.02));
    EXPECT_NEAR(clock.cursor(), 100.02, 1e-9);
    EXPECT_FALSE(tickAfter(0.75)); // a busy machine
    EXPECT_NEAR(clock.cursor(), 100.77, 1e-9);
}

TEST_F(ReplayClockTest, PausingLeavesNoJump)
{
    clock.toggle();
    EXPECT_FALSE(tickAfter(1.0));
    clock.toggle();
    EXPECT_EQ(clock.state(), eReplayPaused);
    now += 3600.0;
    clock.toggle();
    EXPECT_EQ(clock.state(), eReplayRunning);
    EXPECT_FALSE(tickAfter(0.5));
    EXPECT_NEAR(clock.cursor(), 101.5, 1e-9);
}

TEST_F(ReplayClockTest, SpeedScalesAStep)
{
    clock.setSpeed(100.0);
    clock.toggle();
    EXPECT_FALSE(tickAfter(0.02));
    EXPECT_NEAR(clock.cursor(), 102.0, 1e-9);
}

TEST_F(ReplayClockTest, EndIsReportedOnlyBeyondTheLastSample)
{
    clock.toggle();
    EXPECT_FALSE(tickAfter(60.0));
    EXPECT_TRUE(tickAfter(0.02));
    clock.rewind();
    EXPECT_EQ(clock.state(), eReplayStopped);
    EXPECT_EQ(clock.cursor(), 100.0);
}

TEST_F(ReplayClockTest, ARunningReplayGoesOnWithTheNextRecordFromItsStart)
{
    clock.toggle();
    EXPECT_FALSE(tickAfter(30.0));
    now += 12.0; // loading
    clock.setRecord(7.0, 20.0);
    EXPECT_EQ(clock.state(), eReplayRunning);
    EXPECT_FALSE(tickAfter(0.5));
    EXPECT_NEAR(clock.cursor(), 7.5, 1e-9);
}

TEST_F(ReplayClockTest, StepsByKeyStayInTheRecord)
{
    clock.step(-1.0);
    EXPECT_EQ(clock.cursor(), 100.0);
    clock.step(10.0);
    EXPECT_EQ(clock.cursor(), 110.0);
    clock.setCursor(159.5);
    clock.step(1.0);
    EXPECT_EQ(clock.cursor(), 160.0);
}

} // namespace
} // namespace VELIX
