#include "card/FlightPath.h"

#include "card/SampleWalk.h"
#include "platform/tessel/Geodetic.h"
#include "profile/Profile.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

using Tessel::Geodetic::kMetresPerDegree;
using Tessel::Geodetic::kRadiansPerDegree;

constexpr double kStandstill = 0.5; // m between samples: too short to have a course

struct Sample
{
    double time;
    double value;
};

struct Positions
{
    std::vector<Sample> latitudes;
    std::vector<Sample> longitudes;
};

/// Difference of two longitudes the short way round, -180 to 180 degrees.
double longitudeDifference(double from, double to)
{
    return std::remainder(to - from, 360.0);
}

double wrapped(double longitude)
{
    return std::remainder(longitude, 360.0);
}

/// The samples of a role by time; none if no parameter has the role.
std::vector<const RecordEntry*> samplesOf(const RecordData& record, const ProfileParameter& p)
{
    if (p.velixDataType.isEmpty()) {
        return {}; // not those of identifier 0
    }
    return record.entries(p).sortedByTime();
}

/// Decodes both series in one walk by time: the filter judges a longitude by the last latitude.
Positions decodePositions(const RecordData& record, const Profile& profile)
{
    const ProfileParameter lat = profile.getParameterFromVelixType(QStringLiteral("Latitude"));
    const ProfileParameter lon = profile.getParameterFromVelixType(QStringLiteral("Longitude"));
    const auto lats = samplesOf(record, lat);
    const auto lons = samplesOf(record, lon);

    Positions positions;
    positions.latitudes.reserve(lats.size());
    positions.longitudes.reserve(lons.size());
    CoordinateFilter filter;
    const auto decode = [&filter](const RecordEntry& entry, const ProfileParameter& p,
                                  std::vector<Sample>& out) {
        const double degrees = ProfileDecoder::metric(ParameterSample(entry, p, filter));
        if (std::isfinite(degrees)) {
            out.push_back({entry.time, degrees});
        }
    };
    auto nextLon = lons.begin();
    for (const RecordEntry* entry : lats) {
        for (; nextLon != lons.end() && (*nextLon)->time < entry->time; ++nextLon) {
            decode(**nextLon, lon, positions.longitudes);
        }
        decode(*entry, lat, positions.latitudes);
    }
    for (; nextLon != lons.end(); ++nextLon) {
        decode(**nextLon, lon, positions.longitudes);
    }
    return positions;
}

std::vector<Sample> decodeAltitudes(const RecordData& record, const Profile& profile)
{
    const ProfileParameter p = profile.getParameterFromVelixType(QStringLiteral("Altitude"));
    std::vector<Sample> altitudes;
    for (const RecordEntry* entry : samplesOf(record, p)) {
        const double metres = ProfileDecoder::metric(ParameterSample(*entry, p));
        if (std::isfinite(metres)) {
            altitudes.push_back({entry->time, metres});
        }
    }
    return altitudes;
}

/// Reads a series at growing times; beyond its ends its first or last value holds.
template <class Difference>
class Interpolator
{
public:
    Interpolator(const std::vector<Sample>& series, Difference difference)
        : mSeries(series), mDifference(difference)
    {}

    double at(double time)
    {
        while (mRight < mSeries.size() && mSeries[mRight].time < time) {
            ++mRight;
        }
        if (mRight == 0) {
            return mSeries.front().value;
        }
        const Sample& left = mSeries[mRight - 1];
        if (mRight == mSeries.size()) {
            return left.value;
        }
        const Sample& right = mSeries[mRight];
        const double fraction = (time - left.time) / (right.time - left.time);
        return left.value + fraction * mDifference(left.value, right.value);
    }

private:
    const std::vector<Sample>& mSeries;
    Difference mDifference;
    std::size_t mRight = 0;
};

/// Course and speed from the neighbours of each point; standing still keeps the last course.
void orient(std::vector<FlightPathPoint>& path)
{
    double course = 0.0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const FlightPathPoint& from = path[i > 0 ? i - 1 : i];
        const FlightPathPoint& to = path[i + 1 < path.size() ? i + 1 : i];
        const double north = (to.latitude - from.latitude) * kMetresPerDegree;
        const double east = longitudeDifference(from.longitude, to.longitude) * kMetresPerDegree *
                            std::cos(path[i].latitude * kRadiansPerDegree);
        const double distance = std::hypot(north, east);
        const double duration = to.time - from.time;
        if (distance > kStandstill) {
            const double degrees = std::atan2(east, north) / kRadiansPerDegree;
            course = degrees < 0.0 ? degrees + 360.0 : degrees;
        }
        path[i].course = course;
        path[i].speed = duration > 0.0 ? distance / duration : 0.0;
    }
}

} // namespace

std::vector<FlightPathPoint> flightPath(const RecordData& record, const Profile& profile)
{
    const Positions positions = decodePositions(record, profile);
    if (positions.latitudes.empty() || positions.longitudes.empty()) {
        return {};
    }
    const std::vector<Sample> altitudes = decodeAltitudes(record, profile);
    Interpolator longitude(positions.longitudes, longitudeDifference);
    Interpolator altitude(altitudes, [](double from, double to) { return to - from; });

    std::vector<FlightPathPoint> path;
    path.reserve(positions.latitudes.size());
    for (const Sample& latitude : positions.latitudes) {
        FlightPathPoint point;
        point.time = latitude.time;
        point.latitude = latitude.value;
        point.longitude = wrapped(longitude.at(latitude.time));
        point.altitude = altitudes.empty() ? 0.0 : altitude.at(latitude.time);
        path.push_back(point);
    }
    orient(path);
    return path;
}

} // namespace VELIX
