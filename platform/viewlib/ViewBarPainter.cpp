#include "platform/viewlib/ViewBarPainter.h"

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewSurface.h"

#include <algorithm>
#include <cmath>

namespace Vista2D {

namespace {

constexpr double kGap = 2.0;   // view units between the bar and its bands
constexpr double kBand = 3.0;  // width of the bands
constexpr double kTick = 4.0;  // length of a long tick
constexpr double kRound = 1.5; // radius of corners

} // namespace

/// The part of a strip along the bar between two parts of the range.
QRectF ViewBarPainter::stretch(const QRectF& strip, double from, double to) const
{
    const double least = std::min(from, to);
    const double most = std::max(from, to);
    if (isUpright()) {
        return {strip.x(), strip.bottom() - most * strip.height(), strip.width(),
                (most - least) * strip.height()};
    }
    return {strip.x() + least * strip.width(), strip.y(), (most - least) * strip.width(),
            strip.height()};
}

/// A strip beside the bar, on the side of its ticks.
QRectF ViewBarPainter::beside(double distance, double width) const
{
    const bool isBefore = mBar.ticks == ViewBar::Side::Before;
    if (isUpright()) {
        const double x =
            isBefore ? mBar.box.left() - distance - width : mBar.box.right() + distance;
        return {x, mBar.box.y(), width, mBar.box.height()};
    }
    const double y = isBefore ? mBar.box.top() - distance - width : mBar.box.bottom() + distance;
    return {mBar.box.x(), y, mBar.box.width(), width};
}

void ViewBarPainter::paintTickText(const QRectF& tick, const QString& text)
{
    ViewText style;
    style.size = mBar.tickText;
    const double cap = mBar.tickText * 0.73;
    const bool isBefore = mBar.ticks == ViewBar::Side::Before;
    if (isUpright()) {
        style.align = isBefore ? ViewText::Align::Right : ViewText::Align::Left;
        style.at = QPointF(isBefore ? tick.left() - kGap : tick.right() + kGap,
                           tick.center().y() + cap / 2.0);
    } else {
        style.align = ViewText::Align::Center;
        style.at =
            QPointF(tick.center().x(), isBefore ? tick.top() - kGap : tick.bottom() + kGap + cap);
    }
    mSurface.text(style, text, mSurface.colors().muted);
}

void ViewBarPainter::paintTicks(const ViewScale& scale)
{
    for (const ViewTick& tick : ticksOf(scale)) {
        const double part = partOfRange(scale, tick.at);
        const QRectF strip = beside(kGap + kBand + 1.0, tick.isLong ? kTick : kTick * 0.5);
        const QRectF place = stretch(strip, part, part);
        QPainter& painter = mSurface.shapes();
        painter.setPen(QPen(mSurface.colors().muted, 1.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(place.topLeft(), place.bottomRight());
        if (tick.isLong && mBar.tickText > 0.0) {
            paintTickText(place, tickText(scale, tick.at));
        }
    }
}

void ViewBarPainter::paintPointer(double part, const QColor& color)
{
    const QRectF place = stretch(mBar.box, part, part);
    const double half = (isUpright() ? place.width() : place.height()) * 0.5;
    QPainter& painter = mSurface.shapes();
    painter.setBrush(color);
    painter.setPen(QPen(mSurface.colors().background, 1.2));
    const QPointF tip = place.center();
    const QPointF along = isUpright() ? QPointF(0.0, half) : QPointF(half, 0.0);
    const QPointF across = isUpright() ? QPointF(half, 0.0) : QPointF(0.0, half);
    // A rhomb: it reads the same from either side of the scale.
    const QPointF outline[] = {tip - across * 1.4, tip + along, tip + across * 1.4, tip - along};
    painter.drawConvexPolygon(outline, 4);
}

void ViewBarPainter::paintTrack(const ViewScale& scale)
{
    mSurface.box(mBar.box, kRound, mSurface.colors().track);
    for (const ViewBand& band : scale.bands) {
        const QRectF strip = beside(kGap, kBand);
        mSurface.box(stretch(strip, partOfRange(scale, band.from), partOfRange(scale, band.to)),
                     0.0, band.color);
    }
    if (mBar.ticks != ViewBar::Side::None) {
        paintTicks(scale);
    }
    for (const ViewBand& mark : scale.marks) {
        const double part = partOfRange(scale, mark.from);
        const QRectF place = stretch(mBar.box, part, part);
        QPainter& painter = mSurface.shapes();
        painter.setPen(QPen(mark.color, 2.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(place.topLeft(), place.bottomRight());
    }
}

void ViewBarPainter::paintLevel(const ViewReading& reading)
{
    const double part = partOfRange(*reading.scale, reading.shown);
    if (std::isnan(part)) {
        return;
    }
    const QColor color = mSurface.stateColor(reading.state, mBar.color);
    if (mBar.style == ViewBar::Style::Pointer) {
        paintPointer(part, color);
    } else {
        mSurface.box(stretch(mBar.box, 0.0, part), kRound, color);
    }
}

} // namespace Vista2D
