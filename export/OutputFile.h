#pragma once

#include "core/Outcome.h"

#include <QString>

#include <functional>
#include <string>

class QIODevice;

namespace VELIX {

class Progress;

/// Returns the file of a folder and a name, both UTF-8, as the options of an export hold them.
QString outputPath(const std::string& directory, const std::string& fileName);
/// Returns the same file from the root on, for the user.
QString absoluteOutputPath(const std::string& directory, const std::string& fileName);

/// Writes an exported file as a whole or not at all.
///
/// `fill` writes the content and returns false if the device does not take it. A plain or new file
/// is written beside its target and renamed over it, so that a failure leaves the old one; devices
/// and pipes are written to directly, since renaming would replace them. Fails for the system's
/// reason.
[[nodiscard]] Outcome writeOutputFile(const QString& path,
                                      const std::function<bool(QIODevice&)>& fill);

/// Writes an export's file in the same way and says in the diagnostics why that failed.
/// progress: that of `fill`, which returns false once it is cancelled.
[[nodiscard]] Outcome writeExport(const QString& path, const std::function<bool(QIODevice&)>& fill,
                                  const Progress& progress);

} // namespace VELIX
