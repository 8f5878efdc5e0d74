#pragma once

#include <string>

namespace VELIX {

/// Name and version of the program.
class Revision
{
public:
    static std::string getName();
    /// Returns name and version number, as "VELIX 2.1.2".
    static std::string getRevisionString();
    static std::string getRevisionNumber();
    /// Returns date and time of the build, as "Feb 24 2026 17:06:51".
    static std::string compileTime();

    /// Prints the start-up banner.
    static void printHeader();
};

} // namespace VELIX
