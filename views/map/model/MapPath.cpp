#include "views/map/model/MapPath.h"

#include "platform/tessel/Geodetic.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

using Tessel::Geodetic::latLong2Cartesian;
using Tessel::Geodetic::mercatorLatitude;

constexpr std::size_t kBoxPoints = 256;

} // namespace

MapPath::MapPath(const std::vector<FlightPathPoint>& path)
{
    if (!path.empty()) {
        project(path);
        findBoxes();
    }
}

void MapPath::project(const std::vector<FlightPathPoint>& path)
{
    mNorthing = latLong2Cartesian({path.front().latitude, 0.0, 0.0}, {}).y;
    mPoints.reserve(path.size());
    double longitude = path.front().longitude; // without a step at the antimeridian
    double x = 0.0;
    mExtent = {path.front().latitude, path.front().latitude, longitude, longitude};
    Tessel::Geodetic::Position before{0.0, longitude, 0.0};
    for (const FlightPathPoint& point : path) {
        const auto step = latLong2Cartesian({point.latitude, point.longitude, 0.0}, before);
        x += step.x;
        longitude += std::remainder(point.longitude - before.longitude, 360.0);
        before.longitude = point.longitude;
        mPoints.push_back({x, step.y - mNorthing});
        mExtent.south = std::min(mExtent.south, point.latitude);
        mExtent.north = std::max(mExtent.north, point.latitude);
        mExtent.west = std::min(mExtent.west, longitude);
        mExtent.east = std::max(mExtent.east, longitude);
    }
}

void MapPath::findBoxes()
{
    for (std::size_t first = 0; first < mPoints.size(); first += kBoxPoints) {
        // One more: the way to the next box belongs to this one.
        const std::size_t end = std::min(first + kBoxPoints + 1, mPoints.size());
        Box box{mPoints[first].x, mPoints[first].x, mPoints[first].y, mPoints[first].y};
        for (std::size_t i = first; i < end; ++i) {
            box.left = std::min(box.left, mPoints[i].x);
            box.right = std::max(box.right, mPoints[i].x);
            box.bottom = std::min(box.bottom, mPoints[i].y);
            box.top = std::max(box.top, mPoints[i].y);
        }
        mBoxes.push_back(box);
    }
    Box all = mBoxes.front();
    for (const Box& box : mBoxes) {
        all.left = std::min(all.left, box.left);
        all.right = std::max(all.right, box.right);
        all.bottom = std::min(all.bottom, box.bottom);
        all.top = std::max(all.top, box.top);
    }
    mMiddle = {(all.left + all.right) / 2.0, (all.bottom + all.top) / 2.0};
    mHalfWidth = (all.right - all.left) / 2.0;
    mHalfHeight = (all.top - all.bottom) / 2.0;
    mMiddleLatitude = mercatorLatitude(mNorthing + mMiddle.y) * Tessel::Geodetic::kDegreesPerRadian;
    mMiddleLongitude = (mExtent.west + mExtent.east) / 2.0;
}

std::optional<MapPath::Place> MapPath::nearest(double latitude, double longitude,
                                               double farthest) const
{
    if (mPoints.empty()) {
        return std::nullopt;
    }
    const auto fromMiddle =
        latLong2Cartesian({latitude, longitude, 0.0}, {0.0, mMiddleLongitude, 0.0});
    const Point place{mMiddle.x +
                          std::remainder(fromMiddle.x, 2.0 * Tessel::Geodetic::kMercatorHalf),
                      fromMiddle.y - mNorthing};
    std::optional<Place> best;
    for (std::size_t i = 0; i < mBoxes.size(); ++i) {
        const Box& box = mBoxes[i];
        const double x = std::max({box.left - place.x, 0.0, place.x - box.right});
        const double y = std::max({box.bottom - place.y, 0.0, place.y - box.top});
        if (std::hypot(x, y) <= farthest) {
            nearestInBox(i, place, best, farthest);
        }
    }
    return best;
}

void MapPath::nearestInBox(std::size_t box, const Point& place, std::optional<Place>& best,
                           double& farthest) const
{
    const std::size_t end = std::min((box + 1) * kBoxPoints, mPoints.size());
    for (std::size_t i = box * kBoxPoints; i < end; ++i) {
        const Point& from = mPoints[i];
        const Point& to = mPoints[std::min(i + 1, mPoints.size() - 1)];
        const double dx = to.x - from.x;
        const double dy = to.y - from.y;
        const double length = dx * dx + dy * dy;
        const double along = (place.x - from.x) * dx + (place.y - from.y) * dy;
        const double fraction = length > 0.0 ? std::clamp(along / length, 0.0, 1.0) : 0.0;
        const double distance =
            std::hypot(place.x - from.x - fraction * dx, place.y - from.y - fraction * dy);
        if (distance <= farthest) {
            farthest = distance;
            best = Place{i, fraction, distance};
        }
    }
}

} // namespace VELIX
