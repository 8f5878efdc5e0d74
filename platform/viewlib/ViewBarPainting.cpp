#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewInstruments.h"
#include "platform/viewlib/ViewSurface.h"

#include <algorithm>
#include <cmath>

namespace Vista2D {

namespace {

constexpr double kGap = 2.0;   // view units between the bar and its bands
constexpr double kBand = 3.0;  // width of the bands
constexpr double kTick = 4.0;  // length of a long tick
constexpr double kRound = 1.5; // radius of corners

bool isUpright(const ViewBar& bar)
{
    return bar.direction == ViewBar::Direction::Up;
}

/// The part of a strip along the bar that lies between two parts of the range.
QRectF stretch(const ViewBar& bar, const QRectF& strip, double from, double to)
{
    const double least = std::min(from, to);
    const double most = std::max(from, to);
    if (isUpright(bar)) {
        return {strip.x(), strip.bottom() - most * strip.height(), strip.width(),
                (most - least) * strip.height()};
    }
    return {strip.x() + least * strip.width(), strip.y(), (most - least) * strip.width(),
            strip.height()};
}

/// A strip beside the bar, on the side of its ticks.
QRectF beside(const ViewBar& bar, double distance, double width)
{
    const bool isBefore = bar.ticks == ViewBar::Side::Before;
    if (isUpright(bar)) {
        const double x = isBefore ? bar.box.left() - distance - width : bar.box.right() + distance;
        return {x, bar.box.y(), width, bar.box.height()};
    }
    const double y = isBefore ? bar.box.top() - distance - width : bar.box.bottom() + distance;
    return {bar.box.x(), y, bar.box.width(), width};
}

void paintTickText(ViewSurface& surface, const ViewBar& bar, const QRectF& place,
                   const QString& text)
{
    ViewText style;
    style.size = bar.tickText;
    const double cap = bar.tickText * 0.73;
    const bool isBefore = bar.ticks == ViewBar::Side::Before;
    if (isUpright(bar)) {
        style.align = isBefore ? ViewText::Align::Right : ViewText::Align::Left;
        style.at = QPointF(isBefore ? place.left() - kGap : place.right() + kGap,
                           place.center().y() + cap / 2.0);
    } else {
        style.align = ViewText::Align::Center;
        style.at = QPointF(place.center().x(),
                           isBefore ? place.top() - kGap : place.bottom() + kGap + cap);
    }
    surface.text(style, text, surface.colors().muted);
}

void paintTicks(ViewSurface& surface, const ViewBar& bar, const ViewScale& scale)
{
    for (const ViewTick& tick : ticksOf(scale)) {
        const double part = partOfRange(scale, tick.at);
        const QRectF strip = beside(bar, kGap + kBand + 1.0, tick.isLong ? kTick : kTick * 0.5);
        const QRectF place = stretch(bar, strip, part, part);
        QPainter& painter = surface.shapes();
        painter.setPen(QPen(surface.colors().muted, 1.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(place.topLeft(), place.bottomRight());
        if (tick.isLong && bar.tickText > 0.0) {
            paintTickText(surface, bar, place, tickText(scale, tick.at));
        }
    }
}

void paintPointer(ViewSurface& surface, const ViewBar& bar, double part, const QColor& color)
{
    const QRectF place = stretch(bar, bar.box, part, part);
    const double half = (isUpright(bar) ? place.width() : place.height()) * 0.5;
    QPainter& painter = surface.shapes();
    painter.setBrush(color);
    painter.setPen(QPen(surface.colors().background, 1.2));
    const QPointF tip = place.center();
    const QPointF along = isUpright(bar) ? QPointF(0.0, half) : QPointF(half, 0.0);
    const QPointF across = isUpright(bar) ? QPointF(half, 0.0) : QPointF(0.0, half);
    // A rhomb: it reads the same from either side of the scale.
    const QPointF outline[] = {tip - across * 1.4, tip + along, tip + across * 1.4, tip - along};
    painter.drawConvexPolygon(outline, 4);
}

} // namespace

void paintTrack(ViewSurface& surface, const ViewBar& bar, const ViewScale& scale)
{
    surface.box(bar.box, kRound, surface.colors().track);
    for (const ViewBand& band : scale.bands) {
        const QRectF strip = beside(bar, kGap, kBand);
        surface.box(stretch(bar, strip, partOfRange(scale, band.from), partOfRange(scale, band.to)),
                    0.0, band.color);
    }
    if (bar.ticks != ViewBar::Side::None) {
        paintTicks(surface, bar, scale);
    }
    for (const ViewBand& mark : scale.marks) {
        const double part = partOfRange(scale, mark.from);
        const QRectF place = stretch(bar, bar.box, part, part);
        QPainter& painter = surface.shapes();
        painter.setPen(QPen(mark.color, 2.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(place.topLeft(), place.bottomRight());
    }
}

void paintLevel(ViewSurface& surface, const ViewBar& bar, const ViewReading& reading)
{
    const double part = partOfRange(*reading.scale, reading.shown);
    if (std::isnan(part)) {
        return;
    }
    const QColor color = surface.stateColor(reading.state, bar.color);
    if (bar.style == ViewBar::Style::Pointer) {
        paintPointer(surface, bar, part, color);
    } else {
        surface.box(stretch(bar, bar.box, 0.0, part), kRound, color);
    }
}

} // namespace Vista2D
