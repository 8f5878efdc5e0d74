#include "views/graph/widget/GraphMarks.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphCanvas.h"
#include "views/graph/widget/GraphTexts.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kPadding = GraphCanvas::kPadding;
constexpr int kStretchAlpha = 22;

} // namespace

void GraphMarks::paintStretch() const
{
    if (!mCanvas.pointer.markersOn) {
        return;
    }
    const QRect plot = mCanvas.scene.layout.plot();
    const GraphMarkers& markers = mCanvas.model.markers();
    const double from = std::max(mCanvas.xOf(markers.start()), 1.0 * plot.left());
    const double to = std::min(mCanvas.xOf(markers.stop()), plot.right() + 1.0);
    if (to > from) {
        QColor veil = mCanvas.look.plotText();
        veil.setAlpha(kStretchAlpha);
        mCanvas.painter.fillRect(QRectF(from, plot.top(), to - from, plot.height()), veil);
    }
}

void GraphMarks::paintFlags() const
{
    if (!mCanvas.pointer.markersOn) {
        return;
    }
    // The flags point outwards, so that they do not hide each other.
    const GraphMarkers& markers = mCanvas.model.markers();
    const bool sorted = markers.first() <= markers.second();
    paintFlag(QStringLiteral("1"), markers.first(), sorted);
    paintFlag(QStringLiteral("2"), markers.second(), !sorted);
}

void GraphMarks::paintFlag(const QString& text, double time, bool leftOfLine) const
{
    const double x = mCanvas.xOf(time);
    if (!mCanvas.inPlot(x)) {
        return;
    }
    const int height = mCanvas.metrics.height();
    const int width = mCanvas.textWidth(text) + 2 * kPadding;
    const QRect flag(leftOfLine ? qRound(x) - width : qRound(x) + 1,
                     mCanvas.scene.layout.plot().bottom() + 1 - height, width, height);
    mCanvas.painter.fillRect(flag, mCanvas.look.plotText());
    mCanvas.painter.setPen(mCanvas.look.back);
    mCanvas.painter.drawText(flag, Qt::AlignCenter, text);
}

void GraphMarks::paintDistance() const
{
    if (!mCanvas.pointer.distance || !mCanvas.pointer.markersOn) {
        return;
    }
    const QRect plot = mCanvas.scene.layout.plot();
    const double first = mCanvas.xOf(mCanvas.model.marker1());
    const double second = mCanvas.xOf(mCanvas.model.marker2());
    const QString text = GraphTexts::distance(mCanvas.model.markerDistance());
    const int height = mCanvas.metrics.height();
    const int width = mCanvas.textWidth(text) + 4 * kPadding;
    const int left = qRound(std::clamp((first + second) / 2.0 - width / 2.0, 1.0 * plot.left(),
                                       std::max(1.0 * plot.left(), plot.right() + 1.0 - width)));
    // Between the flags, or above them when they are near.
    const bool between = std::abs(second - first) > width;
    const int bottom = plot.bottom() + 1 - (between ? 0 : height);
    const QRect tag(left, bottom - height, width, height);
    mCanvas.painter.fillRect(tag, mCanvas.look.plotText());
    mCanvas.painter.setPen(mCanvas.look.back);
    mCanvas.painter.drawText(tag, Qt::AlignCenter, text);
}

} // namespace VELIX
