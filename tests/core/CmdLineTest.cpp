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

/// Switch, parameter and a name that was never added: "+" if given or "-", then its text.
std::string options(const CmdLine& line)
{
    std::string all;
    for (const char* name : {"-emu", "-s", "-nothing"}) {
        std::string text = "stale";
        const bool given = line.getParameter(name, text);
        EXPECT_EQ(line.getSwitch(name), given) << name;
        all += (given ? "+" : "-") + text + " ";
    }
    return all;
}

TEST(CmdLine, Parses)
{
    struct Row
    {
        const char* name;
        std::vector<const char*> arguments;
        const char* options;
        const char* complaints;
    };
    const Row rows[] = {
        {"no arguments", {}, "-false - - ", ""},
        {"switch", {"-emu"}, "+true - - ", ""},
        {"switch twice toggles its text only", {"-emu", "-emu"}, "+false - - ", ""},
        {"last parameter wins", {"-s", "a", "-s", "b"}, "-false +b - ", ""},
        {"parameter without a value", {"-s"}, "-false + - ", ""},
        {"earlier value survives a missing one", {"-s", "a", "-s"}, "-false +a - ", ""},
        {"parameter swallows an option", {"-s", "-emu"}, "-false +-emu - ", ""},
        {"unknown ones are passed over",
         {"-x", "-emu", "f"},
         "+true - - ",
         "unknown option -x\nunknown option f\n"},
        {"case matters", {"-EMU"}, "-false - - ", "unknown option -EMU\n"},
        {"no equals sign", {"-s=a"}, "-false - - ", "unknown option -s=a\n"},
        {"percent signs are plain text", {"%s%n"}, "-false - - ", "unknown option %s%n\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        std::vector<const char*> argv{"velix"};
        argv.insert(argv.end(), row.arguments.begin(), row.arguments.end());
        CmdLine line = makeCmdLine();
        VELIX::Test::CapturedDiagnostics output;
        const bool known = line.parse(static_cast<int>(argv.size()), argv.data());
        EXPECT_EQ(known, output.text().empty());
        EXPECT_EQ(output.text(), row.complaints);
        EXPECT_EQ(options(line), row.options);
    }
    EXPECT_TRUE(makeCmdLine().parse(0, nullptr)) << "not even the program's name";
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
