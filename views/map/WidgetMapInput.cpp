#include "core/Diagnostics.h"
#include "platform/openstreetmap/OpenStreetMap.h"
#include "views/map/WidgetMap.h"
#include "views/map/model/MapContext.h"
#include "views/map/model/MapNavigation.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include <cmath>

namespace VELIX {

namespace {

constexpr int kDragPixels = 3;       // a click that trembles is no drag
constexpr double kSamePlace = 1e-10; // degrees
constexpr int kMostShifts = 8;

bool isSave(const QKeyEvent& event)
{
    return event.key() == Qt::Key_S && event.modifiers() == Qt::ControlModifier;
}

} // namespace

// --- moving the map

QPointF WidgetMap::pixelOf(const QPointF& logical) const
{
    return logical * mRatio;
}

void WidgetMap::setMouse(const QPointF& logical)
{
    mMouse = pixelOf(logical);
    mDirty = true;
}

/// Shifts the centre until a place in degrees is at a place in the window. More than one shift,
/// since the map's scale depends on the latitude of its centre.
void WidgetMap::keepUnder(double latitude, double longitude, const QPointF& place)
{
    for (int i = 0; i < kMostShifts; ++i) {
        double lat = 0.0;
        double lon = 0.0;
        mMap->window2LatLong(place.x(), place.y(), &lat, &lon);
        const double north = latitude - lat;
        const double east = std::remainder(longitude - lon, 360.0);
        if (std::abs(north) < kSamePlace && std::abs(east) < kSamePlace) {
            break;
        }
        MapNavigation::setCentre(*mContext, mContext->centreLatitude + north,
                                 mContext->centreLongitude + east);
        updateWindow();
    }
    mDirty = true;
}

void WidgetMap::zoomCentered(double range)
{
    updateWindow();
    // In the middle of the map an aircraft that is followed stays where it is.
    const QPointF middle(pixels().width() / 2.0, pixels().height() / 2.0);
    const QPointF place = mContext->centreAircraft ? middle : mMouse.value_or(middle);
    double latitude = 0.0;
    double longitude = 0.0;
    mMap->window2LatLong(place.x(), place.y(), &latitude, &longitude);
    mContext->visibleRange = MapNavigation::clampedRange(range);
    mFollower.keepRange();
    updateWindow();
    keepUnder(latitude, longitude, place);
}

void WidgetMap::zoomAbout(const QPointF& logical, double range)
{
    setMouse(logical);
    zoomCentered(range);
}

void WidgetMap::grabPlace()
{
    updateWindow();
    mMap->window2LatLong(mMouse->x(), mMouse->y(), &mGrabLatitude, &mGrabLongitude);
}

void WidgetMap::leaveCentring()
{
    if (mContext->centreAircraft) {
        mContext->centreAircraft = false;
        emit signalUpdateMode();
    }
}

// --- mouse

void WidgetMap::mousePressEvent(QMouseEvent* event)
{
    setMouse(event->localPos());
    if (event->button() == Qt::LeftButton) {
        mPress = event->localPos();
        grabPlace();
    } else {
        QOpenGLWidget::mousePressEvent(event);
    }
}

void WidgetMap::mouseMoveEvent(QMouseEvent* event)
{
    setMouse(event->localPos());
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        mPress.reset(); // the release may have gone elsewhere
        mContext->dragging = false;
    }
    if (!mPress) {
        return;
    }
    const bool far = (event->localPos() - *mPress).manhattanLength() >= kDragPixels;
    if (!mContext->dragging && far) {
        mContext->dragging = true;
        leaveCentring();
    }
    if (mContext->dragging) {
        keepUnder(mGrabLatitude, mGrabLongitude, *mMouse);
    }
}

void WidgetMap::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        mPress.reset();
        mContext->dragging = false;
        mDirty = true;
    }
}

void WidgetMap::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        zoomAbout(event->localPos(), mContext->visibleRange / 2.0);
    }
}

void WidgetMap::leaveEvent(QEvent* event)
{
    QOpenGLWidget::leaveEvent(event);
    mMouse.reset();
    mDirty = true;
}

void WidgetMap::wheelEvent(QWheelEvent* event)
{
    const QPoint place = event->position().toPoint();
    const QPoint global = event->globalPosition().toPoint();
    Diagnostics::print("wheelEvent phase %d\n", static_cast<int>(event->phase()));
    Diagnostics::print("wheelEvent globalPos %d %d\n", global.x(), global.y());
    Diagnostics::print("wheelEvent pos %d %d\n", place.x(), place.y());
    Diagnostics::print("wheelEvent pixelDelta %d %d\n", event->pixelDelta().x(),
                       event->pixelDelta().y());
    Diagnostics::print("wheelEvent angleDelta %d %d\n", event->angleDelta().x(),
                       event->angleDelta().y());
    Diagnostics::print("wheelEvent mouseButtons 0x%x\n",
                       static_cast<unsigned int>(event->buttons()));
    Diagnostics::print("wheelEvent inverted %d\n", event->inverted() ? 1 : 0);
    if (event->source() == Qt::MouseEventSynthesizedBySystem) {
        panByWheel(*event);
    } else {
        zoomAbout(event->position(),
                  MapNavigation::wheelZoomed(mContext->visibleRange, event->angleDelta().y()));
    }
    event->accept();
}

/// Two fingers on a touch pad.
void WidgetMap::panByWheel(const QWheelEvent& event)
{
    // Without phases nothing would tell that it is over.
    mContext->panning = event.phase() != Qt::ScrollEnd && event.phase() != Qt::NoScrollPhase;
    if (event.pixelDelta().isNull()) {
        return;
    }
    setMouse(event.position());
    leaveCentring();
    grabPlace();
    keepUnder(mGrabLatitude, mGrabLongitude, *mMouse + pixelOf(event.pixelDelta()));
}

// --- gestures

bool WidgetMap::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (isSave(*static_cast<QKeyEvent*>(event))) {
            event->accept(); // elsewhere the key saves the project
            return true;
        }
        break;
    case QEvent::NativeGesture:
        return gesture(*static_cast<QNativeGestureEvent*>(event)) || QOpenGLWidget::event(event);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (touch(*static_cast<QTouchEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    default:
        break;
    }
    return QOpenGLWidget::event(event);
}

bool WidgetMap::gesture(const QNativeGestureEvent& event)
{
    const int type = static_cast<int>(event.gestureType());
    Diagnostics::print("Gesture %d value %f\n", type, event.value());
    switch (event.gestureType()) {
    case Qt::BeginNativeGesture:
        Diagnostics::print("BEGIN %d\n", type);
        mContext->animating = true;
        return true;
    case Qt::EndNativeGesture:
        Diagnostics::print("END %d\n", type);
        mContext->animating = false;
        mDirty = true;
        return true;
    case Qt::ZoomNativeGesture: {
        constexpr double kLeastFactor = 0.1; // whatever a driver says
        zoomAbout(event.localPos(),
                  mContext->visibleRange / std::max(1.0 + event.value(), kLeastFactor));
        return true;
    }
    default:
        return false;
    }
}

/// One finger moves the map, two also zoom it.
bool WidgetMap::touch(const QTouchEvent& event)
{
    const QList<QTouchEvent::TouchPoint>& points = event.touchPoints();
    const bool ends = event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel;
    if (points.isEmpty() || ends) {
        mContext->animating = false;
        mTouchSpread = 0.0;
        mMouse.reset();
        mDirty = true;
        return true;
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
    if (changed || !mContext->animating) { // the fingers take hold anew
        grabPlace();
    } else if (moved) {
        leaveCentring();
        if (spread > 0.0 && mTouchSpread > 0.0) {
            mContext->visibleRange =
                MapNavigation::clampedRange(mContext->visibleRange * mTouchSpread / spread);
            updateWindow();
        }
        keepUnder(mGrabLatitude, mGrabLongitude, *mMouse);
    }
    mContext->animating = true;
    mTouchSpread = spread;
    return true;
}

// --- keys

bool* WidgetMap::Keys::flag(int key)
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

void WidgetMap::keyPressEvent(QKeyEvent* event)
{
    mDirty = true;
    if (isSave(*event)) {
        if (!event->isAutoRepeat()) {
            mContext->shading = !mContext->shading;
            emit signalUpdateMode();
        }
    } else if (bool* flag = mKeys.flag(event->key())) {
        *flag = true;
        *mTapped.flag(event->key()) = true;
    } else if (event->key() != Qt::Key_Escape) {
        QOpenGLWidget::keyPressEvent(event);
    }
}

void WidgetMap::keyReleaseEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        return;
    }
    if (event->key() == Qt::Key_Shift) {
        // A sign typed with Shift may be released as another one, and would stay down.
        mKeys.zoomIn = false;
        mKeys.zoomOut = false;
    }
    if (bool* flag = mKeys.flag(event->key())) {
        *flag = false;
    } else {
        QOpenGLWidget::keyReleaseEvent(event);
    }
}

void WidgetMap::focusOutEvent(QFocusEvent* event)
{
    QOpenGLWidget::focusOutEvent(event);
    mKeys = {}; // their release goes elsewhere
}

void WidgetMap::applyKeys()
{
    const auto balance = [this](bool Keys::*more, bool Keys::*less) {
        return (mKeys.*more || mTapped.*more ? 1 : 0) - (mKeys.*less || mTapped.*less ? 1 : 0);
    };
    const int zoom = balance(&Keys::zoomIn, &Keys::zoomOut);
    const int north = balance(&Keys::north, &Keys::south);
    const int east = balance(&Keys::east, &Keys::west);
    mTapped = {};
    if (zoom != 0) {
        mContext->visibleRange = MapNavigation::keyZoomed(mContext->visibleRange, zoom);
        mFollower.keepRange();
    }
    if (north != 0 || east != 0) {
        leaveCentring(); // which would pull the map back
        MapNavigation::keyPan(*mContext, north, east);
    }
    mDirty = mDirty || zoom != 0 || north != 0 || east != 0;
}

} // namespace VELIX
