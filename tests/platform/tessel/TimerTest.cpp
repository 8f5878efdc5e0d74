#include "platform/tessel/Timer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <thread>

using Tessel::Misc::Timer;

namespace {

TEST(Timer, CountsSecondsWithFractions)
{
    Timer watch;
    const double now = Timer::getTime();
    EXPECT_NEAR(now, static_cast<double>(std::time(nullptr)), 60.0);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_GT(Timer::getTime(), now + 0.01);
    EXPECT_LT(Timer::getTime(), now + 60.0);
    const double first = watch.elapsed();
    EXPECT_GE(first, 0.020);
    EXPECT_LT(first, 60.0);
    watch.restart();
    EXPECT_LT(watch.elapsed(), first);
}

} // namespace
