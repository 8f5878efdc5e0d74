#include "core/DllApi.h"

#include "tests/support/CapturedDiagnostics.h"

#include <gtest/gtest.h>

using namespace VELIX;

namespace {

TEST(DllApi, FindsSymbolsOfAnOpenedLibrary)
{
    void* library = apiDllOpen("libm.so.6");
    ASSERT_NE(library, nullptr);
    EXPECT_NE(apiDllGetSymbol(library, "cos"), nullptr);
    EXPECT_EQ(apiDllGetSymbol(library, "no_such_function"), nullptr);
    apiDllClose(library);
}

TEST(DllApi, SaysWhyALibraryCannotBeOpened)
{
    VELIX::Test::CapturedDiagnostics output;
    EXPECT_EQ(apiDllOpen("/nowhere/libNothing.so"), nullptr);
    const std::string text = output.text();
    EXPECT_EQ(text.rfind("Error dlopen: /nowhere/libNothing.so: ", 0), 0U) << text;
    EXPECT_EQ(text.back(), '\n');
}

TEST(DllApi, NullYieldsNullInSilence)
{
    VELIX::Test::CapturedDiagnostics output;
    EXPECT_EQ(apiDllOpen(nullptr), nullptr);
    EXPECT_EQ(apiDllGetSymbol(nullptr, "cos"), nullptr); // not a search of the whole program
    apiDllClose(nullptr);
    EXPECT_EQ(output.text(), "");
}

} // namespace
