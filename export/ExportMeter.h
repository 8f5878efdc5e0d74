#pragma once

#include "export/ExportProgress.h"

#include <cstddef>

namespace VELIX {

/// Passes the progress of one export on, each whole per cent once, and remembers a cancellation.
class ExportMeter
{
public:
    /// The listener must outlive the meter.
    explicit ExportMeter(const ExportProgress& listener) : mListener(listener) {}

    /// False once the export is cancelled.
    [[nodiscard]] bool reach(double percent)
    {
        const int whole = static_cast<int>(percent);
        if (!mCancelled && whole > mPercent) {
            mPercent = whole;
            mCancelled = mListener && !mListener(whole);
        }
        return !mCancelled;
    }
    /// The same for a part of the export, from and to being its per cents.
    [[nodiscard]] bool reach(double from, double to, std::size_t done, std::size_t all)
    {
        const double share = all > 0 ? static_cast<double>(done) / static_cast<double>(all) : 1.0;
        return reach(from + (to - from) * share);
    }
    bool cancelled() const { return mCancelled; }

private:
    const ExportProgress& mListener;
    int mPercent = -1;
    bool mCancelled = false;
};

} // namespace VELIX
