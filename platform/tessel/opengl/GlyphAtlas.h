#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <map>
#include <string>
#include <utility>

class QRawFont;

namespace Tessel::OpenGL {

/// The images of glyphs, each rasterised once and packed into one image in rows.
class GlyphAtlas
{
public:
    struct Glyph
    {
        QRect area;     ///< in the atlas; empty for a glyph without ink
        QPoint bearing; ///< upper left corner of the image from the pen, y downwards
    };

    /// Returns a glyph, with an empty area also for one that is larger than the whole atlas. May
    /// drop all others when the atlas is full at its largest size: generation() then changes, and
    /// what was returned before is void.
    Glyph glyph(const QRawFont& font, unsigned int index);
    [[nodiscard]] int generation() const { return mGeneration; }

    /// One byte of coverage a pixel.
    [[nodiscard]] const QImage& image() const { return mImage; }
    /// Whether the image changed since the last call.
    [[nodiscard]] bool takeChanged();

private:
    /// Fonts that replace one another share indices: family, style and size distinguish them.
    using Key = std::pair<std::string, unsigned int>;

    bool place(const QSize& size, QPoint& at);
    bool grow();
    void restart();

    std::map<Key, Glyph> mGlyphs;
    QImage mImage;
    QPoint mPen;
    int mRowHeight = 0;
    int mGeneration = 0;
    bool mChanged = false;
};

} // namespace Tessel::OpenGL
