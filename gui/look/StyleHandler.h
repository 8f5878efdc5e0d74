#pragma once

#include <QString>

namespace VELIX {
struct Palette;
}

/// Reads style sheets that name colours and sizes instead of repeating them.
///
/// "@name" stands for a member of the palette ("@accent"), for a measure ("@gap") or for the name
/// of the look ("@look": "light" or "dark").
class StyleHandler
{
public:
    /// The style sheet of a file or built-in resource in the colours of the palette in force.
    /// A file that cannot be read gives an empty text and a diagnostic line.
    [[nodiscard]] static QString readStyle(const QString& path);

    /// `text` with its names replaced. An unknown name stays as it is and is reported.
    [[nodiscard]] static QString replaceNames(const QString& text, const VELIX::Palette& palette);
};
