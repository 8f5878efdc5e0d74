#include "core/CmdLine.h"

#include "core/Diagnostics.h"

namespace VELIX {

CmdLine& CmdLine::instance()
{
    static CmdLine cmdLine;
    return cmdLine;
}

void CmdLine::addSwitch(const std::string& name, const std::string& description)
{
    mOptions[name] = Option{Kind::Switch, false, description, "false"};
}

void CmdLine::addParameter(const std::string& name, const std::string& description,
                           const std::string& def)
{
    mOptions[name] = Option{Kind::Parameter, false, description, def};
}

bool CmdLine::parse(int argc, const char* const* argv)
{
    mProgramName = argc > 0 ? argv[0] : "";

    bool allKnown = true;
    for (int i = 1; i < argc; ++i) {
        const auto found = mOptions.find(argv[i]);
        if (found == mOptions.end()) {
            Diagnostics::print("unknown option %s\n", argv[i]);
            allKnown = false;
            continue;
        }
        Option& option = found->second;
        option.set = true;
        if (option.kind == Kind::Switch) {
            option.value = option.value == "true" ? "false" : "true";
        } else if (i + 1 < argc) {
            option.value = argv[++i];
        }
    }
    return allKnown;
}

bool CmdLine::getSwitch(const std::string& name) const
{
    const auto found = mOptions.find(name);
    return found != mOptions.end() && found->second.set;
}

bool CmdLine::getParameter(const std::string& name, std::string& value) const
{
    const auto found = mOptions.find(name);
    if (found == mOptions.end()) {
        value.clear();
        return false;
    }
    value = found->second.value;
    return found->second.set;
}

void CmdLine::printUsage() const
{
    Diagnostics::print("Usage of %s :\n", mProgramName.c_str());
    for (const auto& [name, option] : mOptions) {
        if (option.kind == Kind::Switch) {
            Diagnostics::print("%-8s %s\n", name.c_str(), option.description.c_str());
        } else {
            Diagnostics::print("%-8s [%s] default [%s]\n", name.c_str(), option.description.c_str(),
                               option.value.c_str());
        }
    }
    Diagnostics::print("\n");
}

} // namespace VELIX
