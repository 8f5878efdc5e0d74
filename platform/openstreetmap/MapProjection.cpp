#include "platform/openstreetmap/MapProjection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace OpenStreet {

namespace {

/// Larger than Tessel::Geodetic::kMercatorRadius by one unit in the last place, which is kept so
/// that the map stays the same to the last bit.
constexpr double kRadius = kMercatorHalf / std::numbers::pi;
using Tessel::Geodetic::kMercatorLatitudeLimit;
using Tessel::Geodetic::kRadiansPerDegree;

} // namespace

MercatorPoint toMercator(const GeoPoint& place)
{
    const double latitude =
        std::clamp(place.latitude, -kMercatorLatitudeLimit, kMercatorLatitudeLimit);
    return {kRadius * place.longitude * kRadiansPerDegree,
            kRadius * std::asinh(std::tan(latitude * kRadiansPerDegree))};
}

GeoPoint fromMercator(const MercatorPoint& place)
{
    return {std::atan(std::sinh(place.y / kRadius)) / kRadiansPerDegree,
            place.x / kRadius / kRadiansPerDegree};
}

double normalizedLongitude(double degrees)
{
    const double turned = std::remainder(degrees, 360.0);
    return turned >= 180.0 ? turned - 360.0 : turned;
}

void MapProjection::setCentre(const GeoPoint& centre)
{
    if (!std::isfinite(centre.latitude) || !std::isfinite(centre.longitude)) {
        return;
    }
    mCentre = {std::clamp(centre.latitude, -kMercatorLatitudeLimit, kMercatorLatitudeLimit),
               normalizedLongitude(centre.longitude)};
    update();
}

void MapProjection::setVisibleRange(double width, double height)
{
    if (width > 0.0 && height > 0.0 && std::isfinite(width) && std::isfinite(height)) {
        mRangeWidth = width;
        mRangeHeight = height;
        update();
    }
}

void MapProjection::setWindowSize(int width, int height)
{
    if (width > 0 && height > 0) {
        mWindowWidth = width;
        mWindowHeight = height;
        update();
    }
}

void MapProjection::update()
{
    const double stretch = std::cos(mCentre.latitude * kRadiansPerDegree);
    mMercatorCentre = toMercator(mCentre);
    mPerPixelX = mRangeWidth / mWindowWidth / stretch;
    mPerPixelY = mRangeHeight / mWindowHeight / stretch;
}

WindowPoint MapProjection::toWindow(const GeoPoint& place) const
{
    MercatorPoint mercator = toMercator(place);
    mercator.x =
        mMercatorCentre.x + std::remainder(mercator.x - mMercatorCentre.x, 2.0 * kMercatorHalf);
    return mercatorToWindow(mercator);
}

GeoPoint MapProjection::toGeo(const WindowPoint& place) const
{
    MercatorPoint mercator = windowToMercator(place);
    mercator.y = std::clamp(mercator.y, -kMercatorHalf, kMercatorHalf);
    GeoPoint result = fromMercator(mercator);
    result.longitude = normalizedLongitude(result.longitude);
    return result;
}

WindowPoint MapProjection::mercatorToWindow(const MercatorPoint& place) const
{
    return {mWindowWidth / 2.0 + (place.x - mMercatorCentre.x) / mPerPixelX,
            mWindowHeight / 2.0 - (place.y - mMercatorCentre.y) / mPerPixelY};
}

MercatorPoint MapProjection::windowToMercator(const WindowPoint& place) const
{
    return {mMercatorCentre.x + (place.x - mWindowWidth / 2.0) * mPerPixelX,
            mMercatorCentre.y - (place.y - mWindowHeight / 2.0) * mPerPixelY};
}

} // namespace OpenStreet
