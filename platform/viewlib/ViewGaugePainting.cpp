#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewInstruments.h"
#include "platform/viewlib/ViewSurface.h"

#include <algorithm>
#include <cmath>

namespace Vista2D {

namespace {

constexpr double kGap = 2.0;        // view units between band, fill and ticks
constexpr double kShortTick = 0.55; // of a long one

double fillRadius(const ViewGauge& gauge)
{
    return gauge.radius - gauge.width - kGap - gauge.fill / 2.0;
}

double tickRadius(const ViewGauge& gauge)
{
    return gauge.radius - gauge.width - kGap - (gauge.fill > 0.0 ? gauge.fill + kGap : 0.0);
}

void paintTicks(ViewSurface& surface, const ViewGauge& gauge, const ViewScale& scale)
{
    const double outer = tickRadius(gauge);
    const std::vector<ViewTick> ticks = ticksOf(scale);
    QPainter& painter = surface.shapes();
    for (const ViewTick& tick : ticks) {
        const double angle = angleOf(gauge, scale, tick.at);
        const double length = gauge.tick * (tick.isLong ? 1.0 : kShortTick);
        painter.setPen(QPen(tick.isLong ? surface.colors().text : surface.colors().muted,
                            tick.isLong ? 1.6 : 1.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(onCircle(gauge.center, outer, angle),
                         onCircle(gauge.center, outer - length, angle));
    }
    if (gauge.tickText <= 0.0) {
        return;
    }
    const double radius = outer - gauge.tick - gauge.tickText * 0.9;
    for (const ViewTick& tick : ticks) {
        if (tick.isLong) {
            surface.centered(onCircle(gauge.center, radius, angleOf(gauge, scale, tick.at)),
                             gauge.tickText, false, tickText(scale, tick.at),
                             surface.colors().text);
        }
    }
}

} // namespace

void paintDial(ViewSurface& surface, const ViewGauge& gauge, const ViewScale& scale)
{
    if (!scale.hasRange()) {
        return;
    }
    const double middle = gauge.radius - gauge.width / 2.0;
    surface.ring(gauge.center, middle, gauge.width, gauge.start, gauge.end, surface.colors().track);
    surface.ring(gauge.center, fillRadius(gauge), gauge.fill, gauge.start, gauge.end,
                 surface.colors().track);
    for (const ViewBand& band : scale.bands) {
        surface.ring(gauge.center, middle, gauge.width, angleOf(gauge, scale, band.from),
                     angleOf(gauge, scale, band.to), band.color);
    }
    paintTicks(surface, gauge, scale);
    for (const ViewBand& mark : scale.marks) {
        const double angle = angleOf(gauge, scale, mark.from);
        QPainter& painter = surface.shapes();
        painter.setPen(QPen(mark.color, 3.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(onCircle(gauge.center, gauge.radius + 2.0, angle),
                         onCircle(gauge.center, tickRadius(gauge) - gauge.tick, angle));
    }
}

void paintNeedle(ViewSurface& surface, const ViewGauge& gauge, const ViewReading& reading)
{
    const double angle = angleOf(gauge, *reading.scale, reading.shown);
    if (std::isnan(angle)) {
        return;
    }
    surface.ring(gauge.center, fillRadius(gauge), gauge.fill, gauge.start, angle,
                 surface.stateColor(reading.state, gauge.color));
    if (gauge.needleFrom == gauge.needleTo) {
        return;
    }
    const double half = gauge.needleWidth / 2.0;
    const QPointF side = onCircle({}, 1.0, angle + 90.0);
    const QPointF foot = onCircle(gauge.center, gauge.needleFrom, angle);
    const QPointF tip = onCircle(gauge.center, gauge.needleTo, angle);
    const QPointF outline[] = {foot + side * half, tip + side * 0.7, tip - side * 0.7,
                               foot - side * half};
    QPainter& painter = surface.shapes();
    painter.setBrush(surface.stateColor(reading.state, surface.colors().normal));
    // A rim of the ground's colour parts the needle from what it lies upon.
    painter.setPen(QPen(surface.colors().background, 1.2));
    painter.drawConvexPolygon(outline, 4);
    if (gauge.needleFrom <= 0.0) {
        painter.drawEllipse(gauge.center, gauge.needleWidth, gauge.needleWidth);
    }
}

} // namespace Vista2D
