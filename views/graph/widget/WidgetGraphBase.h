#pragma once

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphInput.h"
#include "views/graph/widget/GraphLook.h"
#include "views/graph/widget/GraphPainter.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphSceneCache.h"

#include <QElapsedTimer>
#include <QOpenGLWidget>
#include <QTimer>

#include <memory>
#include <string>

class QHelpEvent;

/// The graph of any number of traces over time, with grid, legend, cursor, two markers and
/// readouts. The two graph widgets give it different pens.
///
/// Times are seconds on the record's time axis. Feeding: setTime(t), then putValue() for each trace
/// with a sample at that time; what is shown follows at the pace of the repaint timer.
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

    WidgetGraphBase(std::unique_ptr<VELIX::GraphPen> pen, QWidget* parent);
    ~WidgetGraphBase() override;

    /// State, samples and rules, for those who only read them.
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

    // --- feeding; the repaint timer sees what changed, since an update for each of a million
    // samples would cost more than the samples

    void setTime(double t) { mModel.setTime(t); }
    void putValue(unsigned int i, double value, bool hold) { mModel.putValue(i, value, hold); }
    void clear();
    void reset();

    // --- values

    bool getValue(unsigned int i, double t, double& v) const { return mModel.getValue(i, t, v); }
    bool getParameterRangeX(unsigned int i, double& first, double& last) const
    {
        return mModel.getParameterRangeX(i, first, last);
    }
    bool getParameterRangeY(unsigned int i, double& low, double& high) const
    {
        return mModel.getParameterRangeY(i, low, high);
    }
    /// Mean of the selected trace over the visible range.
    [[nodiscard]] double getCurrentAverageValue() const { return mModel.getCurrentAverageValue(); }
    /// Whether the current time is visible.
    [[nodiscard]] bool inRange() const { return mModel.inRange(); }

    // --- cursor, markers, modes

    void setCursorPosition(double x);
    void setCursorMode(eCursorMode mode);
    void setGraphMode(eGraphMode mode) { mModel.setGraphMode(mode); }
    void setDisplayMode(eDisplayMode mode);
    void setOfflineMode(bool on) { mModel.setOfflineMode(on); }
    void setMarker(double marker1, double marker2);
    /// A triangle at the upper edge of the plot, labelled with the trace's name and the time.
    void addTopMarker(unsigned int i, double time);
    /// Whether dragging with the right button moves the range; at first it does.
    void setPanning(bool allowed) { mInput.setPanning(allowed); }

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
    /// Frames painted so far.
    [[nodiscard]] unsigned int paintCount() const { return mPaintCount; }

signals:
    /// The user moved the cursor: its time, and its value on the selected trace's scale.
    void signalCursor(float time, double value);
    void signalMoveCursorFinished();
    void signalMarker(float marker1, float marker2);
    /// The user took over the time range, leaving the automatic mode.
    void signalManMode();
    /// A trace was dragged from one position of the display to another, counted from the top.
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

    void mousePressEvent(QMouseEvent* event) override { mInput.press(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { mInput.move(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { mInput.release(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mInput.doubleClick(*event); }
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void touch();
    void adoptPlotWidth();
    void releaseContext();
    [[nodiscard]] bool showToolTip(const QHelpEvent& event);

    VELIX::GraphModel mModel;
    VELIX::GraphLook mLook;
    VELIX::GraphPointer mPointer;
    VELIX::GraphSceneCache mScenes{*this, mModel, mLook};
    VELIX::GraphPainter mPainter;

    QTimer mRepaintTimer;
    QTimer mRecalcTimer;
    QTimer mCursorTimer;
    VELIX::GraphInput mInput{mModel, mPointer, mScenes, {mRecalcTimer, mCursorTimer}};
    QElapsedTimer mSinceRepaint;
    std::uint64_t mPaintedRevision = 0;
    unsigned int mPaintCount = 0;
};
