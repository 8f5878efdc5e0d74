#include "views/map/model/MapPathOutline.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace VELIX {

namespace {

constexpr int kSameColor = 16; // of 255: no eye sees it along a line

bool differ(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) > kSameColor ||
           std::abs(qGreen(a) - qGreen(b)) > kSameColor ||
           std::abs(qBlue(a) - qBlue(b)) > kSameColor;
}

/// The directions in which a line from an anchor passes all points so far within the tolerance.
class DirectionRange
{
public:
    DirectionRange(const MapPath::Point& anchor, double tolerance)
        : mAnchor(anchor), mTolerance(tolerance)
    {}

    /// Takes the next point; false if a line to it would pass one of those before too far away.
    bool take(const MapPath::Point& point)
    {
        const double x = point.x - mAnchor.x;
        const double y = point.y - mAnchor.y;
        const double distance = std::hypot(x, y);
        if (distance < mFarthest - mTolerance) {
            return false; // it turns back
        }
        mFarthest = std::max(mFarthest, distance);
        if (distance <= mTolerance) {
            return true;
        }
        const double direction = std::atan2(y, x);
        const double spread = std::asin(mTolerance / distance);
        if (!mDirected) {
            mDirected = true;
            mMiddle = direction;
            mLow = -spread;
            mHigh = spread;
            return true;
        }
        const double turn = std::remainder(direction - mMiddle, 2.0 * std::numbers::pi);
        if (turn < mLow || turn > mHigh) {
            return false;
        }
        mLow = std::max(mLow, turn - spread);
        mHigh = std::min(mHigh, turn + spread);
        return true;
    }

private:
    MapPath::Point mAnchor;
    double mTolerance;
    double mFarthest = 0.0;
    bool mDirected = false;
    double mMiddle = 0.0; ///< rad; the bounds are relative to it
    double mLow = 0.0;
    double mHigh = 0.0;
};

} // namespace

std::vector<std::size_t> mapPathOutline(const std::vector<MapPath::Point>& points,
                                        const std::vector<QRgb>& colors, double tolerance)
{
    if (points.empty()) {
        return {};
    }
    std::vector<std::size_t> kept{0};
    const auto differs = [&](std::size_t i) {
        return i < colors.size() && differ(colors[i], colors[kept.back()]);
    };
    DirectionRange range(points[0], tolerance);
    const auto keep = [&](std::size_t i) {
        if (i != kept.back()) {
            kept.push_back(i);
        }
        range = DirectionRange(points[i], tolerance);
    };
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (!range.take(points[i]) || differs(i)) {
            keep(i - 1);
            static_cast<void>(range.take(points[i])); // a new one takes any
        }
        if (differs(i)) {
            keep(i); // the colour steps between two neighbours
        }
    }
    keep(points.size() - 1);
    return kept;
}

} // namespace VELIX
