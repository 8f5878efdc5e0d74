#pragma once

#include <QIcon>
#include <QStringList>

namespace VELIX {
struct Palette;
}

/// The program's pictograms by name, for example "tab-graph", in the colours of a palette.
class ImageHandler
{
public:
    /// Returns images in the palette in force at the first call.
    static ImageHandler& instance();

    /// \param palette must outlive all icons that are taken.
    explicit ImageHandler(const VELIX::Palette& palette);

    /// A null icon and a diagnostic line for a name that does not exist.
    [[nodiscard]] QIcon icon(const QString& name) const;
    /// All names, sorted.
    [[nodiscard]] QStringList names() const;

private:
    const VELIX::Palette& mPalette;
};
