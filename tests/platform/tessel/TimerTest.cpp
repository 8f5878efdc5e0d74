#include "platform/tessel/Timer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <thread>

using Tessel::Misc::Timer;

namespace {

TEST(Timer, GivesTheWallClockWithFractions)
{
    const double before = static_cast<double>(std::time(nullptr));
    const double now = Timer::getTime();
    EXPECT_GE(now, before - 1.0); // the coarse clock may lag behind the fine one
    EXPECT_LT(now, before + 60.0);

    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    const double later = Timer::getTime();
    EXPECT_GT(later, now);
    EXPECT_LT(later, now + 60.0);
}

TEST(Timer, StopwatchCountsFromTheLastRestart)
{
    Timer watch;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const double first = watch.elapsed();
    EXPECT_GE(first, 0.020);
    EXPECT_LT(first, 60.0);
    watch.restart();
    EXPECT_LT(watch.elapsed(), first);
}

} // namespace
