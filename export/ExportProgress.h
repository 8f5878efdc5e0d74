#pragma once

#include <functional>

namespace VELIX {

/// Hears how far an export is, 0 to 100 per cent, never falling; false cancels it.
using ExportProgress = std::function<bool(int percent)>;

} // namespace VELIX
