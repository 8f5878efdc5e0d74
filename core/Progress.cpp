#include "core/Progress.h"

#include <utility>

namespace VELIX {

Progress::Progress(Listener listener) : mListener(std::move(listener)) {}

bool Progress::restart()
{
    mPercent = -1;
    return reach(0.0);
}

bool Progress::reach(double from, double to, std::size_t done, std::size_t all)
{
    const double share = all > 0 ? static_cast<double>(done) / static_cast<double>(all) : 1.0;
    return reach(from + (to - from) * share);
}

bool Progress::pass(int percent)
{
    if (!mCancelled) {
        mPercent = percent;
        mCancelled = mListener && !mListener(percent);
    }
    return !mCancelled;
}

} // namespace VELIX
