#pragma once

#include <chrono>

namespace Tessel::Misc {

/// Wall clock and stopwatch.
class Timer
{
public:
    /// Wall clock in seconds since 1970-01-01 00:00 UTC, with microseconds. It follows corrections
    /// of the system's clock, so durations that must not jump are taken with a stopwatch.
    static double getTime();

    /// Seconds since construction or the last restart(), on a clock that never runs backwards.
    double elapsed() const;
    void restart();

private:
    std::chrono::steady_clock::time_point mStart = std::chrono::steady_clock::now();
};

} // namespace Tessel::Misc
