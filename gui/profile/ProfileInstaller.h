#pragma once

#include <QString>

namespace VELIX {

/// Copies a profile file into the program's own folder, after making sure that it is one.
class ProfileInstaller
{
public:
    enum class Result { Installed, NotAProfile, CopyFailed };

    /// Replaces `destination`; on a failure the old one is kept.
    [[nodiscard]] static Result install(const QString& file, const QString& destination);
};

} // namespace VELIX
