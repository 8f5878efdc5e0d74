#include "views/graph/widget/GraphInput.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphSceneCache.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kWheelStep = 120;      ///< eighths of a degree
constexpr double kFineStep = 1.0;    ///< pixels
constexpr double kCoarseStep = 10.0; ///< pixels, with Shift
constexpr int kCursorActiveMs = 5000;

/// The nearest whole pixel, halves upwards.
QPoint pixelAt(const QPointF& position)
{
    return {static_cast<int>(std::floor(position.x() + 0.5)),
            static_cast<int>(std::floor(position.y() + 0.5))};
}

Qt::KeyboardModifier modifierOf(int key)
{
    switch (key) {
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

} // namespace

GraphInput::GraphInput(GraphModel& model, GraphPointer& pointer, GraphSceneCache& scenes,
                       const Timers& timers)
    : mModel(model), mPointer(pointer), mScenes(scenes), mTimers(timers)
{}

void GraphInput::reset()
{
    const bool focused = mPointer.focused;
    mPointer = {};
    mPointer.focused = focused;
    mDrag = Drag::None;
}

// --- buttons of the mouse

void GraphInput::press(const QMouseEvent& event)
{
    const QPoint point = pixelAt(event.localPos());
    if (mDrag != Drag::None) {
        return; // a second button does not disturb a drag
    }
    mPointer.hovering = false;
    mPressPoint = point;
    if (mScenes.current().layout.plot().contains(point)) {
        pressInPlot(event, point);
    } else if (event.button() == Qt::LeftButton) {
        pressOutside(point);
    }
    emit signalRepaint();
}

void GraphInput::pressInPlot(const QMouseEvent& event, const QPoint& point)
{
    const Qt::KeyboardModifiers held = event.modifiers() | mHeldKeys;
    switch (event.button()) {
    case Qt::LeftButton:
        if (held.testFlag(Qt::ControlModifier) && !held.testFlag(Qt::ShiftModifier)) {
            moveCursorTo(point);
        } else {
            startMarker(point, held.testFlag(Qt::ShiftModifier));
        }
        break;
    case Qt::MiddleButton:
        mDrag = Drag::Cursor;
        moveCursorTo(point);
        break;
    case Qt::RightButton:
        if (mPanningAllowed) {
            mDrag = Drag::Pan;
            mPressRange = mModel.range();
        }
        break;
    default:
        break;
    }
}

void GraphInput::pressOutside(const QPoint& point)
{
    const GraphScene& scene = mScenes.current();
    const int handle = scene.layout.handleAt(point);
    if (handle >= 0) {
        mDrag = Drag::Handle;
        mPointer.draggedTrace = handle;
        mPointer.dropPosition = handle;
        mModel.setSelectedTrace(scene.shown[static_cast<std::size_t>(handle)]);
        return;
    }
    const int row = scene.layout.legendEntryAt(point);
    if (row >= 0 && mModel.isShown(scene.listed[static_cast<std::size_t>(row)])) {
        mModel.setSelectedTrace(scene.listed[static_cast<std::size_t>(row)]);
    }
}

void GraphInput::move(const QMouseEvent& event)
{
    const QPoint point = pixelAt(event.localPos());
    const bool wasHovering = mPointer.hovering;
    mPointer.mouse = point;
    mPointer.hovering = mDrag == Drag::None && event.buttons() == Qt::NoButton &&
                        mScenes.current().layout.plot().contains(point);
    switch (mDrag) {
    case Drag::None:
        if (wasHovering || mPointer.hovering) {
            emit signalRepaint();
        }
        break;
    case Drag::Marker:
        moveMarker(point);
        break;
    case Drag::Cursor:
        moveCursorTo(point);
        break;
    case Drag::Pan:
        pan(point);
        break;
    case Drag::Handle:
        mPointer.dropPosition = mScenes.current().layout.dropAt(point.y());
        emit signalRepaint();
        break;
    }
}

void GraphInput::release(const QMouseEvent& event)
{
    const Qt::MouseButton owner = mDrag == Drag::Cursor ? Qt::MiddleButton
                                  : mDrag == Drag::Pan  ? Qt::RightButton
                                                        : Qt::LeftButton;
    if (event.button() == owner) {
        finishDrag(pixelAt(event.localPos()));
    }
}

void GraphInput::doubleClick(const QMouseEvent& event)
{
    const GraphScene& scene = mScenes.current();
    const int row = scene.layout.legendEntryAt(pixelAt(event.localPos()));
    if (row < 0 || event.button() != Qt::LeftButton) {
        press(event);
        return;
    }
    const unsigned int trace = scene.listed[static_cast<std::size_t>(row)];
    mModel.setVisible(trace, !mModel.parameter(trace).visible);
    emit signalRepaint();
}

void GraphInput::leave()
{
    if (mPointer.hovering) {
        mPointer.hovering = false;
        emit signalRepaint();
    }
}

// --- drags

void GraphInput::startMarker(const QPoint& point, bool nearer)
{
    const double time = mScenes.timeAt(point);
    mDrag = Drag::Marker;
    mPointer.markersOn = true;
    if (nearer) {
        mPointer.distance = true;
        mSecondMarker = time >= (mModel.marker1() + mModel.marker2()) / 2.0;
        mModel.setNearerMarker(time);
    } else {
        mSecondMarker = true;
        mModel.setMarker(time, time);
    }
    emitMarkers();
}

void GraphInput::moveMarker(const QPoint& point)
{
    if (point == mPressPoint && !mPointer.distance) {
        return; // a click that sets both does not pull them apart
    }
    mPointer.distance = true;
    const double time = mScenes.timeAt(point);
    mSecondMarker ? mModel.setMarker(mModel.marker1(), time)
                  : mModel.setMarker(time, mModel.marker2());
    emitMarkers();
}

void GraphInput::moveCursorTo(const QPoint& point)
{
    const GraphScene& scene = mScenes.current();
    const QRect plot = scene.layout.plot();
    if (plot.isEmpty()) {
        return;
    }
    const QPoint inside(std::clamp(point.x(), plot.left(), plot.right()),
                        std::clamp(point.y(), plot.top(), plot.bottom()));
    const int position = scene.layout.bandAt(inside.y());
    if (position >= 0) {
        mModel.setSelectedTrace(scene.shown[static_cast<std::size_t>(position)]);
    }
    const GraphYScale& scale = mModel.scaleOf(mModel.selectedTrace());
    const QRect band = position >= 0 ? scene.layout.band(position) : plot;
    const double value = GraphLayout::valueAt(inside.y(), band, scale.minimum, scale.maximum);
    mModel.setCursorInPlace(mScenes.timeAt(inside)); // a range that followed would flee the mouse
    mModel.setCursorValue(value);
    emitCursor();
}

void GraphInput::pan(const QPoint& point)
{
    const int width = mScenes.current().layout.plot().width();
    if (width <= 0) {
        return;
    }
    mModel.pan(mPressRange, (mPressPoint.x() - point.x()) * mPressRange.span() / width);
    emit signalRepaint();
    emit signalManMode();
}

void GraphInput::finishDrag(const QPoint& point)
{
    const Drag finished = mDrag;
    mDrag = Drag::None;
    mPointer.distance = false;
    const int from = mPointer.draggedTrace;
    mPointer.draggedTrace = -1;
    mPointer.dropPosition = -1;
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
        finishPan();
        break;
    case Drag::Handle:
        if (const int to = mScenes.current().layout.dropAt(point.y()); from >= 0 && to >= 0) {
            moveTrace(from, to);
        }
        break;
    case Drag::None:
        break;
    }
    emit signalRepaint();
}

void GraphInput::finishPan()
{
    mModel.recalcFrameBuffer();
    mModel.startRecalcTimer();
    mTimers.recalc.start(GraphRecalc::kIntervalMs);
    emit signalRangeChanged();
}

void GraphInput::moveTrace(int from, int to)
{
    const std::vector<unsigned int>& shown = mScenes.current().shown;
    const int count = static_cast<int>(shown.size());
    if (from >= count || to >= count) {
        return; // the traces changed during the drag
    }
    // Hidden and inactive traces keep their positions between those shown.
    const auto positionOf = [this, &shown](int index) {
        const std::vector<unsigned int>& order = mModel.displayOrder();
        const unsigned int trace = shown[static_cast<std::size_t>(index)];
        return static_cast<unsigned int>(std::find(order.begin(), order.end(), trace) -
                                         order.begin());
    };
    if (from != to) {
        mModel.moveParameter(positionOf(from), positionOf(to));
    }
    emit signalMoveParameter(from, to);
}

// --- wheel

bool GraphInput::turnWheel(const QWheelEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() | mHeldKeys;
    const GraphLayout& parts = mScenes.current().layout;
    if (mDrag != Drag::None || held.testFlag(Qt::ShiftModifier) || parts.empty()) {
        return false;
    }
    mWheelDelta += event.angleDelta().y();
    // A mouse wheel sends whole steps and no phases; a touch pad sends parts of steps.
    const bool whole = event.phase() == Qt::NoScrollPhase && mWheelDelta != 0;
    if (!whole && std::abs(mWheelDelta) < kWheelStep) {
        return true;
    }
    const QPoint point = pixelAt(event.position());
    const int x = std::clamp(point.x(), parts.plot().left(), parts.plot().right());
    mModel.zoomStep(mScenes.timeAt({x, point.y()}), mWheelDelta > 0);
    mWheelDelta = 0;
    if (!mTimers.recalc.isActive()) {
        mModel.startRecalc();
        mTimers.recalc.start(GraphRecalc::kIntervalMs);
    }
    emit signalRepaint();
    emit signalRangeChanged();
    return true;
}

// --- keys

bool GraphInput::pressKey(const QKeyEvent& event)
{
    mHeldKeys |= modifierOf(event.key());
    const Qt::KeyboardModifiers held = event.modifiers();
    // With these the arrow keys belong to the window.
    if (held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return false;
    }
    const double step = held.testFlag(Qt::ShiftModifier) ? kCoarseStep : kFineStep;
    switch (event.key()) {
    case Qt::Key_Left:
        moveCursorBy(-step, 0.0);
        return true;
    case Qt::Key_Right:
        moveCursorBy(step, 0.0);
        return true;
    case Qt::Key_Up:
        moveCursorBy(0.0, step);
        return true;
    case Qt::Key_Down:
        moveCursorBy(0.0, -step);
        return true;
    default:
        return false;
    }
}

void GraphInput::moveCursorBy(double pixelsX, double pixelsY)
{
    const GraphLayout& parts = mScenes.current().layout;
    if (parts.empty()) {
        return;
    }
    const double value = pixelsY != 0.0 ? valueAfter(pixelsY) : mModel.cursorValue();
    const double secondsPerPixel = (mModel.xmax() - mModel.xmin()) / parts.plot().width();
    mModel.setCursorPosition(mModel.cursorTime() + pixelsX * secondsPerPixel);
    mModel.setCursorValue(value);
    mPointer.cursorActive = true;
    mTimers.cursor.start(kCursorActiveMs);
    emitCursor();
}

double GraphInput::valueAfter(double pixels)
{
    const GraphScene& scene = mScenes.current();
    const QRect plot = scene.layout.plot();
    const GraphYScale& old = mModel.scaleOf(mModel.selectedTrace());
    const double y =
        GraphLayout::yOf(mModel.cursorValue(), mScenes.selectedBand(), old.minimum, old.maximum) -
        pixels;
    const int position = scene.layout.bandAt(
        static_cast<int>(std::floor(std::clamp(y, 1.0 * plot.top(), 1.0 * plot.bottom()))));
    if (position >= 0) {
        mModel.setSelectedTrace(scene.shown[static_cast<std::size_t>(position)]);
    }
    const GraphYScale& scale = mModel.scaleOf(mModel.selectedTrace());
    return GraphLayout::valueAt(y, mScenes.selectedBand(), scale.minimum, scale.maximum);
}

void GraphInput::releaseKey(const QKeyEvent& event)
{
    mHeldKeys &= ~Qt::KeyboardModifiers(modifierOf(event.key()));
}

void GraphInput::setFocused(bool focused)
{
    mPointer.focused = focused;
    if (!focused) {
        mHeldKeys = Qt::NoModifier; // their release goes elsewhere
    }
}

// --- what others learn

void GraphInput::emitCursor()
{
    emit signalRepaint();
    emit signalCursor(static_cast<float>(mModel.cursorTime()), mModel.cursorValue());
}

void GraphInput::emitMarkers()
{
    emit signalRepaint();
    emit signalMarker(static_cast<float>(mModel.marker1()), static_cast<float>(mModel.marker2()));
}

} // namespace VELIX
