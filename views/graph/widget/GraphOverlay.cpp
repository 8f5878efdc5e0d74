#include "views/graph/widget/GraphOverlay.h"

#include "views/graph/widget/GraphAxes.h"
#include "views/graph/widget/GraphLegend.h"
#include "views/graph/widget/GraphMarks.h"
#include "views/graph/widget/GraphReadouts.h"
#include "views/graph/widget/GraphTexts.h"

namespace VELIX {

namespace {

constexpr int kDottedHandle = 16; ///< below, its dots would run together
constexpr int kDropAlpha = 60;

} // namespace

GraphOverlay::GraphOverlay(QPainter& painter, const GraphModel& model, const GraphScene& scene,
                           const GraphLook& look, const GraphPointer& pointer)
    : mCanvas(painter, model, scene, look, pointer)
{}

void GraphOverlay::paint()
{
    GraphLegend(mCanvas).paint();
    if (mCanvas.pointer.focused) {
        mCanvas.fillFrame(mCanvas.scene.layout.plot().adjusted(-1, -1, 1, 1), mCanvas.look.focus());
    }
    const QString hint = GraphTexts::hint(mCanvas.model);
    if (!hint.isEmpty()) {
        paintHint(hint);
        return;
    }
    const GraphAxes axes(mCanvas);
    axes.paintTimes();
    axes.paintValues();
    if (!mCanvas.look.onPaper) {
        paintHandles();
    }
    mCanvas.painter.setClipRect(mCanvas.scene.layout.plot());
    paintInPlot();
    mCanvas.painter.setClipping(false);
    axes.paintTags();
}

void GraphOverlay::paintInPlot()
{
    const GraphReadouts readouts(mCanvas);
    const GraphMarks marks(mCanvas);
    readouts.paintBandNames();
    marks.paintStretch();
    readouts.paintTopMarkers();
    readouts.paintCursor();
    readouts.paintHover();
    marks.paintFlags();
    paintDrop();
    marks.paintDistance();
    paintHint(GraphTexts::rangeHint(mCanvas.model));
}

void GraphOverlay::paintHandles()
{
    QPainter& painter = mCanvas.painter;
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < mCanvas.scene.shown.size(); ++i) {
        const QRect handle = mCanvas.scene.layout.handle(static_cast<int>(i));
        painter.setPen(Qt::NoPen);
        painter.setBrush(mCanvas.colorOf(mCanvas.scene.shown[i]));
        painter.drawRoundedRect(handle, 2, 2);
        if (handle.height() < kDottedHandle) {
            continue;
        }
        // Three dots, as on everything that can be dragged.
        painter.setBrush(QColor(255, 255, 255, 200));
        for (int dot = -1; dot <= 1; ++dot) {
            painter.drawEllipse(QPointF(QRectF(handle).center()) + QPointF(0.0, 4.0 * dot), 1.0,
                                1.0);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void GraphOverlay::paintDrop()
{
    const int drop = mCanvas.pointer.dropPosition;
    if (mCanvas.pointer.draggedTrace < 0 || drop < 0) {
        return;
    }
    const GraphLayout& parts = mCanvas.scene.layout;
    const QRect plot = parts.plot();
    const QRect handle = parts.handle(drop);
    const QRect target = mCanvas.isSplit()
                             ? parts.band(drop)
                             : QRect(plot.left(), handle.top(), plot.width(), handle.height());
    QColor color = mCanvas.look.cursor();
    color.setAlpha(kDropAlpha);
    mCanvas.painter.fillRect(target, color);
}

void GraphOverlay::paintHint(const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    constexpr int kPadding = GraphCanvas::kPadding;
    const QRect area = mCanvas.scene.layout.plot().adjusted(8, 8, -8, -8);
    const QRect covered = mCanvas.metrics.boundingRect(area, kFlags, text);
    mCanvas.painter.fillRect(covered.adjusted(-kPadding, 0, kPadding, 0),
                             mCanvas.look.back); // hides the grid
    mCanvas.painter.setPen(mCanvas.look.plotMutedText());
    mCanvas.painter.drawText(area, kFlags, text);
}

} // namespace VELIX
