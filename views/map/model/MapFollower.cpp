#include "views/map/model/MapFollower.h"

#include "platform/tessel/Filter.h"
#include "platform/tessel/Geodetic.h"
#include "views/map/model/MapContext.h"
#include "views/map/model/MapNavigation.h"

#include <cmath>

namespace VELIX {

namespace {

using Tessel::Geodetic::kMetresPerDegree;
using Tessel::Geodetic::kRadiansPerDegree;

constexpr double kTimeConstant = 0.2; // s
constexpr double kStep = 0.02;        // s: a frame
constexpr double kReached = 10.0;     // m

double decayed(double offset)
{
    return Tessel::Math::Filter::pt1(offset, 0.0, kTimeConstant, kStep);
}

} // namespace

bool MapFollower::step(MapContext& context, double latitude, double longitude)
{
    // Offsets, so that the way goes the short way round the globe.
    double north = decayed(context.centreLatitude - latitude);
    double east = decayed(std::remainder(context.centreLongitude - longitude, 360.0));
    const double metresEast = east * std::cos(latitude * kRadiansPerDegree);
    bool underWay = std::hypot(north, metresEast) * kMetresPerDegree >= kReached;
    if (!underWay) {
        north = 0.0;
        east = 0.0;
    }
    MapNavigation::setCentre(context, latitude + north, longitude + east);

    if (mRange > 0.0) {
        const double offset = decayed(context.visibleRange - mRange);
        const bool there = std::abs(offset) < kReached;
        context.visibleRange = MapNavigation::clampedRange(there ? mRange : mRange + offset);
        mRange = there ? 0.0 : mRange;
        underWay = underWay || !there;
    }
    return underWay;
}

} // namespace VELIX
