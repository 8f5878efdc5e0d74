#include "core/Timer.h"

#include "core/Diagnostics.h"
#include "platform/tessel/Timer.h"

#include <utility>

namespace VELIX {

Timer::Timer(std::string name) : mName(std::move(name)), mStart(Tessel::Misc::Timer::getTime()) {}

Timer::~Timer()
{
    const double milliseconds = (Tessel::Misc::Timer::getTime() - mStart) * 1000.0;
    Diagnostics::print("%s : %g ms\n", mName.c_str(), milliseconds);
}

} // namespace VELIX
