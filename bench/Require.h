#pragma once

#include <cstdio>
#include <cstdlib>

namespace VELIX {

/// Ends the benchmark with a sentence unless `holds`.
inline void require(bool holds, const char* sentence)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", sentence);
        std::abort();
    }
}

} // namespace VELIX
