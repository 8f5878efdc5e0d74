#include "views/graph/widget/WidgetGraphBase.h"

#include <QHelpEvent>
#include <QOpenGLContext>
#include <QToolTip>
#include <QWheelEvent>

namespace {

constexpr int kRepaintMs = 30;

QColor fromFractions(float red, float green, float blue)
{
    return QColor::fromRgbF(qBound(0.0, static_cast<double>(red), 1.0),
                            qBound(0.0, static_cast<double>(green), 1.0),
                            qBound(0.0, static_cast<double>(blue), 1.0));
}

} // namespace

WidgetGraphBase::WidgetGraphBase(std::unique_ptr<VELIX::GraphPen> pen, QWidget* parent)
    : QOpenGLWidget(parent), mPainter(mModel, mLook, mPointer, mScenes, std::move(pen))
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);

    using VELIX::GraphInput;
    connect(&mInput, &GraphInput::signalRepaint, this, qOverload<>(&QWidget::update));
    connect(&mInput, &GraphInput::signalCursor, this, &WidgetGraphBase::signalCursor);
    connect(&mInput, &GraphInput::signalMoveCursorFinished, this,
            &WidgetGraphBase::signalMoveCursorFinished);
    connect(&mInput, &GraphInput::signalMarker, this, &WidgetGraphBase::signalMarker);
    connect(&mInput, &GraphInput::signalManMode, this, &WidgetGraphBase::signalManMode);
    connect(&mInput, &GraphInput::signalMoveParameter, this, &WidgetGraphBase::signalMoveParameter);
    connect(&mInput, &GraphInput::signalRangeChanged, this, &WidgetGraphBase::signalRangeChanged);

    mRecalcTimer.setSingleShot(true);
    mCursorTimer.setSingleShot(true);
    connect(&mRepaintTimer, &QTimer::timeout, this, &WidgetGraphBase::slotTimeout);
    connect(&mRecalcTimer, &QTimer::timeout, this, &WidgetGraphBase::slotTimeoutRecalc);
    connect(&mCursorTimer, &QTimer::timeout, this, &WidgetGraphBase::slotTimeoutCursor);
    mSinceRepaint.start();
    mRepaintTimer.start(kRepaintMs);
}

WidgetGraphBase::~WidgetGraphBase()
{
    if (context() != nullptr) {
        disconnect(context(), nullptr, this, nullptr);
    }
    releaseContext();
}

void WidgetGraphBase::touch()
{
    mScenes.invalidate();
    update();
}

// --- traces

void WidgetGraphBase::setMaxParameters(unsigned int count)
{
    mModel.setMaxParameters(count);
    touch();
}

void WidgetGraphBase::setParameterName(unsigned int i, const std::string& name)
{
    mModel.setParameterName(i, name);
    touch();
}

void WidgetGraphBase::setParameterUnit(unsigned int i, const std::string& unit)
{
    mModel.setParameterUnit(i, unit);
    touch();
}

void WidgetGraphBase::setParameterColor(unsigned int i, float red, float green, float blue)
{
    mModel.setParameterColor(i, red, green, blue);
    touch();
}

void WidgetGraphBase::setPrecision(unsigned int i, int decimals)
{
    mModel.setPrecision(i, decimals);
    touch();
}

void WidgetGraphBase::setActive(unsigned int i, bool active)
{
    mModel.setActive(i, active);
    touch();
}

void WidgetGraphBase::activateSamples(unsigned int i, bool on)
{
    mModel.activateSamples(i, on);
    touch();
}

// --- feeding

void WidgetGraphBase::clear()
{
    mModel.clear();
    touch();
}

void WidgetGraphBase::reset()
{
    mModel.reset();
    mInput.reset();
    touch();
}

// --- cursor, markers, modes

void WidgetGraphBase::setCursorPosition(double x)
{
    mModel.setCursorPosition(x);
    update();
}

void WidgetGraphBase::setCursorMode(eCursorMode mode)
{
    mModel.setCursorMode(mode);
    update();
}

void WidgetGraphBase::setDisplayMode(eDisplayMode mode)
{
    mModel.setDisplayMode(mode);
    touch();
}

void WidgetGraphBase::setMarker(double marker1, double marker2)
{
    mModel.setMarker(marker1, marker2);
    mPointer.markersOn = true;
    update();
}

void WidgetGraphBase::addTopMarker(unsigned int i, double time)
{
    mModel.addTopMarker(i, time);
    update();
}

// --- look

void WidgetGraphBase::setBackColor(float red, float green, float blue)
{
    mLook.back = fromFractions(red, green, blue);
    touch();
}

void WidgetGraphBase::setGridColor(float red, float green, float blue)
{
    mLook.grid = fromFractions(red, green, blue);
    touch();
}

void WidgetGraphBase::setLabelColor(float red, float green, float blue)
{
    mLook.label = fromFractions(red, green, blue);
    touch();
}

void WidgetGraphBase::setLabelBackColor(float red, float green, float blue)
{
    mLook.labelBack = fromFractions(red, green, blue);
    touch();
}

void WidgetGraphBase::activateGrid(bool on)
{
    mLook.gridOn = on;
    touch();
}

void WidgetGraphBase::activateCursor(bool on)
{
    mLook.cursorOn = on;
    update();
}

void WidgetGraphBase::activateLegend(bool on)
{
    mLook.legendOn = on;
    touch();
}

// --- scales and ranges

void WidgetGraphBase::setAutoScaleY(bool on)
{
    mModel.changeScaling().setAutoScale(on);
    touch();
}

void WidgetGraphBase::setAutoScaleYSpread(double spread)
{
    mModel.changeScaling().setSpread(spread);
    touch();
}

void WidgetGraphBase::setYRangeOn(bool on)
{
    mModel.changeScaling().setRangeOn(on);
    touch();
}

void WidgetGraphBase::setYRange(double ymin, double ymax)
{
    mModel.changeScaling().setYmin(ymin);
    mModel.changeScaling().setYmax(ymax);
    touch();
}

void WidgetGraphBase::setYmin(float ymin)
{
    mModel.changeScaling().setYmin(static_cast<double>(ymin));
    touch();
}

void WidgetGraphBase::setYmax(float ymax)
{
    mModel.changeScaling().setYmax(static_cast<double>(ymax));
    touch();
}

void WidgetGraphBase::setXmin(float xmin)
{
    mModel.setXmin(static_cast<double>(xmin));
    touch();
}

void WidgetGraphBase::setXmax(float xmax)
{
    mModel.setXmax(static_cast<double>(xmax));
    touch();
}

void WidgetGraphBase::setVisibleRange(double xmin, double xmax)
{
    mModel.setRange({xmin, xmax});
    touch();
}

void WidgetGraphBase::setT0(float t0)
{
    mModel.setT0(static_cast<double>(t0));
    touch();
}

void WidgetGraphBase::setXrange(float width)
{
    mModel.setXrange(static_cast<double>(width));
    mRecalcTimer.start(VELIX::GraphRecalc::kIntervalMs);
    touch();
}

void WidgetGraphBase::zoomToMarker()
{
    mModel.zoomToMarker();
    mRecalcTimer.start(VELIX::GraphRecalc::kIntervalMs);
    touch();
}

void WidgetGraphBase::startRecalc()
{
    mModel.startRecalc();
    mRecalcTimer.start(VELIX::GraphRecalc::kIntervalMs);
}

// --- timers

void WidgetGraphBase::slotTimeout()
{
    if (!isVisible() || mModel.revision() == mPaintedRevision) {
        return;
    }
    constexpr double kMsPerSecond = 1000.0;
    if (mModel.repaintDue(static_cast<double>(mSinceRepaint.elapsed()) / kMsPerSecond)) {
        mSinceRepaint.restart();
        update();
    }
}

void WidgetGraphBase::slotTimeoutRecalc()
{
    if (mModel.stepRecalc()) {
        mRecalcTimer.start(VELIX::GraphRecalc::kIntervalMs);
    }
    touch();
}

void WidgetGraphBase::slotTimeoutCursor()
{
    mPointer.cursorActive = false;
    update();
}

// --- painting

const VELIX::GraphLayout& WidgetGraphBase::layoutOfParts()
{
    return mScenes.current().layout;
}

void WidgetGraphBase::initializeGL()
{
    // A widget that moves to another window gets a new context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &WidgetGraphBase::releaseContext);
}

void WidgetGraphBase::releaseContext()
{
    if (context() != nullptr) {
        makeCurrent();
        mPainter.release();
        doneCurrent();
    }
}

void WidgetGraphBase::resizeGL(int, int)
{
    adoptPlotWidth();
}

void WidgetGraphBase::paintGL()
{
    ++mPaintCount;
    adoptPlotWidth();
    const double ratio = devicePixelRatioF();
    const QSize pixels(qRound(width() * ratio), qRound(height() * ratio));
    mPainter.paint({pixels, ratio, defaultFramebufferObject()});
    mPaintedRevision = mModel.revision();
    mSinceRepaint.restart();
}

void WidgetGraphBase::adoptPlotWidth()
{
    // Frames are as fine as the frame buffer, which has more pixels than the widget on some
    // screens.
    const VELIX::GraphLayout& parts = layoutOfParts();
    const int width = qRound(parts.plot().width() * devicePixelRatioF());
    if (parts.empty() || width == mModel.plotWidth()) {
        return;
    }
    mModel.setPlotWidth(width);
    mModel.recalcFrameBuffer();
    startRecalc();
}

void WidgetGraphBase::changeEvent(QEvent* event)
{
    QOpenGLWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LanguageChange) {
        touch();
    }
}

// --- mouse and keys

void WidgetGraphBase::wheelEvent(QWheelEvent* event)
{
    event->setAccepted(mInput.turnWheel(*event));
}

void WidgetGraphBase::leaveEvent(QEvent* event)
{
    QOpenGLWidget::leaveEvent(event);
    mInput.leave();
}

void WidgetGraphBase::keyPressEvent(QKeyEvent* event)
{
    if (!mInput.pressKey(*event)) {
        QOpenGLWidget::keyPressEvent(event);
    }
}

void WidgetGraphBase::keyReleaseEvent(QKeyEvent* event)
{
    mInput.releaseKey(*event);
    QOpenGLWidget::keyReleaseEvent(event);
}

void WidgetGraphBase::focusInEvent(QFocusEvent* event)
{
    mInput.setFocused(true);
    QOpenGLWidget::focusInEvent(event); // updates
}

void WidgetGraphBase::focusOutEvent(QFocusEvent* event)
{
    mInput.setFocused(false);
    QOpenGLWidget::focusOutEvent(event);
}

bool WidgetGraphBase::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QOpenGLWidget::event(event);
    }
    if (!showToolTip(*static_cast<QHelpEvent*>(event))) {
        QToolTip::hideText();
        event->ignore();
    }
    return true;
}

bool WidgetGraphBase::showToolTip(const QHelpEvent& event)
{
    const VELIX::GraphScene& scene = mScenes.current();
    const int handle = scene.layout.handleAt(event.pos());
    const int row = scene.layout.legendEntryAt(event.pos());
    if (handle < 0 && row < 0) {
        return false;
    }
    const unsigned int trace = handle >= 0 ? scene.shown[static_cast<std::size_t>(handle)]
                                           : scene.listed[static_cast<std::size_t>(row)];
    const VELIX::GraphModel::ParStruct& parameter = mModel.parameter(trace);
    const QString text = handle >= 0         ? tr("%1: drag to another place")
                         : parameter.visible ? tr("%1: double-click to hide")
                                             : tr("%1: double-click to show");
    QToolTip::showText(event.globalPos(), text.arg(parameter.name), this);
    return true;
}
