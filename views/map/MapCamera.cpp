#include "views/map/MapCamera.h"

#include "card/FlightPathPoint.h"
#include "platform/openstreetmap/OpenStreetMap.h"
#include "platform/tessel/Geodetic.h"
#include "views/map/model/MapNavigation.h"
#include "views/map/model/MapTrack.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr double kSamePlace = 1e-10; // degrees
constexpr int kMostShifts = 8;

} // namespace

void MapCamera::setWindow(const QSize& logical, double ratio)
{
    mRatio = ratio;
    mPixels = {static_cast<int>(std::lround(logical.width() * ratio)),
               static_cast<int>(std::lround(logical.height() * ratio))};
}

void MapCamera::apply()
{
    MapNavigation::setRange(mContext, mContext.visibleRange, mPixels.width(), mPixels.height());
    mMap.setWindowSize(mPixels.width(), mPixels.height());
    mMap.setVisibleRange(mContext.visibleRange, mContext.verticalRange);
    mMap.setPosition(mContext.centreLatitude, mContext.centreLongitude, 0.0);
}

MapCamera::Place MapCamera::placeAt(const QPointF& pixel) const
{
    Place place;
    mMap.window2LatLong(pixel.x(), pixel.y(), &place.latitude, &place.longitude);
    return place;
}

QPointF MapCamera::pixelOf(const Place& place) const
{
    QPointF pixel;
    mMap.latLong2Window(place.latitude, place.longitude, &pixel.rx(), &pixel.ry());
    return pixel;
}

double MapCamera::mapMetresPerPixel() const
{
    return mContext.metresPerPixel /
           std::cos(mContext.centreLatitude * Tessel::Geodetic::kRadiansPerDegree);
}

/// More than one shift, since the map's scale depends on the latitude of its centre.
void MapCamera::keepUnder(const Place& place, const QPointF& pixel)
{
    for (int i = 0; i < kMostShifts; ++i) {
        const Place there = placeAt(pixel);
        const double north = place.latitude - there.latitude;
        const double east = std::remainder(place.longitude - there.longitude, 360.0);
        if (std::abs(north) < kSamePlace && std::abs(east) < kSamePlace) {
            break;
        }
        MapNavigation::setCentre(mContext, mContext.centreLatitude + north,
                                 mContext.centreLongitude + east);
        apply();
    }
}

void MapCamera::zoom(double range, const std::optional<QPointF>& mouse)
{
    apply();
    const QPointF middle(mPixels.width() / 2.0, mPixels.height() / 2.0);
    // In the middle of the map an aircraft that is followed stays where it is.
    const QPointF pixel = mContext.centreAircraft ? middle : mouse.value_or(middle);
    const Place place = placeAt(pixel);
    mContext.visibleRange = MapNavigation::clampedRange(range);
    mFollower.keepRange();
    apply();
    keepUnder(place, pixel);
}

void MapCamera::setRange(double range)
{
    mContext.visibleRange = MapNavigation::clampedRange(range);
    apply();
}

void MapCamera::moveByKeys(int zoom, int north, int east)
{
    if (zoom != 0) {
        mContext.visibleRange = MapNavigation::keyZoomed(mContext.visibleRange, zoom);
        mFollower.keepRange();
    }
    if (north != 0 || east != 0) {
        MapNavigation::keyPan(mContext, north, east);
    }
}

void MapCamera::fit(const MapExtent& extent)
{
    const double before = mContext.visibleRange;
    MapNavigation::fit(mContext, extent,
                       static_cast<double>(mPixels.width()) / std::max(mPixels.height(), 1));
    mFollower.keepRange();
    if (mContext.centreAircraft) {
        mFollower.setRange(mContext.visibleRange); // the view glides
        mContext.visibleRange = before;
    }
    mFit = mContext;
}

bool MapCamera::showsFit() const
{
    return mFit && mContext.visibleRange == mFit->visibleRange &&
           mContext.centreLatitude == mFit->centreLatitude &&
           mContext.centreLongitude == mFit->centreLongitude;
}

bool MapCamera::follow(const FlightPathPoint& aircraft)
{
    return mContext.centreAircraft && !MapTrack::isEmpty(aircraft) &&
           mFollower.step(mContext, aircraft.latitude, aircraft.longitude);
}

} // namespace VELIX
