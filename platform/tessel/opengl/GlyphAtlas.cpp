#include "platform/tessel/opengl/GlyphAtlas.h"

#include <QRawFont>

#include <algorithm>
#include <cstring>
#include <utility>

namespace Tessel::OpenGL {

namespace {

constexpr int kFirstSize = 256;
constexpr int kLargestSize = 2048;
constexpr int kGap = 1; ///< keeps neighbours apart when the image is scaled

std::string nameOf(const QRawFont& font)
{
    return QStringLiteral("%1|%2|%3|%4")
        .arg(font.familyName(), font.styleName())
        .arg(font.weight())
        .arg(font.pixelSize())
        .toStdString();
}

} // namespace

GlyphAtlas::Glyph GlyphAtlas::glyph(const QRawFont& font, unsigned int index)
{
    const Key key{nameOf(font), index};
    const auto found = mGlyphs.find(key);
    if (found != mGlyphs.end()) {
        return found->second;
    }
    const QImage image = font.alphaMapForGlyph(index, QRawFont::PixelAntialiasing)
                             .convertToFormat(QImage::Format_Alpha8);
    Glyph glyph;
    if (!image.isNull()) {
        QPoint at;
        if (!place(image.size(), at)) {
            return {};
        }
        for (int y = 0; y < image.height(); ++y) {
            std::memcpy(mImage.scanLine(at.y() + y) + at.x(), image.constScanLine(y),
                        static_cast<std::size_t>(image.width()));
        }
        glyph.area = QRect(at, image.size());
        glyph.bearing = font.boundingRect(index).toAlignedRect().topLeft();
        mChanged = true;
    }
    mGlyphs.emplace(key, glyph);
    return glyph;
}

bool GlyphAtlas::takeChanged()
{
    return std::exchange(mChanged, false);
}

/// Finds room for a glyph and takes it.
bool GlyphAtlas::place(const QSize& size, QPoint& at)
{
    if (std::max(size.width(), size.height()) + kGap > kLargestSize) {
        return false;
    }
    for (;;) {
        if (mPen.x() + size.width() + kGap > mImage.width()) {
            mPen = QPoint(0, mPen.y() + mRowHeight);
            mRowHeight = 0;
        }
        const bool fits = size.width() + kGap <= mImage.width() &&
                          mPen.y() + size.height() + kGap <= mImage.height();
        if (fits) {
            break;
        }
        if (!grow()) {
            restart();
        }
    }
    at = mPen;
    mPen.rx() += size.width() + kGap;
    mRowHeight = std::max(mRowHeight, size.height() + kGap);
    return true;
}

/// Keeps the positions of all glyphs.
bool GlyphAtlas::grow()
{
    const int side = mImage.isNull() ? kFirstSize : mImage.width() * 2;
    if (side > kLargestSize) {
        return false;
    }
    QImage larger(side, side, QImage::Format_Alpha8);
    larger.fill(0);
    for (int y = 0; y < mImage.height(); ++y) {
        std::memcpy(larger.scanLine(y), mImage.constScanLine(y),
                    static_cast<std::size_t>(mImage.width()));
    }
    mImage = larger;
    mChanged = true;
    return true;
}

void GlyphAtlas::restart()
{
    mGlyphs.clear();
    mImage.fill(0);
    mPen = {};
    mRowHeight = 0;
    ++mGeneration;
}

} // namespace Tessel::OpenGL
