#include "platform/viewlib/ViewGaugePainter.h"

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewSurface.h"

#include <algorithm>
#include <cmath>

namespace Vista2D {

namespace {

constexpr double kGap = 2.0;        // view units between band, fill and ticks
constexpr double kShortTick = 0.55; // of a long one

} // namespace

double ViewGaugePainter::fillRadius() const
{
    return mGauge.radius - mGauge.width - kGap - mGauge.fill / 2.0;
}

double ViewGaugePainter::tickRadius() const
{
    return mGauge.radius - mGauge.width - kGap - (mGauge.fill > 0.0 ? mGauge.fill + kGap : 0.0);
}

void ViewGaugePainter::paintTicks(const ViewScale& scale)
{
    const double outer = tickRadius();
    const std::vector<ViewTick> ticks = ticksOf(scale);
    QPainter& painter = mSurface.shapes();
    for (const ViewTick& tick : ticks) {
        const double angle = angleOf(mGauge, scale, tick.at);
        const double length = mGauge.tick * (tick.isLong ? 1.0 : kShortTick);
        painter.setPen(QPen(tick.isLong ? mSurface.colors().text : mSurface.colors().muted,
                            tick.isLong ? 1.6 : 1.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(onCircle(mGauge.center, outer, angle),
                         onCircle(mGauge.center, outer - length, angle));
    }
    if (mGauge.tickText <= 0.0) {
        return;
    }
    const double radius = outer - mGauge.tick - mGauge.tickText * 0.9;
    for (const ViewTick& tick : ticks) {
        if (tick.isLong) {
            mSurface.centered(onCircle(mGauge.center, radius, angleOf(mGauge, scale, tick.at)),
                              mGauge.tickText, false, tickText(scale, tick.at),
                              mSurface.colors().text);
        }
    }
}

void ViewGaugePainter::paintDial(const ViewScale& scale)
{
    if (!scale.hasRange()) {
        return;
    }
    const double middle = mGauge.radius - mGauge.width / 2.0;
    mSurface.ring(mGauge.center, middle, mGauge.width, mGauge.start, mGauge.end,
                  mSurface.colors().track);
    mSurface.ring(mGauge.center, fillRadius(), mGauge.fill, mGauge.start, mGauge.end,
                  mSurface.colors().track);
    for (const ViewBand& band : scale.bands) {
        mSurface.ring(mGauge.center, middle, mGauge.width, angleOf(mGauge, scale, band.from),
                      angleOf(mGauge, scale, band.to), band.color);
    }
    paintTicks(scale);
    for (const ViewBand& mark : scale.marks) {
        const double angle = angleOf(mGauge, scale, mark.from);
        QPainter& painter = mSurface.shapes();
        painter.setPen(QPen(mark.color, 3.0, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(onCircle(mGauge.center, mGauge.radius + 2.0, angle),
                         onCircle(mGauge.center, tickRadius() - mGauge.tick, angle));
    }
}

void ViewGaugePainter::paintNeedle(const ViewReading& reading)
{
    const double angle = angleOf(mGauge, *reading.scale, reading.shown);
    if (std::isnan(angle)) {
        return;
    }
    mSurface.ring(mGauge.center, fillRadius(), mGauge.fill, mGauge.start, angle,
                  mSurface.stateColor(reading.state, mGauge.color));
    if (mGauge.needleFrom == mGauge.needleTo) {
        return;
    }
    const double half = mGauge.needleWidth / 2.0;
    const QPointF side = onCircle({}, 1.0, angle + 90.0);
    const QPointF foot = onCircle(mGauge.center, mGauge.needleFrom, angle);
    const QPointF tip = onCircle(mGauge.center, mGauge.needleTo, angle);
    const QPointF outline[] = {foot + side * half, tip + side * 0.7, tip - side * 0.7,
                               foot - side * half};
    QPainter& painter = mSurface.shapes();
    painter.setBrush(mSurface.stateColor(reading.state, mSurface.colors().normal));
    // A rim of the background's colour parts the needle from what is below it.
    painter.setPen(QPen(mSurface.colors().background, 1.2));
    painter.drawConvexPolygon(outline, 4);
    if (mGauge.needleFrom <= 0.0) {
        painter.drawEllipse(mGauge.center, mGauge.needleWidth, mGauge.needleWidth);
    }
}

} // namespace Vista2D
