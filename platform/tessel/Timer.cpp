#include "platform/tessel/Timer.h"

namespace Tessel::Misc {

double Timer::getTime()
{
    using namespace std::chrono;
    const auto sinceEpoch = system_clock::now().time_since_epoch();
    return static_cast<double>(duration_cast<microseconds>(sinceEpoch).count()) / 1e6;
}

double Timer::elapsed() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - mStart).count();
}

void Timer::restart()
{
    mStart = std::chrono::steady_clock::now();
}

} // namespace Tessel::Misc
