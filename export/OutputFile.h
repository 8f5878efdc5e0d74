#pragma once

#include <QString>

#include <functional>
#include <string>

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

/// Writes an export's file and says on failure why, in `error` and to the diagnostics. 1 if it was
/// written, else 0; if `fill` cancelled itself, which `cancelled` tells then, without a reason.
[[nodiscard]] int writeExport(const std::string& directory, const std::string& fileName,
                              const std::function<bool(QIODevice&)>& fill, const bool& cancelled,
                              QString& error);

} // namespace VELIX
