#pragma once

#include <string>

namespace VELIX {

/// Reports on its destruction how long the scope took that it stands in.
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
