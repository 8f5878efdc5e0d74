#include "views/map/MapInput.h"

#include "core/Diagnostics.h"
#include "views/map/model/MapChanges.h"
#include "views/map/model/MapNavigation.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace VELIX {

namespace {

constexpr int kDragPixels = 3; // a click that trembles is no drag

} // namespace

MapInput::MapInput(MapCamera& camera, MapChanges& changes, std::function<void()> modeChanged)
    : mCamera(camera),
      mContext(camera.context()),
      mChanges(changes),
      mModeChanged(std::move(modeChanged))
{}

void MapInput::setMouse(const QPointF& logical)
{
    mMouse = mCamera.fromLogical(logical);
    mChanges.mark();
}

void MapInput::zoomAbout(const QPointF& logical, double range)
{
    setMouse(logical);
    mCamera.zoom(range, mMouse);
}

void MapInput::grabPlace()
{
    mCamera.apply();
    mGrabbed = mCamera.placeAt(*mMouse);
}

void MapInput::leaveCentring()
{
    if (mContext.centreAircraft) {
        mContext.centreAircraft = false;
        mModeChanged();
    }
}

// --- mouse

bool MapInput::press(const QMouseEvent& event)
{
    setMouse(event.localPos());
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    mPress = event.localPos();
    grabPlace();
    return true;
}

void MapInput::move(const QMouseEvent& event)
{
    setMouse(event.localPos());
    if (!event.buttons().testFlag(Qt::LeftButton)) {
        mPress.reset(); // the release may have gone elsewhere
        mContext.dragging = false;
    }
    if (!mPress) {
        return;
    }
    const bool far = (event.localPos() - *mPress).manhattanLength() >= kDragPixels;
    if (!mContext.dragging && far) {
        mContext.dragging = true;
        leaveCentring();
    }
    if (mContext.dragging) {
        mCamera.keepUnder(mGrabbed, *mMouse);
    }
}

void MapInput::release(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton) {
        mPress.reset();
        mContext.dragging = false;
        mChanges.mark();
    }
}

void MapInput::doubleClick(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton) {
        zoomAbout(event.localPos(), mContext.visibleRange / 2.0);
    }
}

void MapInput::leave()
{
    mMouse.reset();
    mChanges.mark();
}

void MapInput::wheel(const QWheelEvent& event)
{
    const QPoint place = event.position().toPoint();
    const QPoint global = event.globalPosition().toPoint();
    Diagnostics::print("wheelEvent phase %d\n", static_cast<int>(event.phase()));
    Diagnostics::print("wheelEvent globalPos %d %d\n", global.x(), global.y());
    Diagnostics::print("wheelEvent pos %d %d\n", place.x(), place.y());
    Diagnostics::print("wheelEvent pixelDelta %d %d\n", event.pixelDelta().x(),
                       event.pixelDelta().y());
    Diagnostics::print("wheelEvent angleDelta %d %d\n", event.angleDelta().x(),
                       event.angleDelta().y());
    Diagnostics::print("wheelEvent mouseButtons 0x%x\n",
                       static_cast<unsigned int>(event.buttons()));
    Diagnostics::print("wheelEvent inverted %d\n", event.inverted() ? 1 : 0);
    if (event.source() == Qt::MouseEventSynthesizedBySystem) {
        panByWheel(event);
    } else {
        zoomAbout(event.position(),
                  MapNavigation::wheelZoomed(mContext.visibleRange, event.angleDelta().y()));
    }
}

/// Two fingers on a touch pad.
void MapInput::panByWheel(const QWheelEvent& event)
{
    // Without phases nothing would say that it is over.
    mContext.panning = event.phase() != Qt::ScrollEnd && event.phase() != Qt::NoScrollPhase;
    if (event.pixelDelta().isNull()) {
        return;
    }
    setMouse(event.position());
    leaveCentring();
    grabPlace();
    mCamera.keepUnder(mGrabbed, *mMouse + mCamera.fromLogical(event.pixelDelta()));
}

// --- gestures

bool MapInput::gesture(const QNativeGestureEvent& event)
{
    const int type = static_cast<int>(event.gestureType());
    Diagnostics::print("Gesture %d value %f\n", type, event.value());
    switch (event.gestureType()) {
    case Qt::BeginNativeGesture:
        Diagnostics::print("BEGIN %d\n", type);
        mContext.animating = true;
        return true;
    case Qt::EndNativeGesture:
        Diagnostics::print("END %d\n", type);
        mContext.animating = false;
        mChanges.mark();
        return true;
    case Qt::ZoomNativeGesture: {
        constexpr double kLeastFactor = 0.1; // whatever a driver says
        zoomAbout(event.localPos(),
                  mContext.visibleRange / std::max(1.0 + event.value(), kLeastFactor));
        return true;
    }
    default:
        return false;
    }
}

/// One finger moves the map, two also zoom it.
void MapInput::touch(const QTouchEvent& event)
{
    const QList<QTouchEvent::TouchPoint>& points = event.touchPoints();
    const bool ends = event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel;
    if (points.isEmpty() || ends) {
        mContext.animating = false;
        mTouchSpread = 0.0;
        leave();
        return;
    }
    QPointF middle;
    for (const QTouchEvent::TouchPoint& point : points) {
        middle += point.pos() / points.size();
    }
    const QPointF apart = points.last().pos() - points.first().pos();
    const double spread = std::hypot(apart.x(), apart.y());
    const bool moved = event.touchPointStates().testFlag(Qt::TouchPointMoved);
    const bool changed =
        (event.touchPointStates() & (Qt::TouchPointPressed | Qt::TouchPointReleased)) != 0;
    setMouse(middle);
    if (changed || !mContext.animating) { // the fingers take hold again
        grabPlace();
    } else if (moved) {
        leaveCentring();
        if (spread > 0.0 && mTouchSpread > 0.0) {
            mCamera.setRange(mContext.visibleRange * mTouchSpread / spread);
        }
        mCamera.keepUnder(mGrabbed, *mMouse);
    }
    mContext.animating = true;
    mTouchSpread = spread;
}

// --- keys

bool* MapInput::Keys::flag(int key)
{
    switch (key) {
    case Qt::Key_Plus:
        return &zoomIn;
    case Qt::Key_Minus:
        return &zoomOut;
    case Qt::Key_Up:
        return &north;
    case Qt::Key_Down:
        return &south;
    case Qt::Key_Left:
        return &west;
    case Qt::Key_Right:
        return &east;
    case Qt::Key_Shift:
        return &shift;
    case Qt::Key_Control:
        return &control;
    default:
        return nullptr;
    }
}

bool MapInput::isShadingKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_S && event.modifiers() == Qt::ControlModifier;
}

bool MapInput::pressKey(const QKeyEvent& event)
{
    mChanges.mark();
    if (isShadingKey(event)) {
        if (!event.isAutoRepeat()) {
            mContext.shading = !mContext.shading;
            mModeChanged();
        }
        return true;
    }
    if (bool* flag = mKeys.flag(event.key())) {
        *flag = true;
        *mTapped.flag(event.key()) = true;
        return true;
    }
    return event.key() == Qt::Key_Escape; // which only draws
}

bool MapInput::releaseKey(const QKeyEvent& event)
{
    if (event.isAutoRepeat()) {
        return true;
    }
    if (event.key() == Qt::Key_Shift) {
        // A sign typed with Shift may be released as another one, and would stay down.
        mKeys.zoomIn = false;
        mKeys.zoomOut = false;
    }
    bool* flag = mKeys.flag(event.key());
    if (flag != nullptr) {
        *flag = false;
    }
    return flag != nullptr;
}

void MapInput::loseFocus()
{
    mKeys = {};
}

void MapInput::applyKeys()
{
    const auto balance = [this](bool Keys::*more, bool Keys::*less) {
        return (mKeys.*more || mTapped.*more ? 1 : 0) - (mKeys.*less || mTapped.*less ? 1 : 0);
    };
    const int zoom = balance(&Keys::zoomIn, &Keys::zoomOut);
    const int north = balance(&Keys::north, &Keys::south);
    const int east = balance(&Keys::east, &Keys::west);
    mTapped = {};
    if (north != 0 || east != 0) {
        leaveCentring(); // which would pull the map back
    }
    if (zoom != 0 || north != 0 || east != 0) {
        mCamera.moveByKeys(zoom, north, east);
        mChanges.mark();
    }
}

} // namespace VELIX
