#pragma once

#include <cstdio>

namespace VELIX {

/// The program's printf-style diagnostic lines.
///
/// They go to standard output, where users and test benches read them; a front end that needs
/// standard output for its own results redirects them once at start.
class Diagnostics
{
public:
    static void setStream(std::FILE* stream);
    static std::FILE* stream();

    /// Writes one formatted line (the format brings its own line end).
    [[gnu::format(printf, 1, 2)]] static void print(const char* format, ...);
};

} // namespace VELIX
