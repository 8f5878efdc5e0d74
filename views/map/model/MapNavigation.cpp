#include "views/map/model/MapNavigation.h"

#include "platform/tessel/Geodetic.h"
#include "views/map/model/MapContext.h"

#include <algorithm>
#include <cmath>

namespace VELIX::MapNavigation {

namespace {

using Tessel::Geodetic::kMetresPerDegree;
using Tessel::Geodetic::kRadiansPerDegree;
using Tessel::Geodetic::mercatorLatitude;

constexpr double kKeyZoom = 1.03;
constexpr double kKeyPan = 0.015; // of the range
constexpr double kWheelZoom = 1.1;
constexpr double kMargin = 1.2;
/// For a unit that never left its stand the stand should be seen, not the noise of its positions.
constexpr double kLeastFit = 500.0; // m
/// Beyond it the map has no more to show, and a degree of longitude no length.
constexpr double kLatitudeLimit = 85.0;

double northing(double latitude)
{
    return Tessel::Geodetic::latLong2Cartesian({latitude, 0.0, 0.0}, {}).y;
}

} // namespace

double clampedRange(double range)
{
    return std::isnan(range) ? kLargestRange : std::clamp(range, kLeastRange, kLargestRange);
}

double keyZoomed(double range, int steps)
{
    return clampedRange(range * std::pow(kKeyZoom, -steps));
}

double wheelZoomed(double range, int angleDelta)
{
    return clampedRange(angleDelta >= 1 ? range / kWheelZoom : range * kWheelZoom);
}

void setRange(MapContext& context, double range, int windowWidth, int windowHeight)
{
    const double width = std::max(windowWidth, 1);
    context.visibleRange = clampedRange(range);
    context.verticalRange = context.visibleRange * std::max(windowHeight, 1) / width;
    context.windowWidth = width;
    context.metresPerPixel = context.visibleRange / width;
    context.halfDiagonal = std::hypot(context.visibleRange, context.verticalRange) / 2.0;
}

void setCentre(MapContext& context, double latitude, double longitude)
{
    if (std::isfinite(latitude) && std::isfinite(longitude)) {
        context.centreLatitude = std::clamp(latitude, -kLatitudeLimit, kLatitudeLimit);
        context.centreLongitude = std::remainder(longitude, 360.0);
    }
}

void keyPan(MapContext& context, int north, int east)
{
    const double step = kKeyPan * context.visibleRange / kMetresPerDegree;
    const double stretch = std::cos(context.centreLatitude * kRadiansPerDegree);
    setCentre(context, context.centreLatitude + north * step,
              context.centreLongitude + east * step / stretch);
}

void fit(MapContext& context, const MapExtent& extent, double aspect)
{
    const double north = northing(extent.north);
    const double south = northing(extent.south);
    // The middle of the map's square, which is stretched towards the poles.
    const double middle = mercatorLatitude((north + south) / 2.0) / kRadiansPerDegree;
    setCentre(context, middle, (extent.west + extent.east) / 2.0);

    const double across = (extent.east - extent.west) * kMetresPerDegree;
    const double along = (extent.north - extent.south) * kMetresPerDegree * aspect;
    // The stretch makes a path over many latitudes higher than its degrees say.
    const double stretched =
        (north - south) * std::cos(context.centreLatitude * kRadiansPerDegree) * aspect / kMargin;
    const double range = kMargin * std::max({across, along, stretched});
    context.visibleRange = clampedRange(std::max(range, kLeastFit));
}

} // namespace VELIX::MapNavigation
