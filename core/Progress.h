#pragma once

#include <functional>

namespace VELIX {

/// Where long work reports how far it is, without knowing who shows it.
///
/// The main window installs a hook; without one, reports go nowhere.
class Progress
{
public:
    using Hook = std::function<void(int percent)>;

    static void setHook(Hook hook);
    /// percent: 0 to 100 of the work in hand (each record file starts again at 0).
    static void report(int percent);
};

} // namespace VELIX
