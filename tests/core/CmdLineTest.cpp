#include "core/CmdLine.h"

#include "tests/support/CapturedDiagnostics.h"

#include <gtest/gtest.h>

#include <vector>

using namespace VELIX;

namespace {

CmdLine makeCmdLine()
{
    CmdLine line;
    line.addSwitch("-h", "print this help");
    line.addSwitch("-emu", "EMU display only");
    line.addSwitch("-connect", "connect after startup");
    line.addParameter("-s", "stylefile to load", "");
    return line;
}

struct Row
{
    const char* name;
    std::vector<const char*> arguments;
    bool known;
    const char* printed;
    bool emuSet;
    const char* emuText;
    bool styleSet;
    const char* styleText;
};

TEST(CmdLine, Parses)
{
    const Row rows[] = {
        {"no arguments", {}, true, "", false, "false", false, ""},
        {"switch", {"-emu"}, true, "", true, "true", false, ""},
        {"switch twice toggles its text only",
         {"-emu", "-emu"},
         true,
         "",
         true,
         "false",
         false,
         ""},
        {"switch three times", {"-emu", "-emu", "-emu"}, true, "", true, "true", false, ""},
        {"parameter", {"-s", "a.css"}, true, "", false, "false", true, "a.css"},
        {"last parameter wins", {"-s", "a", "-s", "b"}, true, "", false, "false", true, "b"},
        {"parameter without a value", {"-s"}, true, "", false, "false", true, ""},
        {"earlier value survives a missing one",
         {"-s", "a", "-s"},
         true,
         "",
         false,
         "false",
         true,
         "a"},
        {"parameter swallows an option", {"-s", "-emu"}, true, "", false, "false", true, "-emu"},
        {"unknown ones are passed over",
         {"-x", "-emu", "file"},
         false,
         "unknown option -x\nunknown option file\n",
         true,
         "true",
         false,
         ""},
        {"case matters", {"-EMU"}, false, "unknown option -EMU\n", false, "false", false, ""},
        {"no double dash", {"--emu"}, false, "unknown option --emu\n", false, "false", false, ""},
        {"no equals sign", {"-s=a"}, false, "unknown option -s=a\n", false, "false", false, ""},
        {"percent signs are plain text",
         {"%s%n"},
         false,
         "unknown option %s%n\n",
         false,
         "false",
         false,
         ""},
        {"empty argument", {""}, false, "unknown option \n", false, "false", false, ""},
    };
    for (const Row& row : rows) {
        std::vector<const char*> argv{"velix"};
        argv.insert(argv.end(), row.arguments.begin(), row.arguments.end());
        CmdLine line = makeCmdLine();
        VELIX::Test::CapturedDiagnostics output;
        EXPECT_EQ(line.parse(static_cast<int>(argv.size()), argv.data()), row.known) << row.name;
        EXPECT_EQ(output.text(), row.printed) << row.name;

        std::string text;
        EXPECT_EQ(line.getSwitch("-emu"), row.emuSet) << row.name;
        EXPECT_EQ(line.getParameter("-emu", text), row.emuSet) << row.name;
        EXPECT_EQ(text, row.emuText) << row.name;
        EXPECT_EQ(line.getParameter("-s", text), row.styleSet) << row.name;
        EXPECT_EQ(text, row.styleText) << row.name;
    }
}

TEST(CmdLine, AnEmptyVectorIsNoError)
{
    CmdLine line = makeCmdLine();
    EXPECT_TRUE(line.parse(0, nullptr));
}

TEST(CmdLine, NamesThatWereNeverAddedAreUnsetAndEmpty)
{
    const CmdLine line = makeCmdLine();
    std::string value = "stale";
    EXPECT_FALSE(line.getSwitch("-nothing"));
    EXPECT_FALSE(line.getParameter("-nothing", value));
    EXPECT_EQ(value, "");
}

TEST(CmdLine, UsageListsOptionsByNameAndShowsGivenValues)
{
    CmdLine line = makeCmdLine();
    const char* argv[] = {"./bin/velix", "-s", "style.css", "-h"};
    ASSERT_TRUE(line.parse(4, argv));
    VELIX::Test::CapturedDiagnostics output;
    line.printUsage();
    EXPECT_EQ(output.text(), "Usage of ./bin/velix :\n"
                             "-connect connect after startup\n"
                             "-emu     EMU display only\n"
                             "-h       print this help\n"
                             "-s       [stylefile to load] default [style.css]\n"
                             "\n");
}

} // namespace
