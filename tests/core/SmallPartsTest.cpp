// The classes of the core that one test each says enough about.

#include "core/DllApi.h"
#include "core/Timer.h"
#include "tests/support/CapturedDiagnostics.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

using namespace VELIX;
using VELIX::Test::CapturedDiagnostics;

namespace {

TEST(DllApi, FindsSymbolsAndSaysWhyALibraryCannotBeOpened)
{
    CapturedDiagnostics output;
    void* library = apiDllOpen("libm.so.6");
    ASSERT_NE(library, nullptr);
    EXPECT_NE(apiDllGetSymbol(library, "cos"), nullptr);
    EXPECT_EQ(apiDllGetSymbol(library, "no_such_function"), nullptr);
    apiDllClose(library);

    EXPECT_EQ(apiDllOpen(nullptr), nullptr);
    EXPECT_EQ(apiDllGetSymbol(nullptr, "cos"), nullptr) << "not a search of the whole program";
    apiDllClose(nullptr);
    EXPECT_EQ(output.text(), "");

    EXPECT_EQ(apiDllOpen("/nowhere/libNothing.so"), nullptr);
    EXPECT_EQ(output.text().rfind("Error dlopen: /nowhere/libNothing.so: ", 0), 0U);
}

TEST(ScopeTimer, PrintsMillisecondsWhenItsScopeEnds)
{
    CapturedDiagnostics output;
    {
        const VELIX::Timer timer("load %d");
        std::this_thread::sleep_for(std::chrono::milliseconds(15));
        EXPECT_EQ(output.text(), "");
    }
    const std::string text = output.text();
    const std::string head = "load %d : ";
    ASSERT_EQ(text.rfind(head, 0), 0U) << text;
    char* end = nullptr;
    EXPECT_GE(std::strtod(text.c_str() + head.size(), &end), 14.9);
    EXPECT_STREQ(end, " ms\n");
}

} // namespace
