#pragma once

#include "card/FlightPathPoint.h"
#include "views/map/model/MapNavigation.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace VELIX {

/// A flight path on the Web Mercator map: metres at the equator, x eastwards and y northwards of
/// the path's first point. Projected once, step by step, so that a path across the antimeridian
/// stays in one piece.
class MapPath
{
public:
    struct Point
    {
        double x = 0.0;
        double y = 0.0;
    };
    /// A place between a point of the path and the next one.
    struct Place
    {
        std::size_t index = 0;
        double fraction = 0.0;
        double distance = 0.0; ///< from the place asked for, in metres of the map
    };

    MapPath() = default;
    explicit MapPath(const std::vector<FlightPathPoint>& path);

    [[nodiscard]] bool empty() const { return mPoints.empty(); }
    [[nodiscard]] const std::vector<Point>& points() const { return mPoints; }
    [[nodiscard]] const MapExtent& extent() const { return mExtent; }

    /// The middle of the path on the map, and the same place in degrees.
    [[nodiscard]] const Point& middle() const { return mMiddle; }
    [[nodiscard]] double middleLatitude() const { return mMiddleLatitude; }
    [[nodiscard]] double middleLongitude() const { return mMiddleLongitude; }
    /// Half the path's width and height in metres of the map.
    [[nodiscard]] double halfWidth() const { return mHalfWidth; }
    [[nodiscard]] double halfHeight() const { return mHalfHeight; }

    /// Returns the place of the path nearest to a place in degrees; none if it is farther (m of the
    /// map).
    [[nodiscard]] std::optional<Place> nearest(double latitude, double longitude,
                                               double farthest) const;

private:
    struct Box
    {
        double left = 0.0;
        double right = 0.0;
        double bottom = 0.0;
        double top = 0.0;
    };
    void project(const std::vector<FlightPathPoint>& path);
    void findBoxes();
    void nearestInBox(std::size_t box, const Point& place, std::optional<Place>& best,
                      double& farthest) const;

    std::vector<Point> mPoints;
    std::vector<Box> mBoxes; ///< of so many points each: most of a path is far from the mouse
    MapExtent mExtent;
    Point mMiddle;
    double mNorthing = 0.0; ///< m of the map: of the first point
    double mMiddleLatitude = 0.0;
    double mMiddleLongitude = 0.0;
    double mHalfWidth = 0.0;
    double mHalfHeight = 0.0;
};

} // namespace VELIX
