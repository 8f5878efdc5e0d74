#include "core/Revision.h"

#include "core/Diagnostics.h"

#include <array>
#include <unistd.h>

namespace VELIX {

namespace {

constexpr const char* kName = "VELIX";
// The build hands the project's version in, so that packages and program cannot disagree.
constexpr int kMajor = VELIX_VERSION_MAJOR;
constexpr int kMinor = VELIX_VERSION_MINOR;
constexpr int kRelease = VELIX_VERSION_RELEASE;

constexpr const char* kRule = "-------------------------------------------------";

constexpr const char* kBanner = R"(          _   _ _____ _     _____  __
         | | | | ____| |   |_ _\ \/ /
         | | | |  _| | |    | | \  /
          \ V /| |___| |___ | | /  \
           \_/ |_____|_____|___/_/\_\

       Debriefing of engine monitoring data

)";

std::string workingDirectory()
{
    std::array<char, 256> buffer{};
    return getcwd(buffer.data(), buffer.size()) != nullptr ? buffer.data() : "";
}

} // namespace

std::string Revision::getName()
{
    return kName;
}

std::string Revision::getRevisionString()
{
    return getName() + " " + getRevisionNumber();
}

std::string Revision::getRevisionNumber()
{
    return std::to_string(kMajor) + "." + std::to_string(kMinor) + "." + std::to_string(kRelease);
}

std::string Revision::compileTime()
{
    return __DATE__ " " __TIME__;
}

void Revision::printHeader()
{
    Diagnostics::print("%s\n\n", kRule);
    Diagnostics::print("%s", kBanner);
    Diagnostics::print("                Version  : %s\n", getRevisionString().c_str());
    Diagnostics::print("                Compiled : %s\n", compileTime().c_str());
    Diagnostics::print("                CWD      : %s\n", workingDirectory().c_str());
    Diagnostics::print("%s\n", kRule);
}

} // namespace VELIX
