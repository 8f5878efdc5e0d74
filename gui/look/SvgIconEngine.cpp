#include "gui/look/SvgIconEngine.h"

#include "gui/look/Palette.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QtMath>
#include <algorithm>
#include <utility>

namespace VELIX {

namespace {

constexpr int MaxImageSide = 2048; // more is never drawn; guards the cache and its key

} // namespace

SvgIconEngine::SvgIconEngine(QByteArray svg, const Palette& palette, bool keepColors)
    : mSvg(std::move(svg)), mPalette(&palette), mKeepColors(keepColors)
{}

QByteArray SvgIconEngine::tinted(QIcon::Mode mode) const
{
    if (mKeepColors) {
        return mSvg;
    }
    QByteArray svg = mSvg;
    const auto replace = [&svg](const QByteArray& placeholder, const QColor& color) {
        svg.replace(placeholder, color.name().toLatin1());
    };
    const Palette& drawn = Palette::light();
    // Without a use, and on the background of a selection, a second colour would only disturb.
    const bool oneColor = mode == QIcon::Disabled || mode == QIcon::Selected;
    const QColor ink = mode == QIcon::Disabled   ? mPalette->disabledText
                       : mode == QIcon::Selected ? mPalette->accentText
                                                 : mPalette->text;
    replace(drawn.accent.name().toLatin1(), oneColor ? ink : mPalette->accent);
    replace(drawn.warning.name().toLatin1(), oneColor ? ink : mPalette->warning);
    replace(drawn.limit.name().toLatin1(), oneColor ? ink : mPalette->limit);
    replace(QByteArrayLiteral("currentColor"), ink);
    return svg;
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QSize size(qRound(rect.width() * ratio), qRound(rect.height() * ratio));
    QPixmap image = pixmap(size, mode, state);
    image.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), image);
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    const QSize bounded = size.boundedTo(QSize(MaxImageSide, MaxImageSide));
    if (bounded.isEmpty()) {
        return {};
    }
    const quint64 key =
        (quint64(bounded.width()) << 32U) | (quint64(bounded.height()) << 8U) | quint64(mode);
    const auto known = mPixmaps.constFind(key);
    if (known != mPixmaps.constEnd()) {
        return *known;
    }
    QPixmap image(bounded);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(tinted(mode));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (mKeepColors && mode == QIcon::Disabled) {
        painter.setOpacity(0.4);
    }
    const int side = std::min(bounded.width(), bounded.height());
    const QRect square((bounded.width() - side) / 2, (bounded.height() - side) / 2, side, side);
    renderer.render(&painter, square); // at whole pixels
    painter.end();
    mPixmaps.insert(key, image);
    return image;
}

QSize SvgIconEngine::actualSize(const QSize& size, QIcon::Mode, QIcon::State)
{
    const int side = std::min(size.width(), size.height());
    return {side, side};
}

QIconEngine* SvgIconEngine::clone() const
{
    return new SvgIconEngine(*this);
}

QString SvgIconEngine::key() const
{
    return QStringLiteral("velix-svg");
}

} // namespace VELIX
