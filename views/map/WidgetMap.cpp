#include "views/map/WidgetMap.h"

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/MapSettings.h"
#include "core/Property.h"
#include "platform/tessel/Timer.h"
#include "views/map/MapScene.h"
#include "views/map/MapTiles.h"
#include "views/map/model/MapContext.h"

#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QOpenGLContext>
#include <QShowEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace VELIX {

namespace {

constexpr int kPeriod = 20;       // ms
constexpr int kResizeDelay = 100; // ms
constexpr int kLeastSize = 100;

} // namespace

WidgetMap::WidgetMap(QWidget* parent, MapContext& context)
    : WidgetMap(parent, context, Property::instance(), DataHandler::instance().dataPath())
{}

WidgetMap::WidgetMap(QWidget* parent, MapContext& context, Property& settings,
                     const std::string& dataPath)
    : QOpenGLWidget(parent),
      mContext(&context),
      mTiles(std::make_unique<MapTiles>(settings, dataPath)),
      mCamera(context, mTiles->map()),
      mScene(std::make_unique<MapScene>(mCamera)),
      mInput(mCamera, mChanges, [this] { emit signalUpdateMode(); })
{
    setMouseTracking(true);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kLeastSize, kLeastSize);
    setAccessibleName(tr("Map"));
    mContext->shading = MapSettings::read(settings).shading;

    connect(&mTimer, &QTimer::timeout, this, &WidgetMap::slotTimeout);
    mTimer.start(kPeriod);
    mResizeTimer.setSingleShot(true);
    connect(&mResizeTimer, &QTimer::timeout, this, &WidgetMap::slotTimeoutResize);
}

WidgetMap::~WidgetMap()
{
    if (context() != nullptr) {
        disconnect(context(), nullptr, this, nullptr);
    }
    releaseGl();
    if (context() != nullptr) {
        makeCurrent();
    }
    mTiles.reset();
    mScene.reset();
    if (context() != nullptr) {
        doneCurrent();
    }
}

// --- the frame buffer

void WidgetMap::initializeGL()
{
    mTiles->setUp([this] { mChanges.setLoading(true); }, [this] { mChanges.mark(); });
    mCamera.setWindow(size(), devicePixelRatioF());
    loadForRatio(); // a new context has nothing yet
    // A widget that moves to another window gets a new context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &WidgetMap::releaseGl);
}

/// Not before the widget has a screen; another screen may have another ratio.
void WidgetMap::adoptWindow()
{
    const bool isOtherRatio = mCamera.ratio() != devicePixelRatioF();
    mCamera.setWindow(size(), devicePixelRatioF());
    if (isOtherRatio) {
        loadForRatio();
    }
    mCamera.apply();
}

void WidgetMap::loadForRatio()
{
    mScene->load();
    mTiles->loadFont(mCamera.ratio());
    mChanges.mark(MapChanges::Part::Lines); // their width is in pixels
}

void WidgetMap::releaseGl()
{
    if (context() == nullptr) {
        return;
    }
    makeCurrent();
    mTiles->map().releaseGl();
    mScene->release();
    doneCurrent();
}

void WidgetMap::resizeGL(int width, int height)
{
    Q_UNUSED(width)
    Q_UNUSED(height)
    adoptWindow();
    // Who has not moved the map since wants to see the whole path in the new window, too.
    if (mCamera.showsFit()) {
        mChanges.mark(MapChanges::Part::View);
    }
    mChanges.mark();
}

void WidgetMap::setViewPort()
{
    mScene->setViewPort();
}

void WidgetMap::setViewPortOrtho()
{
    mScene->setViewPortOrtho();
}

void WidgetMap::paintGL()
{
    ++mPaintCount;
    const double now = Tessel::Misc::Timer::getTime();
    prepareFrame();
    mChanges.beginFrame(now); // what changes from here on is for the next one
    mInput.applyKeys();
    if (mTiles->takeSettings(*mContext)) {
        emit signalUpdateMode();
    }
    if (mCamera.follow(mScene->aircraft())) {
        mChanges.mark();
    }
    mCamera.apply();
    setViewPort();
    MapScene::clear();
    mTiles->map().setLabelTop(static_cast<int>(std::lround(mToolsBottom * mCamera.ratio())));
    mTiles->render(*mContext);
    mScene->paint(mContext->dragging ? std::nullopt : mInput.mouse(), mTiles->notice());
    mChanges.setLoading(loadingTiles() != 0);
}

void WidgetMap::prepareFrame()
{
    adoptWindow();
    if (mChanges.take(MapChanges::Part::Record)) {
        redrawFlightPath();
    } else if (mChanges.take(MapChanges::Part::Lines)) {
        makeLines();
    }
    if (mChanges.take(MapChanges::Part::View)) {
        fitView();
    }
}

void WidgetMap::makeLines()
{
    mScene->makeLines();
    if (!mCamera.isFitted()) {
        mChanges.mark(MapChanges::Part::View);
    }
}

void WidgetMap::redrawFlightPath()
{
    makeLines();
    fitView();
    mChanges.takeAll();
}

void WidgetMap::fitView()
{
    if (!mScene->path().empty()) {
        mCamera.fit(mScene->path().extent());
    }
}

// --- what is shown

void WidgetMap::setRecordData(RecordData* record)
{
    mRecord = record;
    mCamera.forgetFit();
    mChanges.mark(MapChanges::Part::Record);
}

void WidgetMap::setFlightPath(const std::vector<FlightPathPoint>* path)
{
    mScene->setFlightPath(path);
    mChanges.mark(MapChanges::Part::Lines);
}

void WidgetMap::setColoring(MapColoring coloring)
{
    mScene->setColoring(std::move(coloring));
    mChanges.mark(MapChanges::Part::Lines);
}

void WidgetMap::setAcPosition(const FlightPathPoint& position)
{
    mScene->setAircraft(position);
    update();
}

const FlightPathPoint& WidgetMap::acPosition() const
{
    return mScene->aircraft();
}

void WidgetMap::setImperial(bool imperial)
{
    mScene->setImperial(imperial);
    mChanges.mark();
}

void WidgetMap::setToolsBottom(int pixels)
{
    if (pixels != mToolsBottom) {
        mToolsBottom = pixels;
        mChanges.mark();
    }
}

void WidgetMap::fitFlightPath()
{
    mChanges.mark(MapChanges::Part::View);
}

void WidgetMap::zoomCentered(double range)
{
    mCamera.zoom(range, mInput.mouse());
    mChanges.mark();
}

// --- measures

double WidgetMap::calcDistance(double lat1, double lon1, double lat2, double lon2)
{
    return CardContainer::calcDistance(lat1, lon1, lat2, lon2);
}

double WidgetMap::screenToCartesianSize(double pixels) const
{
    return mContext->verticalRange / mContext->windowWidth * pixels;
}

void WidgetMap::latLong2Window(double latitude, double longitude, double* x, double* y) const
{
    mTiles->map().latLong2Window(latitude, longitude, x, y);
}

int WidgetMap::loadingTiles() const
{
    return mTiles->map().nrLoadingTiles();
}

// --- timers

void WidgetMap::slotTimeout()
{
    const bool moving = mContext->dragging || mContext->panning || mContext->animating;
    if (isVisible() && mChanges.isDue(moving, Tessel::Misc::Timer::getTime())) {
        update();
    }
}

void WidgetMap::slotTimeoutResize()
{
    resize(geometry().width() + 2, geometry().height() + 1);
    updateGeometry(); // the layout puts it back
}

void WidgetMap::showEvent(QShowEvent* event)
{
    QOpenGLWidget::showEvent(event);
    if (!mResized) {
        mResized = true; // a widget that grew with every showing would leave its window
        mResizeTimer.start(kResizeDelay);
    }
    if (!event->spontaneous()) { // not with every change of desktop
        mTiles->retry();
    }
    mChanges.mark();
}

// --- mouse, gestures and keys

bool WidgetMap::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (MapInput::isShadingKey(*static_cast<QKeyEvent*>(event))) {
            event->accept(); // elsewhere the key saves the project
            return true;
        }
        break;
    case QEvent::NativeGesture:
        if (mInput.gesture(*static_cast<QNativeGestureEvent*>(event))) {
            return true;
        }
        break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        mInput.touch(*static_cast<QTouchEvent*>(event));
        event->accept();
        return true;
    default:
        break;
    }
    return QOpenGLWidget::event(event);
}

void WidgetMap::mousePressEvent(QMouseEvent* event)
{
    if (!mInput.press(*event)) {
        QOpenGLWidget::mousePressEvent(event);
    }
}

void WidgetMap::mouseMoveEvent(QMouseEvent* event)
{
    mInput.move(*event);
}

void WidgetMap::mouseReleaseEvent(QMouseEvent* event)
{
    mInput.release(*event);
}

void WidgetMap::mouseDoubleClickEvent(QMouseEvent* event)
{
    mInput.doubleClick(*event);
}

void WidgetMap::leaveEvent(QEvent* event)
{
    QOpenGLWidget::leaveEvent(event);
    mInput.leave();
}

void WidgetMap::wheelEvent(QWheelEvent* event)
{
    mInput.wheel(*event);
    event->accept();
}

void WidgetMap::keyPressEvent(QKeyEvent* event)
{
    if (!mInput.pressKey(*event)) {
        QOpenGLWidget::keyPressEvent(event);
    }
}

void WidgetMap::keyReleaseEvent(QKeyEvent* event)
{
    if (!mInput.releaseKey(*event)) {
        QOpenGLWidget::keyReleaseEvent(event);
    }
}

void WidgetMap::focusOutEvent(QFocusEvent* event)
{
    QOpenGLWidget::focusOutEvent(event);
    mInput.loseFocus();
}

} // namespace VELIX
