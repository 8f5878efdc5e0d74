#pragma once

#include "views/map/MapCamera.h"

#include <QPointF>

#include <functional>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QNativeGestureEvent;
class QTouchEvent;
class QWheelEvent;

namespace VELIX {

class MapChanges;

/// Moves the map by mouse, wheel, keys, gestures and touch.
///
/// What returns a bool returns whether the event was of use; the widget's base class has the
/// others.
class MapInput
{
public:
    /// Camera and changes must outlive it. modeChanged is called when the user left or chose a mode
    /// by hand: the context has it.
    MapInput(MapCamera& camera, MapChanges& changes, std::function<void()> modeChanged);

    bool press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void doubleClick(const QMouseEvent& event);
    void leave();
    void wheel(const QWheelEvent& event);
    bool gesture(const QNativeGestureEvent& event);
    void touch(const QTouchEvent& event);

    bool pressKey(const QKeyEvent& event);
    bool releaseKey(const QKeyEvent& event);
    /// Forgets the keys that are held: their release goes elsewhere.
    void loseFocus();
    /// Whether a key event is the one that shades the terrain, or no longer.
    [[nodiscard]] static bool isShadingKey(const QKeyEvent& event);

    /// Moves the map by one frame with the keys that are held.
    void applyKeys();
    /// Where the mouse is, in pixels; none while it is not over the map.
    [[nodiscard]] const std::optional<QPointF>& mouse() const { return mMouse; }

private:
    struct Keys
    {
        bool zoomIn = false;
        bool zoomOut = false;
        bool north = false;
        bool south = false;
        bool west = false;
        bool east = false;
        bool shift = false;
        bool control = false;

        bool* flag(int key); ///< of a Qt::Key; null for keys that the map has no use for
    };

    void setMouse(const QPointF& logical);
    void grabPlace();
    void zoomAbout(const QPointF& logical, double range);
    void leaveCentring();
    void panByWheel(const QWheelEvent& event);

    MapCamera& mCamera;
    MapContext& mContext;
    MapChanges& mChanges;
    std::function<void()> mModeChanged;
    Keys mKeys;                    ///< held
    Keys mTapped;                  ///< pressed since the last frame: a short press counts, too
    std::optional<QPointF> mMouse; ///< pixels
    std::optional<QPointF> mPress; ///< where the left button went down, logical pixels
    MapCamera::Place mGrabbed;     ///< kept under the mouse or the fingers
    double mTouchSpread = 0.0;     ///< between two fingers, logical pixels
};

} // namespace VELIX
