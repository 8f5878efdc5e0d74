// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "platform/openstreetmap/OpenStreetMap.h"
#include "platform/tessel/Timer.h"
#include "views/map/WidgetMap.h"
#include "views/map/model/MapContext.h"
#include "views/map/model/MapTrack.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr double kScaleLength = 110.0;
constexpr double kHoverPixels = 12.0; // from the path
constexpr double kRadians = 0.017453292519943295;
constexpr double kWorld = 40075016.685578488; // m of the map around the globe
constexpr double kPlain = 1.0;                // brightness of the tiles

} // namespace

double WidgetMap::mapMetresPerPixel() const
{
    return mContext->metresPerPixel / std::cos(mContext->centreLatitude * kRadians);
}

void WidgetMap::setViewPort()
{
    glViewport(0, 0, pixels().width(), pixels().height());
}

void WidgetMap::setViewPortOrtho()
{
    mGl.matrices().reset();
    // A window without an area has no picture.
    static_cast<void>(mGl.matrices().setOrtho(0.0, pixels().width(), pixels().height(), 0.0));
}

void WidgetMap::paintGL()
{
    ++mPaintCount;
    mDirty = false;
    mLastRepaint = Tessel::Misc::Timer::getTime();
    adoptRatio();
    updateWindow();
    if (mRedrawPath) {
        redrawFlightPath();
    } else if (mStaleLines) {
        makeLines();
    }
    if (mRefit) {
        fitView();
    }
    applyKeys();
    takeSettings();
    followAircraft();
    updateWindow();
    if (mMouse) {
        mMap->window2LatLong(mMouse->x(), mMouse->y(), &mMouseLatitude, &mMouseLongitude);
    }
    drawMap();
    drawPath();
    drawAircraft();
    drawOverlay();
    mLoading = mMap->nrLoadingTiles() != 0;
}

void WidgetMap::followAircraft()
{
    if (mContext->centreAircraft && !MapTrack::isEmpty(mAircraft) &&
        mFollower.step(*mContext, mAircraft.latitude, mAircraft.longitude)) {
        mDirty = true;
    }
}

void WidgetMap::drawMap()
{
    setViewPort();
    glDisable(GL_SCISSOR_TEST);
    glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    mMap->setBrightness(kPlain);
    mMap->setLightDirection(-1.0, 1.0, 1.0); // from the north-west, as on paper maps
    mMap->setShading(mContext->shading);
    mMap->setMapType(OpenStreet::Tiles);
    mMap->render();
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    setViewPortOrtho();
}

void WidgetMap::drawPath()
{
    if (mPath.empty()) {
        return;
    }
    double x = 0.0;
    double y = 0.0;
    mMap->latLong2Window(mPath.middleLatitude(), mPath.middleLongitude(), &x, &y);
    const double scale = mapMetresPerPixel();
    const double world = kWorld / scale;
    const double half = mPath.halfWidth() / scale;
    // A window may show the globe more than once, and a path may lie across its edge.
    const double first = std::ceil((-half - x) / world);
    for (double copy = first; x + copy * world - half < pixels().width(); copy += 1.0) {
        mLines.render(mGl, mPath, pixels(), x + copy * world, y, scale);
    }
}

void WidgetMap::drawAircraft()
{
    if (MapTrack::isEmpty(mAircraft)) {
        return;
    }
    double x = 0.0;
    double y = 0.0;
    mMap->latLong2Window(mAircraft.latitude, mAircraft.longitude, &x, &y);
    const double side = mSymbol.width();
    mGl.matrices().push();
    mGl.matrices().translate(x, y);
    mGl.matrices().rotate(mAircraft.course); // y runs downwards, and so clockwise
    mSymbol.render(mGl, -side / 2.0, -side / 2.0, side, side);
    mGl.matrices().pop();
}

MapOverlay::Content WidgetMap::overlayContent()
{
    MapOverlay::Content content;
    content.scale = MapTexts::scaleBar(kScaleLength * mRatio * mContext->metresPerPixel, mImperial);
    content.scalePixels = content.scale.metres / mContext->metresPerPixel;
    content.legend = mPath.empty() || mColoring.colors.empty() ? nullptr : &mColoring;
    if (!MapTrack::isEmpty(mAircraft)) {
        content.aircraft.emplace();
        mMap->latLong2Window(mAircraft.latitude, mAircraft.longitude, &content.aircraft->rx(),
                             &content.aircraft->ry());
    }
    if (mNotice.hasReason()) {
        content.notice = mNotice.update(mMap->hasTiles(), mMap->nrLoadingTiles() != 0);
    }
    if (mMouse && !mContext->dragging) {
        addReadout(content);
    }
    return content;
}

void WidgetMap::addReadout(MapOverlay::Content& content) const
{
    content.mouse = *mMouse;
    content.readout.append(MapTexts::position(mMouseLatitude, mMouseLongitude));
    const auto place =
        mPath.nearest(mMouseLatitude, mMouseLongitude, kHoverPixels * mRatio * mapMetresPerPixel());
    if (!place || mFlightPath == nullptr) {
        return;
    }
    const std::size_t next = std::min(place->index + 1, mFlightPath->size() - 1);
    const FlightPathPoint there =
        MapTrack::between((*mFlightPath)[place->index], (*mFlightPath)[next], place->fraction);
    content.readout.append(MapTexts::moment(there, mImperial));
    double x = 0.0;
    double y = 0.0;
    mMap->latLong2Window(there.latitude, there.longitude, &x, &y);
    content.mark = QPointF(x, y);
}

void WidgetMap::drawOverlay()
{
    mOverlay.paint(mGl, pixels(), overlayContent());
}

} // namespace VELIX
