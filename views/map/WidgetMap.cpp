#include "views/map/WidgetMap.h"
#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/Property.h"
#include "core/Revision.h"
#include "platform/openstreetmap/OpenStreetMap.h"
#include "platform/tessel/Timer.h"
#include "views/map/MapSymbol.h"
#include "views/map/model/MapContext.h"
#include "views/map/model/MapNavigation.h"

#include <QFile>
#include <QOpenGLContext>
#include <QShowEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace VELIX {

namespace {

constexpr int kPeriod = 20;       // ms
constexpr int kResizeDelay = 100; // ms
constexpr double kLongest = 1.0;  // s without a repaint
/// The same while tiles come: with a picture for each of them most of the time would go into
/// pictures.
constexpr double kLongestLoading = 0.04;
constexpr int kLeastSize = 100;
constexpr int kLabelPixels = 11;
constexpr double kPathWidth = 3.0;
constexpr double kSymbolSize = 40.0;

} // namespace

WidgetMap::WidgetMap(QWidget* parent, MapContext& context)
    : WidgetMap(parent, context, Property::instance(), DataHandler::instance().dataPath())
{}

WidgetMap::WidgetMap(QWidget* parent, MapContext& context, Property& settings,
                     const std::string& dataPath)
    : QOpenGLWidget(parent),
      mContext(&context),
      mSettings(settings),
      mDataPath(dataPath),
      mMap(std::make_unique<OpenStreet::OpenStreetMap>())
{
    setMouseTracking(true);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(kLeastSize, kLeastSize);
    setAccessibleName(tr("Map"));
    mContext->shading = MapSettings::read(mSettings).shading;

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
    mMap.reset();
    mLines.clear();
    if (context() != nullptr) {
        doneCurrent();
    }
}

/// Not before the first picture: what is never shown needs neither folders nor a network.
void WidgetMap::setUpMap()
{
    if (mMapSetUp) {
        return;
    }
    mMapSetUp = true;
    mMap->setUserAgent(Revision::getRevisionString().c_str());
    mTakenSettings = MapSettings::read(mSettings);
    mMap->setTileCacheLimit(mTakenSettings.cacheLimit);
    if (!mDataPath.empty()) {
        mMap->setTileDirectory((mDataPath + "/tiles/").c_str());
        mMap->setTerrainPath((mDataPath + "/terrain/").c_str());
    }
    mMap->setProjection(OpenStreet::WebMercator);
    mMap->setTileServer(mTakenSettings.tileServer.c_str());
    static_cast<void>(mMap->setCoastLines(":/map/coast.bin")); // without them there is the grid
    mMap->setArrivedCallback([this] { mLoading = true; });
    mMap->setFailureCallback([this](const char* url, const char* reason) {
        mNotice.fail(url, reason);
        mDirty = true;
    });
}

/// Not before the widget has a screen; another screen may have another ratio.
void WidgetMap::adoptRatio()
{
    if (mRatio == devicePixelRatioF()) {
        return;
    }
    mRatio = devicePixelRatioF();
    mOverlay.release();
    mOverlay.load(mRatio);
    mSymbol.setImage(mapAircraft(static_cast<int>(std::lround(kSymbolSize * mRatio))));
    QFile font(QStringLiteral(":monofont.ttf"));
    if (font.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = font.readAll();
        mMap->setLabelFont(bytes.constData(), static_cast<std::size_t>(bytes.size()),
                           static_cast<int>(std::lround(kLabelPixels * mRatio)));
    }
    mStaleLines = true; // their width is in pixels
}

void WidgetMap::initializeGL()
{
    setUpMap();
    mRatio = 0.0; // a new context has nothing yet
    adoptRatio();
    // A widget that moves to another window gets a new context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &WidgetMap::releaseGl);
}

void WidgetMap::releaseGl()
{
    if (context() == nullptr) {
        return;
    }
    makeCurrent();
    mMap->releaseGl();
    mLines.release();
    mSymbol.release();
    mOverlay.release();
    mGl.release();
    doneCurrent();
}

void WidgetMap::showEvent(QShowEvent* event)
{
    QOpenGLWidget::showEvent(event);
    if (!mResized) {
        mResized = true; // a widget that grew with every showing would leave its window
        mResizeTimer.start(kResizeDelay);
    }
    mRetryTiles = mMapSetUp && !event->spontaneous(); // not with every change of desktop
    mDirty = true;
}

// --- what is shown

void WidgetMap::setRecordData(RecordData* record)
{
    mRecord = record;
    mRedrawPath = true;
    mFitted = false;
    mDirty = true;
}

void WidgetMap::setFlightPath(const std::vector<FlightPathPoint>* path)
{
    mFlightPath = path;
    mPath = {}; // of points that may be gone
    mStaleLines = true;
    mDirty = true;
}

void WidgetMap::setColoring(MapColoring coloring)
{
    mColoring = std::move(coloring);
    mStaleLines = true;
    mDirty = true;
}

void WidgetMap::setAcPosition(const FlightPathPoint& position)
{
    mAircraft = position;
    update();
}

void WidgetMap::setImperial(bool imperial)
{
    mImperial = imperial;
    mDirty = true;
}

void WidgetMap::setToolsBottom(int pixels)
{
    mDirty = mDirty || pixels != mToolsBottom;
    mToolsBottom = pixels;
}

void WidgetMap::fitFlightPath()
{
    mRefit = true;
    mDirty = true;
}

void WidgetMap::makeLines()
{
    mStaleLines = false;
    if (mPath.empty() && mFlightPath != nullptr) {
        mPath = MapPath(*mFlightPath);
    }
    mLines.build(mPath, mColoring.colors, kPathWidth * mRatio);
    mRefit = mRefit || !mFitted;
}

void WidgetMap::redrawFlightPath()
{
    mRedrawPath = false;
    makeLines();
    fitView();
}

void WidgetMap::fitView()
{
    mRefit = false;
    if (mPath.empty()) {
        return;
    }
    const double before = mContext->visibleRange;
    const QSize size = pixels();
    MapNavigation::fit(*mContext, mPath.extent(),
                       static_cast<double>(size.width()) / std::max(size.height(), 1));
    mFollower.keepRange();
    if (mContext->centreAircraft) {
        mFollower.setRange(mContext->visibleRange); // the view glides
        mContext->visibleRange = before;
    }
    mFitted = true;
    mFit = *mContext;
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
    mMap->latLong2Window(latitude, longitude, x, y);
}

int WidgetMap::loadingTiles() const
{
    return mMap->nrLoadingTiles();
}

QSize WidgetMap::pixels() const
{
    return {static_cast<int>(std::lround(width() * mRatio)),
            static_cast<int>(std::lround(height() * mRatio))};
}

/// The context's centre and range with this window, to all that computes with them.
void WidgetMap::updateWindow()
{
    const QSize size = pixels();
    MapNavigation::setRange(*mContext, mContext->visibleRange, size.width(), size.height());
    mMap->setWindowSize(size.width(), size.height());
    mMap->setLabelTop(static_cast<int>(std::lround(mToolsBottom * mRatio)));
    mMap->setVisibleRange(mContext->visibleRange, mContext->verticalRange);
    mMap->setPosition(mContext->centreLatitude, mContext->centreLongitude, 0.0);
}

// --- timers

void WidgetMap::slotTimeout()
{
    if (!isVisible()) {
        return;
    }
    const bool moving = mContext->dragging || mContext->panning || mContext->animating;
    // A clock that was set back must not stop the map.
    const double still = std::abs(Tessel::Misc::Timer::getTime() - mLastRepaint);
    if (mDirty || moving || still > (mLoading ? kLongestLoading : kLongest)) {
        update();
    }
}

void WidgetMap::slotTimeoutResize()
{
    resize(geometry().width() + 2, geometry().height() + 1);
    updateGeometry(); // the layout puts it back
}

// --- window and settings

void WidgetMap::resizeGL(int width, int height)
{
    Q_UNUSED(width)
    Q_UNUSED(height)
    adoptRatio();
    updateWindow();
    // Who has not moved the map since wants to see the whole path in the new window, too.
    mRefit = mRefit || showsFit();
    mDirty = true;
}

bool WidgetMap::showsFit() const
{
    return mFitted && mContext->visibleRange == mFit.visibleRange &&
           mContext->centreLatitude == mFit.centreLatitude &&
           mContext->centreLongitude == mFit.centreLongitude;
}

void WidgetMap::takeSettings()
{
    const MapSettings settings = MapSettings::read(mSettings);
    mMap->setShadingContrast(settings.contrast);
    mMap->setShadingBrightness(settings.brightness);
    mMap->setShadingFactor(settings.factor);
    if (settings.tileServer != mTakenSettings.tileServer) {
        mNotice.reset();
        mMap->setTileServer(settings.tileServer.c_str());
    }
    if (mRetryTiles) {
        mRetryTiles = false;
        mMap->retry();
    }
    if (settings.shading != mTakenSettings.shading) {
        mContext->shading = settings.shading; // until then it is as the key left it
        emit signalUpdateMode();
    }
    if (settings.cacheLimit != mTakenSettings.cacheLimit) {
        mMap->setTileCacheLimit(settings.cacheLimit);
    }
    mTakenSettings = settings;
}

} // namespace VELIX
