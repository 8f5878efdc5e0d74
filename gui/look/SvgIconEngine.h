#pragma once

#include <QByteArray>
#include <QHash>
#include <QIconEngine>
#include <QPixmap>

namespace VELIX {

struct Palette;

/// Draws one SVG image at any size and device pixel ratio in the colours of a palette.
///
/// Images are drawn with "currentColor" as their ink and the light look's accent, warning and
/// limit for what carries a meaning; "keepColors" leaves an image as it is (the program's own).
class SvgIconEngine : public QIconEngine
{
public:
    /// \param palette must outlive the engine.
    SvgIconEngine(QByteArray svg, const Palette& palette, bool keepColors);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;

private:
    QByteArray tinted(QIcon::Mode mode) const;

    QByteArray mSvg;
    const Palette* mPalette;
    bool mKeepColors;
    QHash<quint64, QPixmap> mPixmaps; ///< by size in device pixels and mode
};

} // namespace VELIX
