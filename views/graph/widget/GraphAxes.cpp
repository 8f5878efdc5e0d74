#include "views/graph/widget/GraphAxes.h"

#include "gui/look/Palette.h"
#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphCanvas.h"
#include "views/graph/widget/GraphTexts.h"

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kPadding = GraphCanvas::kPadding;

} // namespace

void GraphAxes::paintTimes() const
{
    const QRect& axis = mCanvas.scene.layout.timeAxis();
    const QRect cursor = cursorTag();
    const QRect mouse = mouseTag();
    mCanvas.painter.setPen(mCanvas.look.label);
    int free = 0;
    for (const GraphTick& tick : mCanvas.scene.timeTicks) {
        if (tick.label.isEmpty()) {
            continue;
        }
        const int width = mCanvas.textWidth(tick.label);
        const int left = std::clamp(axis.left() + qRound(tick.position) - width / 2, 0,
                                    std::max(0, end() - width));
        const QRect label(left, axis.top(), width, axis.height());
        // Neither half labels beside the tags nor two in one another at the ends.
        if (left < free || label.intersects(cursor) || label.intersects(mouse)) {
            continue;
        }
        free = left + width + kPadding;
        mCanvas.painter.drawText(QPoint(left, axis.top() + mCanvas.metrics.ascent()), tick.label);
    }
}

void GraphAxes::paintValues() const
{
    const GraphScene& scene = mCanvas.scene;
    const QRect& axis = scene.layout.valueAxis();
    const int line = mCanvas.metrics.height();
    const int half = line / 2;
    mCanvas.painter.setPen(mCanvas.look.label);
    for (std::size_t i = 0; i < scene.valueTicks.size(); ++i) {
        const QRect band = scene.bandOf(i);
        for (const GraphTick& tick : scene.valueTicks[i]) {
            const int y = band.bottom() + 1 - qRound(tick.position);
            // A label at the edge of a band would reach into the next one.
            const bool fits = y - half >= band.top() - 1 && y + half <= band.bottom() + 2;
            if (tick.label.isEmpty() || (mCanvas.isSplit() && !fits)) {
                continue;
            }
            mCanvas.painter.drawText(QRect(axis.left(), y - half, axis.width(), line),
                                     Qt::AlignRight | Qt::AlignVCenter, tick.label);
        }
    }
}

void GraphAxes::paintTags() const
{
    if (mCanvas.look.cursorOn && !mouseTag().intersects(cursorTag())) {
        paintTag(mCanvas.model.cursorTime(), mCanvas.look.cursor());
    }
    if (mCanvas.pointer.hovering) {
        paintTag(mCanvas.mouseTime(), mCanvas.look.label);
    }
}

void GraphAxes::paintTag(double time, const QColor& color) const
{
    const QRect tag = tagOf(time);
    if (!tag.isEmpty()) {
        mCanvas.painter.fillRect(tag, color);
        mCanvas.painter.setPen(Palette::textOn(color));
        mCanvas.painter.drawText(tag, Qt::AlignCenter, textOf(time));
    }
}

QRect GraphAxes::tagOf(double time) const
{
    const QRect& axis = mCanvas.scene.layout.timeAxis();
    const double x = mCanvas.xOf(time);
    if (!mCanvas.inPlot(x)) {
        return {};
    }
    const int width = mCanvas.textWidth(textOf(time)) + 2 * kPadding;
    const int left = std::clamp(qRound(x) - width / 2, 0, std::max(0, end() - width));
    return {left, axis.top() - 2, width, axis.height() + 4};
}

QRect GraphAxes::cursorTag() const
{
    return mCanvas.look.cursorOn ? tagOf(mCanvas.model.cursorTime()) : QRect();
}

QRect GraphAxes::mouseTag() const
{
    return mCanvas.pointer.hovering ? tagOf(mCanvas.mouseTime()) : QRect();
}

QString GraphAxes::textOf(double time) const
{
    const int width = std::max(mCanvas.scene.layout.plot().width(), 1);
    return GraphTexts::cursorTime(time, (mCanvas.model.xmax() - mCanvas.model.xmin()) / width);
}

int GraphAxes::end() const
{
    // Below the legend there is room for the last label.
    const GraphLayout& parts = mCanvas.scene.layout;
    return (parts.legend().isEmpty() ? parts.plot().right() : parts.legend().right()) + kPadding;
}

} // namespace VELIX
