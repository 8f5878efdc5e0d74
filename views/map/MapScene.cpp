// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "views/map/MapScene.h"

#include "platform/tessel/Geodetic.h"
#include "views/map/MapCamera.h"
#include "views/map/MapSymbol.h"
#include "views/map/model/MapTrack.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace VELIX {

namespace {

constexpr double kPathWidth = 3.0;
constexpr double kSymbolSize = 40.0;
constexpr double kScaleLength = 110.0;
constexpr double kHoverPixels = 12.0; // from the path
/// Metres of the map around the globe.
constexpr double kWorld = 2.0 * Tessel::Geodetic::kMercatorHalf;

} // namespace

void MapScene::setFlightPath(const std::vector<FlightPathPoint>* path)
{
    mFlightPath = path;
    mPath = {}; // of points that may be gone
}

void MapScene::setColoring(MapColoring coloring)
{
    mColoring = std::move(coloring);
}

void MapScene::load()
{
    mOverlay.release();
    mOverlay.load(mCamera.ratio());
    mSymbol.setImage(mapAircraft(static_cast<int>(std::lround(kSymbolSize * mCamera.ratio()))));
}

void MapScene::makeLines()
{
    if (mPath.empty() && mFlightPath != nullptr) {
        mPath = MapPath(*mFlightPath);
    }
    mLines.build(mPath, mColoring.colors, kPathWidth * mCamera.ratio());
}

void MapScene::release()
{
    mLines.release();
    mSymbol.release();
    mOverlay.release();
    mGl.release();
}

void MapScene::setViewPort()
{
    glViewport(0, 0, mCamera.pixels().width(), mCamera.pixels().height());
}

void MapScene::setViewPortOrtho()
{
    mGl.matrices().reset();
    // In a window without an area there is nothing to draw.
    static_cast<void>(
        mGl.matrices().setOrtho(0.0, mCamera.pixels().width(), mCamera.pixels().height(), 0.0));
}

void MapScene::clear()
{
    glDisable(GL_SCISSOR_TEST);
    glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void MapScene::paint(const std::optional<QPointF>& mouse, const QString& notice)
{
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    setViewPortOrtho();
    drawPath();
    drawAircraft();
    MapOverlay::Content shown = content();
    shown.notice = notice;
    if (mouse) {
        addReadout(shown, *mouse);
    }
    mOverlay.paint(mGl, mCamera.pixels(), shown);
}

void MapScene::drawPath()
{
    if (mPath.empty()) {
        return;
    }
    const QPointF middle = mCamera.pixelOf({mPath.middleLatitude(), mPath.middleLongitude()});
    const double scale = mCamera.mapMetresPerPixel();
    const double world = kWorld / scale;
    const double half = mPath.halfWidth() / scale;
    const QSize& window = mCamera.pixels();
    // A window may show the globe more than once, and a path may cross its edge.
    const double first = std::ceil((-half - middle.x()) / world);
    for (double copy = first; middle.x() + copy * world - half < window.width(); copy += 1.0) {
        mLines.render(mGl, mPath, window, middle.x() + copy * world, middle.y(), scale);
    }
}

void MapScene::drawAircraft()
{
    if (MapTrack::isEmpty(mAircraft)) {
        return;
    }
    const QPointF at = mCamera.pixelOf({mAircraft.latitude, mAircraft.longitude});
    const double side = mSymbol.width();
    mGl.matrices().push();
    mGl.matrices().translate(at.x(), at.y());
    mGl.matrices().rotate(mAircraft.course); // y runs downwards, and so clockwise
    mSymbol.render(mGl, -side / 2.0, -side / 2.0, side, side);
    mGl.matrices().pop();
}

MapOverlay::Content MapScene::content() const
{
    const double metresPerPixel = mCamera.context().metresPerPixel;
    MapOverlay::Content content;
    content.scale = MapTexts::scaleBar(kScaleLength * mCamera.ratio() * metresPerPixel, mImperial);
    content.scalePixels = content.scale.metres / metresPerPixel;
    content.legend = mPath.empty() || mColoring.colors.empty() ? nullptr : &mColoring;
    if (!MapTrack::isEmpty(mAircraft)) {
        content.aircraft = mCamera.pixelOf({mAircraft.latitude, mAircraft.longitude});
    }
    return content;
}

void MapScene::addReadout(MapOverlay::Content& content, const QPointF& mouse) const
{
    const MapCamera::Place at = mCamera.placeAt(mouse);
    content.mouse = mouse;
    content.readout.append(MapTexts::position(at.latitude, at.longitude));
    const auto nearest = mPath.nearest(
        at.latitude, at.longitude, kHoverPixels * mCamera.ratio() * mCamera.mapMetresPerPixel());
    if (!nearest || mFlightPath == nullptr) {
        return;
    }
    const std::size_t next = std::min(nearest->index + 1, mFlightPath->size() - 1);
    const FlightPathPoint there =
        MapTrack::between((*mFlightPath)[nearest->index], (*mFlightPath)[next], nearest->fraction);
    content.readout.append(MapTexts::moment(there, mImperial));
    content.mark = mCamera.pixelOf({there.latitude, there.longitude});
}

} // namespace VELIX
