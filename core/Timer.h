#pragma once

#include <string>

namespace VELIX {

/// Reports, when it is destroyed, how long its scope took.
class Timer
{
public:
    explicit Timer(std::string name);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

private:
    std::string mName;
    double mStart; ///< wall clock, seconds since 1970-01-01 UTC
};

} // namespace VELIX
