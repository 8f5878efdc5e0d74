#include "gui/look/SvgIconEngine.h"

#include "gui/look/Palette.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QtMath>
#include <algorithm>
#include <utility>

namespace VELIX {

namespace {

constexpr int MaxPictureSide = 2048; // nobody asks for more; guards the cache and its key

} // namespace

SvgIconEngine::SvgIconEngine(QByteArray svg, const Palette& palette, bool keepColours)
    : mSvg(std::move(svg)), mPalette(&palette), mKeepColours(keepColours)
{}

QByteArray SvgIconEngine::tinted(QIcon::Mode mode) const
{
    if (mKeepColours) {
        return mSvg;
    }
    QByteArray svg = mSvg;
    const auto replace = [&svg](const QByteArray& placeholder, const QColor& color) {
        svg.replace(placeholder, color.name().toLatin1());
    };
    const Palette& drawn = Palette::light();
    // Without a use, and on the ground of a selection, a second colour would only disturb.
    const bool oneColour = mode == QIcon::Disabled || mode == QIcon::Selected;
    const QColor ink = mode == QIcon::Disabled   ? mPalette->disabledText
                       : mode == QIcon::Selected ? mPalette->accentText
                                                 : mPalette->text;
    replace(drawn.accent.name().toLatin1(), oneColour ? ink : mPalette->accent);
    replace(drawn.warning.name().toLatin1(), oneColour ? ink : mPalette->warning);
    replace(drawn.limit.name().toLatin1(), oneColour ? ink : mPalette->limit);
    replace(QByteArrayLiteral("currentColor"), ink);
    return svg;
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QSize size(qRound(rect.width() * ratio), qRound(rect.height() * ratio));
    QPixmap picture = pixmap(size, mode, state);
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), picture);
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    const QSize bounded = size.boundedTo(QSize(MaxPictureSide, MaxPictureSide));
    if (bounded.isEmpty()) {
        return {};
    }
    const quint64 key =
        (quint64(bounded.width()) << 32U) | (quint64(bounded.height()) << 8U) | quint64(mode);
    const auto known = mPixmaps.constFind(key);
    if (known != mPixmaps.constEnd()) {
        return *known;
    }
    QPixmap picture(bounded);
    picture.fill(Qt::transparent);
    QSvgRenderer renderer(tinted(mode));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (mKeepColours && mode == QIcon::Disabled) {
        painter.setOpacity(0.4);
    }
    const int side = std::min(bounded.width(), bounded.height());
    renderer.render(
        &painter, QRectF((bounded.width() - side) / 2, (bounded.height() - side) / 2, side, side));
    painter.end();
    mPixmaps.insert(key, picture);
    return picture;
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
