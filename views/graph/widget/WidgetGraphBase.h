#pragma once

#include "platform/tessel/opengl/FrameCache.h"
#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphCurve.h"
#include "views/graph/widget/GraphLook.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphScene.h"

#include <QElapsedTimer>
#include <QOpenGLWidget>
#include <QTimer>

#include <string>
#include <vector>

/// The graph of any number of traces over time, with grid, legend, cursor, two markers and
/// readouts. All but the drawing of lines, which the two graph widgets do in different ways.
///
/// Times are seconds on the record's time axis. Feeding: setTime(t), then putValue() for each trace
/// with a sample at that time; the picture follows at the pace of the repaint timer.
class WidgetGraphBase : public QOpenGLWidget
{
    Q_OBJECT

public:
    using eCursorMode = VELIX::GraphModel::eCursorMode;
    using eGraphMode = VELIX::GraphModel::eGraphMode;
    using eDisplayMode = VELIX::GraphModel::eDisplayMode;
    using ParStruct = VELIX::GraphModel::ParStruct;
    using EntryType = VELIX::GraphTrace::EntryType;
    using FrameType = VELIX::GraphTrace::FrameType;

    explicit WidgetGraphBase(QWidget* parent = nullptr);
    ~WidgetGraphBase() override;

    /// State, samples and rules; for whoever only reads them.
    [[nodiscard]] const VELIX::GraphModel& model() const { return mModel; }

    // --- traces, by number; numbers beyond the traces are ignored

    void setMaxParameters(unsigned int count);
    void setParameterName(unsigned int i, const std::string& name);
    void setParameterUnit(unsigned int i, const std::string& unit);
    void setParameterColor(unsigned int i, float red, float green, float blue);
    void setPrecision(unsigned int i, int decimals);
    void setActive(unsigned int i, bool active);
    void activateSamples(unsigned int i, bool on);
    [[nodiscard]] unsigned int nrActive() const { return mModel.nrActive(); }

    // --- feeding

    void setTime(double t);
    void putValue(unsigned int i, double value, bool hold);
    void clear();
    void reset();

    // --- values

    bool getValue(unsigned int i, double t, double& v) const { return mModel.getValue(i, t, v); }
    bool getParameterRangeX(unsigned int i, double& first, double& last) const;
    bool getParameterRangeY(unsigned int i, double& low, double& high) const;
    /// Mean of the selected trace over the visible range.
    [[nodiscard]] double getCurrentAverageValue() const;
    /// Whether the current time is visible.
    [[nodiscard]] bool inRange() const { return mModel.inRange(); }

    // --- cursor, markers, modes

    void setCursorPosition(double x);
    void setCursorMode(eCursorMode mode);
    void setGraphMode(eGraphMode mode);
    void setDisplayMode(eDisplayMode mode);
    void setOfflineMode(bool on);
    void setMarker(double marker1, double marker2);
    /// A triangle at the upper edge of the plot, labelled with the trace's name and the time.
    void addTopMarker(unsigned int i, double time);
    /// Whether dragging with the right button moves the range; at first it does.
    void setPanning(bool allowed) { mPanningAllowed = allowed; }

    // --- look, colours as fractions 0..1

    void setBackColor(float red, float green, float blue);
    void setGridColor(float red, float green, float blue);
    void setLabelColor(float red, float green, float blue);
    void setLabelBackColor(float red, float green, float blue);
    void activateGrid(bool on);
    void activateCursor(bool on);
    void activateLegend(bool on);

    // --- scales and ranges

    void setAutoScaleY(bool on);
    void setAutoScaleYSpread(double spread);
    void setYRangeOn(bool on);
    [[nodiscard]] bool getYRangeOn() const { return mModel.scaling().rangeOn(); }
    void setYRange(double ymin, double ymax);
    void setYmin(float ymin);
    void setYmax(float ymax);
    void setXmin(float xmin);
    void setXmax(float xmax);
    /// Both ends at once and in full precision.
    void setVisibleRange(double xmin, double xmax);
    /// Moves the start of the visible range and keeps its width.
    void setT0(float t0);
    void setXrange(float width);
    void zoomToMarker();
    /// Rebuilds the frames four times, 50 ms apart, to catch the final size and range.
    void startRecalc();

    // --- what is where, in logical pixels of the widget

    [[nodiscard]] const VELIX::GraphLayout& layoutOfParts();
    [[nodiscard]] const VELIX::GraphLook& look() const { return mLook; }
    [[nodiscard]] bool markersOn() const { return mPointer.markersOn; }
    /// Pictures painted so far.
    [[nodiscard]] unsigned int paintCount() const { return mPaintCount; }

signals:
    /// The user moved the cursor: its time, and its value on the selected trace's scale.
    void signalCursor(float time, double value);
    void signalMoveCursorFinished();
    void signalMarker(float marker1, float marker2);
    /// The user took over the time range, leaving the automatic mode.
    void signalManMode();
    /// A trace was dragged from one place of the display to another.
    void signalMoveParameter(int from, int to);
    /// The user changed the visible range by wheel or mouse; sent at the end of a drag.
    void signalRangeChanged();

public slots:
    /// Repaints if something changed and the traces moved on enough since the last time.
    void slotTimeout();
    void slotTimeoutRecalc();
    void slotTimeoutCursor();

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

    // --- how the two widgets differ; coordinates are pixels of the frame buffer, y downwards

    virtual void beginDrawing(const QSize& pixels) = 0;
    /// Pairs of vertices, each a line.
    virtual void drawLines(const std::vector<VELIX::GraphVertex>& vertices, const QColor& colour,
                           float width) = 0;
    /// Line strips; with a point size also a square on each vertex.
    virtual void drawCurve(const VELIX::GraphCurve& curve, const QColor& colour, float width,
                           float pointSize) = 0;
    virtual void endDrawing() = 0;

private:
    enum class Drag { None, Marker, Cursor, Pan, Handle };

    void touch();
    void updateScene();
    void adoptPlotWidth();

    void showPlot(const QSize& pixels);
    void drawPlot(const QSize& pixels);
    void drawGround(const QSize& pixels);
    void releasePlot();
    void drawGrid();
    void drawTraces();
    void drawOverlayLines(const QSize& pixels);
    void drawCursorValue();
    void drawTexts(const QSize& pixels);
    void scissor(const QRect& area) const;
    void addVertical(std::vector<VELIX::GraphVertex>& lines, double x, const QRect& area) const;
    void addHorizontal(std::vector<VELIX::GraphVertex>& lines, double y, const QRect& area) const;
    [[nodiscard]] double pixelOf(double logical) const;

    void pressLeft(const QPoint& point, Qt::KeyboardModifiers held);
    void pressOutside(const QPoint& point);
    void moveMarker(const QPoint& point);
    void placeCursor(const QPoint& point);
    void moveTrace(int from, int to);
    void pan(const QPoint& point);
    void finishDrag(const QPoint& point);
    void emitMarkers();
    void moveCursorBy(double pixelsX, double pixelsY);
    [[nodiscard]] double timeAt(const QPoint& point);
    /// The band of the selected trace; the whole plot in single display.
    [[nodiscard]] QRect selectedBand();

    VELIX::GraphModel mModel;
    VELIX::GraphLook mLook;
    VELIX::GraphPointer mPointer;
    VELIX::GraphScene mScene;
    /// Grid and traces, smooth: a cursor that moves costs a copy of them.
    Tessel::OpenGL::FrameCache mPlot{4};
    bool mPlotStale = true;   ///< the picture that mPlot keeps is out of date
    VELIX::GraphCurve mCurve; ///< kept for its memory
    std::vector<VELIX::GraphVertex> mLines;

    QTimer mRepaintTimer;
    QTimer mRecalcTimer;
    QTimer mCursorTimer;
    QElapsedTimer mSinceRepaint;
    std::uint64_t mPaintedRevision = 0;
    std::uint64_t mSceneRevision = 0;
    QSize mSceneSize;
    bool mSceneStale = true;
    unsigned int mPaintCount = 0;

    Drag mDrag = Drag::None;
    Qt::KeyboardModifiers mHeldKeys = Qt::NoModifier;
    bool mPanningAllowed = true;
    QPoint mPressPoint;
    bool mSecondMarker = false; ///< the marker that is dragged
    VELIX::GraphTimeRange mPressRange;
    int mWheelDelta = 0; ///< of touch pads, which send parts of a step
};
