#pragma once

#include <QString>

#include <functional>

class QIODevice;

namespace VELIX {

/// Writes an exported file as a whole or not at all.
///
/// `fill` writes the content and returns false if the device does not take it. A plain or new file
/// is written beside its target and renamed over it, so that a failure leaves the old one; devices
/// and pipes are written to directly, since renaming would replace them. The system's reason for a
/// failure; none if everything was written.
[[nodiscard]] QString writeOutputFile(const QString& path,
                                      const std::function<bool(QIODevice&)>& fill);

} // namespace VELIX
