#include "views/map/model/MapTrack.h"

#include <algorithm>
#include <cmath>

namespace VELIX::MapTrack {

bool isEmpty(const FlightPathPoint& point)
{
    return point.time == 0.0 && point.latitude == 0.0 && point.longitude == 0.0;
}

FlightPathPoint between(const FlightPathPoint& from, const FlightPathPoint& to, double fraction)
{
    const auto mix = [fraction](double a, double b) { return a + (b - a) * fraction; };
    const auto turn = [fraction](double a, double b) {
        return a + std::remainder(b - a, 360.0) * fraction;
    };
    FlightPathPoint point;
    point.time = mix(from.time, to.time);
    point.latitude = mix(from.latitude, to.latitude);
    point.longitude = std::remainder(turn(from.longitude, to.longitude), 360.0);
    point.altitude = mix(from.altitude, to.altitude);
    const double course = std::remainder(turn(from.course, to.course), 360.0);
    point.course = course < 0.0 ? course + 360.0 : course;
    point.speed = mix(from.speed, to.speed);
    return point;
}

FlightPathPoint positionAt(const std::vector<FlightPathPoint>& path, double start, double stop,
                           double time)
{
    if (path.empty() || !(time >= start && time <= stop)) {
        return {};
    }
    const auto right = std::lower_bound(
        path.begin(), path.end(), time,
        [](const FlightPathPoint& point, double seconds) { return point.time < seconds; });
    if (right == path.begin() || right == path.end()) {
        return right == path.end() ? path.back() : path.front();
    }
    const FlightPathPoint& left = *(right - 1);
    return between(left, *right, (time - left.time) / (right->time - left.time));
}

} // namespace VELIX::MapTrack
