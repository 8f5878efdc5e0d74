#pragma once

#include "views/graph/model/GraphTimeRange.h"

#include <QObject>
#include <QPoint>

class QKeyEvent;
class QMouseEvent;
class QPointF;
class QTimer;
class QWheelEvent;

namespace VELIX {

class GraphModel;
class GraphSceneCache;
struct GraphPointer;

/// Does what mouse, wheel and keys ask of a graph: moves cursor, markers, range and traces.
class GraphInput : public QObject
{
    Q_OBJECT

public:
    /// The single-shot timers of a graph widget that input starts.
    struct Timers
    {
        QTimer& recalc; ///< rebuilds the frames
        QTimer& cursor; ///< ends the time in which the cursor counts as active
    };

    /// All of them outlive the input.
    GraphInput(GraphModel& model, GraphPointer& pointer, GraphSceneCache& scenes,
               const Timers& timers);

    /// Allows or forbids to move the range by dragging with the right button; at first it is
    /// allowed.
    void setPanning(bool allowed) { mPanningAllowed = allowed; }
    /// Forgets what is dragged and shown for the moment, but not the focus.
    void reset();

    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void doubleClick(const QMouseEvent& event);
    /// @return false if the wheel is not for the graph
    [[nodiscard]] bool turnWheel(const QWheelEvent& event);
    void leave();
    /// @return false if the key is not for the graph
    [[nodiscard]] bool pressKey(const QKeyEvent& event);
    void releaseKey(const QKeyEvent& event);
    void setFocused(bool focused);

signals:
    /// Something that is seen changed.
    void signalRepaint();
    // The graph widget passes on all others.
    void signalCursor(float time, double value);
    void signalMoveCursorFinished();
    void signalMarker(float marker1, float marker2);
    void signalManMode();
    void signalMoveParameter(int from, int to);
    void signalRangeChanged();

private:
    enum class Drag { None, Marker, Cursor, Pan, Handle };

    void pressInPlot(const QMouseEvent& event, const QPoint& point);
    void pressOutside(const QPoint& point);
    void startMarker(const QPoint& point, bool nearer);
    void moveMarker(const QPoint& point);
    void moveCursorTo(const QPoint& point);
    void moveCursorBy(double pixelsX, double pixelsY);
    /// The cursor's value after a move by pixels, which may lead to another trace.
    [[nodiscard]] double valueAfter(double pixels);
    void pan(const QPoint& point);
    void finishDrag(const QPoint& point);
    void finishPan();
    void moveTrace(int from, int to);
    void emitCursor();
    void emitMarkers();

    GraphModel& mModel;
    GraphPointer& mPointer;
    GraphSceneCache& mScenes;
    Timers mTimers;

    Drag mDrag = Drag::None;
    Qt::KeyboardModifiers mHeldKeys = Qt::NoModifier;
    bool mPanningAllowed = true;
    QPoint mPressPoint;
    bool mSecondMarker = false; ///< the marker that is dragged
    GraphTimeRange mPressRange;
    int mWheelDelta = 0; ///< of touch pads, which send parts of a step
};

} // namespace VELIX
