#include "core/Timer.h"

#include "tests/support/CapturedDiagnostics.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace {

TEST(ScopeTimer, PrintsMillisecondsWhenItsScopeEnds)
{
    VELIX::Test::CapturedDiagnostics output;
    {
        const VELIX::Timer timer("load %d");
        std::this_thread::sleep_for(std::chrono::milliseconds(15));
        EXPECT_EQ(output.text(), "");
    }
    const std::string text = output.text();
    const std::string head = "load %d : ";
    ASSERT_EQ(text.rfind(head, 0), 0U) << text;
    char* end = nullptr;
    const double milliseconds = std::strtod(text.c_str() + head.size(), &end);
    EXPECT_GE(milliseconds, 14.9);
    EXPECT_LT(milliseconds, 60000.0);
    EXPECT_STREQ(end, " ms\n");
}

} // namespace
