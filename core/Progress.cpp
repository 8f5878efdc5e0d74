#include "core/Progress.h"

#include <utility>

namespace VELIX {

namespace {
Progress::Hook gHook;
} // namespace

void Progress::setHook(Hook hook)
{
    gHook = std::move(hook);
}

void Progress::report(int percent)
{
    if (gHook) {
        gHook(percent);
    }
}

} // namespace VELIX
