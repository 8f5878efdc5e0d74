#include "platform/viewlib/ViewSurface.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Vista2D {

ViewSurface::ViewSurface(QPainter& painter, double scale, const ViewColors& colors)
    : mPainter(painter), mScale(scale), mColors(colors)
{
    mPainter.setRenderHint(QPainter::Antialiasing);
    mPainter.setRenderHint(QPainter::TextAntialiasing);
}

QColor ViewSurface::stateColor(int state, const QColor& normal) const
{
    return state <= 0 ? normal : state == 1 ? mColors.warning : mColors.limit;
}

QPainter& ViewSurface::shapes()
{
    mPainter.setTransform(QTransform::fromScale(mScale, mScale));
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(Qt::NoBrush);
    return mPainter;
}

void ViewSurface::ring(const QPointF& center, double radius, double width, double from, double to,
                       const QColor& color)
{
    if (!(radius > 0.0) || !(width > 0.0) || from == to) {
        return;
    }
    const QRectF circle(center - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
    QPainterPath path;
    path.arcMoveTo(circle, 90.0 - from);
    path.arcTo(circle, 90.0 - from, from - to);
    QPainter& painter = shapes();
    painter.strokePath(path, QPen(color, width, Qt::SolidLine, Qt::FlatCap));
}

void ViewSurface::box(const QRectF& box, double corner, const QColor& fill, const QColor& line,
                      double width)
{
    QPainter& painter = shapes();
    if (fill.isValid()) {
        painter.setBrush(fill);
    }
    const bool hasLine = line.isValid() && width > 0.0;
    if (hasLine) {
        painter.setPen(QPen(line, width));
    }
    const double inside = hasLine ? width / 2.0 : 0.0;
    painter.drawRoundedRect(box.adjusted(inside, inside, -inside, -inside), corner, corner);
}

QFont ViewSurface::font(double size, bool bold) const
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(std::clamp(size * mScale, 1.0, 2000.0));
    font.setBold(bold);
    font.setStretch(QFont::SemiCondensed); // more room for digits, as on displays of aircraft
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void ViewSurface::text(const ViewText& style, const QString& text, const QColor& color)
{
    mPainter.resetTransform();
    mPainter.setFont(font(style.size, style.bold));
    mPainter.setPen(color);
    const QFontMetricsF metrics(mPainter.font(), mPainter.device());
    // Large letters cost most, even outside of the panel, so that the panel is the limit.
    const double panel = mPainter.device()->width();
    const double room = style.width > 0.0 ? std::min(style.width * mScale, panel) : panel;
    QString shown = text;
    double width = metrics.horizontalAdvance(text);
    if (width > room) {
        shown = metrics.elidedText(text, Qt::ElideRight, room);
        width = metrics.horizontalAdvance(shown);
    }
    QPointF at = style.at * mScale;
    if (style.align != ViewText::Align::Left) {
        at.rx() -= style.align == ViewText::Align::Right ? width : width / 2.0;
    }
    // Base lines on whole pixels keep the feet of the letters sharp.
    mPainter.drawText(QPointF(at.x(), std::round(at.y())), shown);
}

void ViewSurface::centered(const QPointF& center, double size, bool bold, const QString& text,
                           const QColor& color)
{
    ViewText style;
    style.size = size;
    style.bold = bold;
    style.align = ViewText::Align::Center;
    const QFontMetricsF metrics(font(size, bold), mPainter.device());
    style.at = center + QPointF(0.0, metrics.capHeight() / 2.0 / mScale);
    this->text(style, text, color);
}

} // namespace Vista2D
