#pragma once

#include <QString>

namespace VELIX::Demo {

/// Writes the demo card's record files into an existing folder, the same bytes every time and
/// everywhere. False if a file cannot be written.
[[nodiscard]] bool writeDemoCard(const QString& folder);

} // namespace VELIX::Demo
