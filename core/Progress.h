#pragma once

#include <cstddef>
#include <functional>

namespace VELIX {

/// Passes on how far a long operation is, each whole per cent once and never falling, and remembers
/// a cancellation.
///
/// Readers and writers take one by reference from their caller, who can see afterwards whether it
/// was cancelled. Without a listener nothing is reported and nothing can be cancelled.
class Progress
{
public:
    /// percent: 0 to 100. False cancels the operation.
    using Listener = std::function<bool(int percent)>;

    Progress() = default;
    explicit Progress(Listener listener);

    /// Reports 0 again for the next part of an operation, whose parts count from 0 to 100 each.
    /// False once the operation is cancelled.
    [[nodiscard]] bool restart();
    /// Reports that so many per cent are done. False once the operation is cancelled.
    [[nodiscard]] bool reach(double percent)
    {
        const int whole = static_cast<int>(percent);
        return whole > mPercent ? pass(whole) : !mCancelled;
    }
    /// Reports `done` of `all` steps of the part that lies between two percentages.
    /// False once the operation is cancelled.
    [[nodiscard]] bool reach(double from, double to, std::size_t done, std::size_t all);

    bool cancelled() const { return mCancelled; }

private:
    bool pass(int percent);

    Listener mListener;
    int mPercent = -1; ///< the last one passed on
    bool mCancelled = false;
};

} // namespace VELIX
