#include "core/Revision.h"

#include "tests/support/CapturedDiagnostics.h"

#include <gtest/gtest.h>

#include <regex>
#include <unistd.h>

using namespace VELIX;

namespace {

TEST(Revision, NamesTheProgramAndItsVersion)
{
    EXPECT_EQ(Revision::getName(), "VELIX");
    EXPECT_EQ(Revision::getRevisionNumber(), "2.1.2");
    EXPECT_EQ(Revision::getRevisionString(), "VELIX 2.1.2");
    EXPECT_TRUE(std::regex_match(Revision::compileTime(),
                                 std::regex("[A-Z][a-z]{2} [ 1-3]\\d \\d{4} \\d\\d:\\d\\d:\\d\\d")))
        << Revision::compileTime();
}

TEST(Revision, BannerFramesArtworkAndFacts)
{
    VELIX::Test::CapturedDiagnostics output;
    Revision::printHeader();
    const std::string text = output.text();

    const std::string rule(49, '-');
    char folder[256];
    ASSERT_NE(getcwd(folder, sizeof folder), nullptr);
    const std::string facts = "                Version  : VELIX 2.1.2\n"
                              "                Compiled : " +
                              Revision::compileTime() + "\n                CWD      : " + folder +
                              "\n" + rule + "\n";
    EXPECT_EQ(text.rfind(rule + "\n\n", 0), 0U) << text;
    ASSERT_GT(text.size(), facts.size());
    EXPECT_EQ(text.substr(text.size() - facts.size()), facts);
}

} // namespace
