#include "views/graph/widget/GraphOverlay.h"

#include "gui/look/Palette.h"
#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphTexts.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kPadding = 4; ///< between a text and the edge of its ground
constexpr int kSwatch = 10;
constexpr int kDottedHandle = 16; ///< below, its dots would run together

} // namespace

GraphOverlay::GraphOverlay(QPainter& painter, const GraphModel& model, const GraphScene& scene,
                           const GraphLook& look, const GraphPointer& pointer)
    : mPainter(painter),
      mModel(model),
      mScene(scene),
      mLook(look),
      mPointer(pointer),
      mMetrics(scene.font),
      mWidths(scene.font),
      mSplit(model.displayMode() != GraphModel::DisplaySingle)
{}

void GraphOverlay::paint()
{
    mPainter.setFont(mScene.font);
    paintLegend();
    if (mPointer.focused) {
        paintFrame(mScene.layout.plot().adjusted(-1, -1, 1, 1), mLook.focus());
    }
    const QString hint = GraphTexts::hint(mModel);
    if (!hint.isEmpty()) {
        paintHint(hint);
        return;
    }
    paintTimeAxis();
    paintValueAxes();
    if (!mLook.onPaper) {
        paintHandles();
    }
    mPainter.setClipRect(mScene.layout.plot());
    paintBandNames();
    paintMarked();
    paintTopMarkers();
    paintCursor();
    paintHover();
    paintFlags();
    paintDrop();
    paintDistance();
    paintHint(GraphTexts::rangeHint(mModel));
    mPainter.setClipping(false);
    const bool covered =
        mPointer.hovering && timeTag(mouseTime()).intersects(timeTag(mModel.cursorTime()));
    if (mLook.cursorOn && !covered) {
        paintTimeTag(mModel.cursorTime(), mLook.cursor());
    }
    if (mPointer.hovering) {
        paintTimeTag(mouseTime(), mLook.label);
    }
}

// --- around the plot

void GraphOverlay::paintTimeAxis()
{
    const QRect& axis = mScene.layout.timeAxis();
    const QRect cursor = mLook.cursorOn ? timeTag(mModel.cursorTime()) : QRect();
    const QRect mouse = mPointer.hovering ? timeTag(mouseTime()) : QRect();
    mPainter.setPen(mLook.label);
    int end = 0;
    for (const GraphTick& tick : mScene.timeTicks) {
        if (tick.label.isEmpty()) {
            continue;
        }
        const int width = textWidth(tick.label);
        const int left = std::clamp(axis.left() + qRound(tick.position) - width / 2, 0,
                                    std::max(0, axisEnd() - width));
        const QRect place(left, axis.top(), width, axis.height());
        // Neither half labels beside the tags nor two in one another at the ends.
        if (left < end || place.intersects(cursor) || place.intersects(mouse)) {
            continue;
        }
        end = left + width + kPadding;
        mPainter.drawText(QPoint(left, axis.top() + mMetrics.ascent()), tick.label);
    }
}

void GraphOverlay::paintValueAxes()
{
    const QRect& axis = mScene.layout.valueAxis();
    mPainter.setPen(mLook.label);
    const int half = mMetrics.height() / 2;
    for (std::size_t band = 0; band < mScene.valueTicks.size(); ++band) {
        const QRect place = mScene.bandOf(band);
        for (const GraphTick& tick : mScene.valueTicks[band]) {
            const int y = place.bottom() + 1 - qRound(tick.position);
            // A label at the edge of a band would stand in the next one.
            const bool fits = y - half >= place.top() - 1 && y + half <= place.bottom() + 2;
            if (tick.label.isEmpty() || (mSplit && !fits)) {
                continue;
            }
            mPainter.drawText(QRect(axis.left(), y - half, axis.width(), mMetrics.height()),
                              Qt::AlignRight | Qt::AlignVCenter, tick.label);
        }
    }
}

void GraphOverlay::paintHandles()
{
    mPainter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t place = 0; place < mScene.shown.size(); ++place) {
        const QRect handle = mScene.layout.handle(static_cast<int>(place));
        mPainter.setPen(Qt::NoPen);
        mPainter.setBrush(colourOf(mScene.shown[place]));
        mPainter.drawRoundedRect(handle, 2, 2);
        if (handle.height() < kDottedHandle) {
            continue;
        }
        // Three dots, as on everything that can be dragged.
        mPainter.setBrush(QColor(255, 255, 255, 200));
        for (int dot = -1; dot <= 1; ++dot) {
            mPainter.drawEllipse(QPointF(QRectF(handle).center()) + QPointF(0.0, 4.0 * dot), 1.0,
                                 1.0);
        }
    }
    mPainter.setRenderHint(QPainter::Antialiasing, false);
}

void GraphOverlay::paintDrop()
{
    if (mPointer.draggedTrace < 0 || mPointer.dropPlace < 0) {
        return;
    }
    const QRect plot = mScene.layout.plot();
    const QRect handle = mScene.layout.handle(mPointer.dropPlace);
    const QRect target = mSplit ? mScene.layout.band(mPointer.dropPlace)
                                : QRect(plot.left(), handle.top(), plot.width(), handle.height());
    QColor ground = mLook.cursor();
    ground.setAlpha(60);
    mPainter.fillRect(target, ground);
}

void GraphOverlay::paintLegend()
{
    const GraphLayout& parts = mScene.layout;
    if (parts.legendKind() == GraphLayout::Legend::None) {
        return;
    }
    if (const QRect header = parts.legendHeader(); !header.isEmpty()) {
        mPainter.setFont(mScene.fixedFont);
        mPainter.setPen(GraphLook::mix(mLook.labelBack, mLook.label, 0.75));
        const bool beside = parts.legendKind() == GraphLayout::Legend::NamesAndValues;
        const QString columns = GraphTexts::legendHeader(mPointer.markersOn);
        if (beside) {
            const QFontMetrics fixed(mScene.fixedFont);
            mPainter.drawText(header.adjusted(header.width() - parts.legendValuesWidth(), 0, 0, 0),
                              Qt::AlignLeft | Qt::AlignVCenter, columns);
        } else {
            mPainter.drawText(header.adjusted(2 * kSwatch, 0, 0, 0),
                              Qt::AlignLeft | Qt::AlignVCenter, columns);
        }
        mPainter.setFont(mScene.font);
    }
    for (int row = 0; row < parts.legendShown(); ++row) {
        paintLegendEntry(row, parts.legendEntry(row));
    }
    const int others = static_cast<int>(mScene.listed.size()) - parts.legendShown();
    if (others > 0) {
        const QRect place = parts.legendEntry(parts.legendShown()).adjusted(2 * kSwatch, 0, 0, 0);
        const QString text =
            QCoreApplication::translate("VELIX::GraphOverlay", "+ %n more", nullptr, others);
        mPainter.setPen(mLook.label);
        mPainter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                          mMetrics.elidedText(text, Qt::ElideRight, place.width()));
    }
}

void GraphOverlay::paintLegendEntry(int row, const QRect& place)
{
    const unsigned int trace = mScene.listed[static_cast<std::size_t>(row)];
    const GraphModel::ParStruct& parameter = mModel.parameter(trace);
    const bool shown = mModel.isShown(trace);
    const QFontMetrics fixed(mScene.fixedFont);
    const int line = std::max(mMetrics.height(), fixed.height());
    const bool selected =
        shown && mScene.shown.size() > 1 && !mLook.onPaper && mModel.selectedTrace() == trace;

    const QRect swatch(place.left(), place.top() + (line - kSwatch) / 2, kSwatch, kSwatch);
    if (selected) {
        mPainter.fillRect(place, GraphLook::mix(mLook.labelBack, mLook.cursor(), 0.25));
    }
    shown ? mPainter.fillRect(swatch, colourOf(trace)) : paintFrame(swatch, colourOf(trace));

    mPainter.setPen(shown ? mLook.label : GraphLook::mix(mLook.labelBack, mLook.label, 0.45));
    QRect name(place.left() + 2 * kSwatch, place.top(), place.width() - 2 * kSwatch, line);
    const GraphLayout::Legend kind = mScene.layout.legendKind();
    if (kind != GraphLayout::Legend::Names) {
        const QString values = GraphTexts::legendValues(mModel, trace, mPointer.markersOn);
        QRect at = name;
        if (kind == GraphLayout::Legend::NamesAboveValues) {
            at.translate(0, line - 1);
        } else {
            const int width = mScene.layout.legendValuesWidth();
            at.setLeft(place.right() + 1 - width);
            name.setRight(at.left() - kPadding);
        }
        mPainter.setFont(mScene.fixedFont);
        mPainter.drawText(at, Qt::AlignLeft | Qt::AlignVCenter, values);
        mPainter.setFont(mScene.font);
    }
    mPainter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter,
                      mMetrics.elidedText(parameter.name, Qt::ElideRight, name.width()));
}

QRect GraphOverlay::timeTag(double time) const
{
    const QRect& axis = mScene.layout.timeAxis();
    const double x = xOf(time);
    if (!inPlot(x)) {
        return {};
    }
    const int width = textWidth(timeText(time)) + 2 * kPadding;
    const int left = std::clamp(qRound(x) - width / 2, 0, std::max(0, axisEnd() - width));
    return {left, axis.top() - 2, width, axis.height() + 4};
}

void GraphOverlay::paintTimeTag(double time, const QColor& colour)
{
    const QRect tag = timeTag(time);
    if (!tag.isEmpty()) {
        mPainter.fillRect(tag, colour);
        mPainter.setPen(Palette::textOn(colour));
        mPainter.drawText(tag, Qt::AlignCenter, timeText(time));
    }
}

QString GraphOverlay::timeText(double time) const
{
    const int width = std::max(mScene.layout.plot().width(), 1);
    return GraphTexts::cursorTime(time, (mModel.xmax() - mModel.xmin()) / width);
}

int GraphOverlay::axisEnd() const
{
    // Below the legend there is room for the last label.
    const QRect& legend = mScene.layout.legend();
    return (legend.isEmpty() ? mScene.layout.plot().right() : legend.right()) + kPadding;
}

double GraphOverlay::mouseTime() const
{
    return mScene.layout.timeAt(mPointer.mouse.x(), mModel.xmin(), mModel.xmax());
}

void GraphOverlay::paintHint(const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect area = mScene.layout.plot().adjusted(8, 8, -8, -8);
    const QRect ground = mMetrics.boundingRect(area, kFlags, text);
    mPainter.fillRect(ground.adjusted(-kPadding, 0, kPadding, 0), mLook.back); // hides the grid
    mPainter.setPen(mLook.plotMutedText());
    mPainter.drawText(area, kFlags, text);
}

// --- helpers

void GraphOverlay::paintFrame(const QRect& frame, const QColor& colour)
{
    // Filled, since lines of a painter on OpenGL may lie a pixel beside their place.
    mPainter.fillRect(QRect(frame.left(), frame.top(), frame.width(), 1), colour);
    mPainter.fillRect(QRect(frame.left(), frame.bottom(), frame.width(), 1), colour);
    mPainter.fillRect(QRect(frame.left(), frame.top(), 1, frame.height()), colour);
    mPainter.fillRect(QRect(frame.right(), frame.top(), 1, frame.height()), colour);
}

double GraphOverlay::xOf(double time) const
{
    return mScene.layout.xOf(time, mModel.xmin(), mModel.xmax());
}

bool GraphOverlay::inPlot(double x) const
{
    const QRect plot = mScene.layout.plot();
    return x >= plot.left() && x <= plot.right() + 1.0;
}

QColor GraphOverlay::colourOf(unsigned int trace) const
{
    return mLook.traceColour(mModel.parameter(trace).colour);
}

int GraphOverlay::textWidth(const QString& text) const
{
    // Rounded up: a text in a room rounded down loses a letter for half a pixel.
    return static_cast<int>(std::ceil(mWidths.horizontalAdvance(text)));
}

} // namespace VELIX
