#include "views/graph/GraphVectorPainter.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphCurve.h"
#include "views/graph/widget/GraphOverlay.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace VELIX {

namespace {

/// Side of the square at a sample (logical pixels).
constexpr double kPointSize = 4.0;

/// Shortens a line to its part inside an area; false if there is none.
bool clip(QLineF& line, const QRectF& area)
{
    double from = 0.0;
    double to = 1.0;
    const auto cut = [&](double direction, double distance) {
        if (direction == 0.0) {
            return distance >= 0.0;
        }
        const double at = distance / direction;
        direction < 0.0 ? from = std::max(from, at) : to = std::min(to, at);
        return from <= to;
    };
    if (!cut(-line.dx(), line.x1() - area.left()) || !cut(line.dx(), area.right() - line.x1()) ||
        !cut(-line.dy(), line.y1() - area.top()) || !cut(line.dy(), area.bottom() - line.y1())) {
        return false;
    }
    line = QLineF(line.pointAt(from), line.pointAt(to));
    return true;
}

/// Draws the parts of a line strip inside an area. A painter's clip would do, but SVG files know
/// none.
void drawStrip(QPainter& painter, const GraphVertex* vertices, int count, const QRectF& area)
{
    const auto point = [vertices](int i) {
        return QPointF(static_cast<double>(vertices[i].x), static_cast<double>(vertices[i].y));
    };
    if (count == 1 && area.contains(point(0))) {
        painter.drawPoint(point(0));
    }
    QPolygonF strip;
    for (int i = 1; i < count; ++i) {
        QLineF line(point(i - 1), point(i));
        if (!clip(line, area)) {
            continue;
        }
        if (strip.isEmpty() || strip.last() != line.p1()) {
            painter.drawPolyline(strip);
            strip = QVector<QPointF>{line.p1()};
        }
        strip.append(line.p2());
    }
    painter.drawPolyline(strip);
}

void drawSamples(QPainter& painter, const std::vector<GraphVertex>& vertices, const QRectF& area)
{
    for (const GraphVertex& vertex : vertices) {
        const QPointF center(static_cast<double>(vertex.x), static_cast<double>(vertex.y));
        if (area.contains(center)) {
            painter.fillRect(QRectF(center - QPointF(kPointSize / 2, kPointSize / 2),
                                    QSizeF(kPointSize, kPointSize)),
                             painter.pen().color());
        }
    }
}

} // namespace

GraphVectorPainter::GraphVectorPainter(const GraphModel& model, const GraphLook& look,
                                       bool markersOn, const QSize& size, const QFont& font)
    : mModel(model), mLook(look), mScene(GraphScene::make(model, look, size, font)), mSize(size)
{
    mPointer.markersOn = markersOn;
}

void GraphVectorPainter::paint(QPainter& painter) const
{
    painter.fillRect(QRect(QPoint(0, 0), mSize), mLook.labelBack);
    if (mScene.layout.empty()) {
        return;
    }
    const QRect plot = mScene.layout.plot();
    painter.fillRect(plot, mLook.back);
    painter.translate(0.5, 0.5); // lines in the middle of pixels are not blurred
    paintGrid(painter);
    paintTraces(painter);
    paintLines(painter);
    painter.translate(-0.5, -0.5);
    GraphOverlay(painter, mModel, mScene, mLook, mPointer).paint();
}

void GraphVectorPainter::paintGrid(QPainter& painter) const
{
    const QRectF plot = mScene.layout.plot();
    for (const bool major : {false, true}) {
        painter.setPen(QPen(major ? mLook.majorGrid() : mLook.minorGrid(), 1.0));
        for (const GraphTick& tick : mScene.timeTicks) {
            if (mLook.gridOn && tick.major == major) {
                const double x = plot.left() + tick.position;
                painter.drawLine(QLineF(x, plot.top(), x, plot.bottom()));
            }
        }
        for (std::size_t i = 0; i < mScene.valueTicks.size(); ++i) {
            const QRectF band = mScene.bandOf(i);
            for (const GraphTick& tick : mScene.valueTicks[i]) {
                if (mLook.gridOn && tick.major == major) {
                    const double y = band.bottom() - tick.position;
                    painter.drawLine(QLineF(band.left(), y, band.right(), y));
                }
            }
        }
    }
    painter.setPen(QPen(mLook.separator(), 1.0));
    for (int band = 1; band < mScene.layout.bandCount(); ++band) {
        const double y = mScene.layout.band(band).top();
        painter.drawLine(QLineF(plot.left(), y, plot.right(), y));
    }
}

void GraphVectorPainter::paintTraces(QPainter& painter) const
{
    GraphCurve curve;
    for (std::size_t i = 0; i < mScene.shown.size(); ++i) {
        const unsigned int trace = mScene.shown[i];
        const GraphModel::ParStruct& parameter = mModel.parameter(trace);
        const QRectF band = mScene.bandOf(i);
        const GraphCurve::Target target{band, mModel.xmin(), mModel.xmax(), mModel.scaleOf(trace)};
        if (mFineness > 0.0) {
            GraphTrace fine = parameter.trace; // one at a time, since it brings its samples
            fine.recalcFrameBuffer(mModel.xmin(), mModel.xmax(),
                                   (mModel.xmax() - mModel.xmin()) / (band.width() * mFineness));
            curve.build(fine.frames(), target);
        } else {
            curve.build(parameter.trace.frames(), target);
        }
        painter.setPen(QPen(mLook.traceColor(parameter.color), 1.0));
        for (std::size_t strip = 0; strip < curve.starts().size(); ++strip) {
            drawStrip(painter, curve.vertices().data() + curve.starts()[strip],
                      curve.sizes()[strip], band);
        }
        if (parameter.samples) {
            drawSamples(painter, curve.vertices(), band);
        }
    }
}

void GraphVectorPainter::paintLines(QPainter& painter) const
{
    const QRectF plot = mScene.layout.plot();
    const auto line = [&](double time, const QColor& color) {
        const double x = mScene.layout.xOf(time, mModel.xmin(), mModel.xmax());
        painter.setPen(QPen(color, 1.0));
        if (x >= plot.left() && x <= plot.right()) {
            painter.drawLine(QLineF(x, plot.top(), x, plot.bottom()));
        }
    };
    if (mPointer.markersOn) {
        line(mModel.marker1(), mLook.plotText());
        line(mModel.marker2(), mLook.plotText());
    }
    if (mLook.cursorOn) {
        line(mModel.cursorTime(), mLook.cursor());
    }
}

} // namespace VELIX
