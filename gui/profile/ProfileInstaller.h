#pragma once

#include "core/Outcome.h"

#include <QCoreApplication>

namespace VELIX {

/// Copies a profile file into the program's own folder.
class ProfileInstaller
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::ProfileInstaller)

public:
    /// Reads the file as a trial, so that the profile in use is not lost to a file that is none.
    [[nodiscard]] static bool isProfile(const QString& file);
    /// Replaces `destination` by a profile file; if that fails, the old one is kept.
    [[nodiscard]] static Outcome install(const QString& file, const QString& destination);
};

} // namespace VELIX
