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
    /// The cursor after some seconds within the record.
    double cursorAfter(double seconds)
    {
        now += seconds;
        EXPECT_FALSE(clock.tick());
        return clock.cursor();
    }
};

TEST_F(ReplayClockTest, StepsFollowTheTimeThatReallyPassedWhileItRuns)
{
    clock.toggle();
    EXPECT_EQ(clock.state(), eReplayRunning);
    EXPECT_NEAR(cursorAfter(0.02), 100.02, 1e-9);
    EXPECT_NEAR(cursorAfter(0.75), 100.77, 1e-9) << "a busy machine";
    clock.toggle();
    EXPECT_EQ(clock.state(), eReplayPaused);
    now += 3600.0;
    clock.toggle();
    EXPECT_EQ(clock.state(), eReplayRunning);
    clock.setSpeed(100.0);
    EXPECT_NEAR(cursorAfter(0.02), 102.77, 1e-9);
}

TEST_F(ReplayClockTest, EndIsReportedOnlyBeyondTheLastSample)
{
    clock.toggle();
    EXPECT_EQ(cursorAfter(60.0), 160.0);
    now += 0.02;
    EXPECT_TRUE(clock.tick());
    clock.rewind();
    EXPECT_EQ(clock.state(), eReplayStopped);
    EXPECT_EQ(clock.cursor(), 100.0);
}

TEST_F(ReplayClockTest, ARunningReplayGoesOnWithTheNextRecordFromItsStart)
{
    clock.toggle();
    cursorAfter(30.0);
    now += 12.0; // loading
    clock.setRecord(7.0, 20.0);
    EXPECT_EQ(clock.state(), eReplayRunning);
    EXPECT_NEAR(cursorAfter(0.5), 7.5, 1e-9);
}

TEST_F(ReplayClockTest, StepsByKeyStayInTheRecord)
{
    for (const auto& [step, cursor] :
         {std::pair(-1.0, 100.0), {10.0, 110.0}, {49.5, 159.5}, {1.0, 160.0}}) {
        clock.step(step);
        EXPECT_EQ(clock.cursor(), cursor);
    }
}

} // namespace
} // namespace VELIX
