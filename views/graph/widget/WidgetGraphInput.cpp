// What the graph does with the mouse.
#include "views/graph/widget/WidgetGraphBase.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using VELIX::GraphLayout;

namespace {

constexpr int kWheelStep = 120; ///< eighths of a degree

/// The nearest whole pixel, halves upwards.
QPoint pixelAt(const QPointF& position)
{
    return {static_cast<int>(std::floor(position.x() + 0.5)),
            static_cast<int>(std::floor(position.y() + 0.5))};
}

} // namespace

double WidgetGraphBase::timeAt(const QPoint& point)
{
    return layoutOfParts().timeAt(point.x(), mModel.xmin(), mModel.xmax());
}

QRect WidgetGraphBase::selectedBand()
{
    const GraphLayout& parts = layoutOfParts();
    const int place = mScene.placeOf(mModel.selectedTrace());
    return place < 0 ? parts.plot() : parts.band(place);
}

// --- mouse

void WidgetGraphBase::mousePressEvent(QMouseEvent* event)
{
    const QPoint point = pixelAt(event->localPos());
    if (mDrag != Drag::None) {
        return; // a second button does not disturb a drag
    }
    mPointer.hovering = false;
    mPressPoint = point;
    if (!layoutOfParts().plot().contains(point)) {
        if (event->button() == Qt::LeftButton) {
            pressOutside(point);
        }
    } else if (event->button() == Qt::LeftButton) {
        pressLeft(point, event->modifiers() | mHeldKeys);
    } else if (event->button() == Qt::MiddleButton) {
        mDrag = Drag::Cursor;
        placeCursor(point);
    } else if (event->button() == Qt::RightButton && mPanningAllowed) {
        mDrag = Drag::Pan;
        mPressRange = mModel.range();
    }
    update();
}

void WidgetGraphBase::pressLeft(const QPoint& point, Qt::KeyboardModifiers held)
{
    if (held.testFlag(Qt::ShiftModifier)) {
        mDrag = Drag::Marker;
        mPointer.markersOn = true;
        mPointer.distance = true;
        mSecondMarker = timeAt(point) >= (mModel.marker1() + mModel.marker2()) / 2.0;
        mModel.setNearerMarker(timeAt(point));
        emitMarkers();
    } else if (held.testFlag(Qt::ControlModifier)) {
        placeCursor(point);
    } else {
        mDrag = Drag::Marker;
        mSecondMarker = true;
        mPointer.markersOn = true;
        mModel.setMarker(timeAt(point), timeAt(point));
        emitMarkers();
    }
}

void WidgetGraphBase::pressOutside(const QPoint& point)
{
    const int handle = mScene.layout.handleAt(point);
    if (handle >= 0) {
        mDrag = Drag::Handle;
        mPointer.draggedTrace = handle;
        mPointer.dropPlace = handle;
        mModel.setSelectedTrace(mScene.shown[static_cast<std::size_t>(handle)]);
        return;
    }
    const int row = mScene.layout.legendEntryAt(point);
    if (row >= 0 && mModel.isShown(mScene.listed[static_cast<std::size_t>(row)])) {
        mModel.setSelectedTrace(mScene.listed[static_cast<std::size_t>(row)]);
    }
}

void WidgetGraphBase::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = pixelAt(event->localPos());
    const bool wasHovering = mPointer.hovering;
    mPointer.mouse = point;
    mPointer.hovering = mDrag == Drag::None && event->buttons() == Qt::NoButton &&
                        layoutOfParts().plot().contains(point);
    switch (mDrag) {
    case Drag::None:
        if (wasHovering || mPointer.hovering) {
            update();
        }
        break;
    case Drag::Marker:
        moveMarker(point);
        break;
    case Drag::Cursor:
        placeCursor(point);
        break;
    case Drag::Pan:
        pan(point);
        break;
    case Drag::Handle:
        mPointer.dropPlace = mScene.layout.dropAt(point.y());
        update();
        break;
    }
}

void WidgetGraphBase::moveMarker(const QPoint& point)
{
    if (point == mPressPoint && !mPointer.distance) {
        return; // a click that sets both does not pull them apart
    }
    mPointer.distance = true;
    mSecondMarker ? mModel.setMarker(mModel.marker1(), timeAt(point))
                  : mModel.setMarker(timeAt(point), mModel.marker2());
    emitMarkers();
}

void WidgetGraphBase::placeCursor(const QPoint& point)
{
    const GraphLayout& parts = layoutOfParts();
    const QRect plot = parts.plot();
    if (plot.isEmpty()) {
        return;
    }
    const QPoint inside(std::clamp(point.x(), plot.left(), plot.right()),
                        std::clamp(point.y(), plot.top(), plot.bottom()));
    const int place = parts.bandAt(inside.y());
    if (place >= 0) {
        mModel.setSelectedTrace(mScene.shown[static_cast<std::size_t>(place)]);
    }
    const double time = timeAt(inside);
    const VELIX::GraphYScale& scale = mModel.scaleOf(mModel.selectedTrace());
    const QRect band = place >= 0 ? parts.band(place) : plot;
    const double value = GraphLayout::valueAt(inside.y(), band, scale.minimum, scale.maximum);
    mModel.setCursorInPlace(time); // a range that followed would move away under the mouse
    mModel.setCursorValue(value);
    update();
    emit signalCursor(static_cast<float>(mModel.cursorTime()), mModel.cursorValue());
}

void WidgetGraphBase::pan(const QPoint& point)
{
    const int width = layoutOfParts().plot().width();
    if (width <= 0) {
        return;
    }
    mModel.pan(mPressRange, (mPressPoint.x() - point.x()) * mPressRange.span() / width);
    update();
    emit signalManMode();
}

void WidgetGraphBase::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::MouseButton owner = mDrag == Drag::Cursor ? Qt::MiddleButton
                                  : mDrag == Drag::Pan  ? Qt::RightButton
                                                        : Qt::LeftButton;
    if (event->button() == owner) {
        finishDrag(pixelAt(event->localPos()));
    }
}

void WidgetGraphBase::finishDrag(const QPoint& point)
{
    const Drag finished = mDrag;
    mDrag = Drag::None;
    mPointer.distance = false;
    const int from = mPointer.draggedTrace;
    mPointer.draggedTrace = -1;
    mPointer.dropPlace = -1;
    switch (finished) {
    case Drag::Marker:
        if (mModel.marker1() > mModel.marker2()) {
            mModel.sortMarkers();
            emitMarkers();
        }
        break;
    case Drag::Cursor:
        emit signalMoveCursorFinished();
        break;
    case Drag::Pan:
        mModel.recalcFrameBuffer();
        mModel.startRecalcTimer();
        mRecalcTimer.start(VELIX::GraphRecalc::kIntervalMs);
        emit signalRangeChanged();
        break;
    case Drag::Handle:
        if (const int to = layoutOfParts().dropAt(point.y()); from >= 0 && to >= 0) {
            moveTrace(from, to);
        }
        break;
    case Drag::None:
        break;
    }
    update();
}

void WidgetGraphBase::moveTrace(int from, int to)
{
    const int count = static_cast<int>(mScene.shown.size());
    if (from >= count || to >= count) {
        return; // the traces changed during the drag
    }
    // Hidden and inactive traces keep their places between those shown.
    const auto placeOf = [this](int shown) {
        const std::vector<unsigned int>& order = mModel.displayOrder();
        const unsigned int trace = mScene.shown[static_cast<std::size_t>(shown)];
        return static_cast<unsigned int>(std::find(order.begin(), order.end(), trace) -
                                         order.begin());
    };
    if (from != to) {
        mModel.moveParameter(placeOf(from), placeOf(to));
        touch();
    }
    emit signalMoveParameter(from, to);
}

void WidgetGraphBase::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int row = layoutOfParts().legendEntryAt(pixelAt(event->localPos()));
    if (row < 0 || event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    const unsigned int trace = mScene.listed[static_cast<std::size_t>(row)];
    mModel.setVisible(trace, !mModel.parameter(trace).visible);
    touch();
}

void WidgetGraphBase::emitMarkers()
{
    update();
    emit signalMarker(static_cast<float>(mModel.marker1()), static_cast<float>(mModel.marker2()));
}

void WidgetGraphBase::wheelEvent(QWheelEvent* event)
{
    const Qt::KeyboardModifiers held = event->modifiers() | mHeldKeys;
    const GraphLayout& parts = layoutOfParts();
    if (mDrag != Drag::None || held.testFlag(Qt::ShiftModifier) || parts.empty()) {
        event->ignore();
        return;
    }
    event->accept();
    mWheelDelta += event->angleDelta().y();
    // A mouse wheel sends whole steps and no phases; a touch pad sends parts of steps.
    const bool whole = event->phase() == Qt::NoScrollPhase && mWheelDelta != 0;
    if (!whole && std::abs(mWheelDelta) < kWheelStep) {
        return;
    }
    const QPoint point = pixelAt(event->position());
    const int x = std::clamp(point.x(), parts.plot().left(), parts.plot().right());
    mModel.zoomStep(timeAt({x, point.y()}), mWheelDelta > 0);
    mWheelDelta = 0;
    if (!mRecalcTimer.isActive()) {
        startRecalc();
    }
    touch();
    emit signalRangeChanged();
}

void WidgetGraphBase::leaveEvent(QEvent* event)
{
    QOpenGLWidget::leaveEvent(event);
    if (mPointer.hovering) {
        mPointer.hovering = false;
        update();
    }
}

bool WidgetGraphBase::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QOpenGLWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const int handle = layoutOfParts().handleAt(help->pos());
    const int row = mScene.layout.legendEntryAt(help->pos());
    if (handle >= 0) {
        const unsigned int trace = mScene.shown[static_cast<std::size_t>(handle)];
        QToolTip::showText(help->globalPos(),
                           tr("%1: drag to another place").arg(mModel.parameter(trace).name), this);
    } else if (row >= 0) {
        const unsigned int trace = mScene.listed[static_cast<std::size_t>(row)];
        const QString hint = mModel.parameter(trace).visible ? tr("%1: double-click to hide")
                                                             : tr("%1: double-click to show");
        QToolTip::showText(help->globalPos(), hint.arg(mModel.parameter(trace).name), this);
    } else {
        QToolTip::hideText();
        event->ignore();
    }
    return true;
}
