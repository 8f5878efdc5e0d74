#include "card/FlightStatisticCalculator.h"

#include "card/RecordData.h"
#include "platform/tessel/Geodetic.h"
#include "profile/Profile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace VELIX {

namespace {

constexpr double kTakeoffThrottle = 90.0;  // percent: the roll begins
constexpr double kReferenceSpeed = 80.0;   // the ground altitude is taken here
constexpr double kNoAltitude = 0.1;        // lower samples are not altitudes
constexpr double kLiftOffHeight = 1.0;     // m
constexpr double kObstacleHeight = 15.0;   // m
constexpr double kSecondsPerHour = 3600.0; // fuel flows are per hour

/// The unit of what flows in an hour.
QString volumeOf(const QString& flowUnit)
{
    const QLatin1String perHour("/h");
    return flowUnit.endsWith(perHour) ? flowUnit.chopped(perHour.size()) : flowUnit;
}

} // namespace

double greatCircleDistance(double lat1, double lon1, double lat2, double lon2)
{
    using namespace Tessel::Geodetic;
    const double a = lat1 * kRadiansPerDegree;
    const double b = lat2 * kRadiansPerDegree;
    const double cosine = std::sin(a) * std::sin(b) +
                          std::cos(a) * std::cos(b) * std::cos((lon2 - lon1) * kRadiansPerDegree);
    // Rounding can carry the cosine of two equal points beyond 1.
    return std::acos(std::clamp(cosine, -1.0, 1.0)) * kDegreesPerRadian * 60.0 *
           kMetresPerNauticalMile;
}

FlightStatisticCalculator::FlightStatisticCalculator(const RecordData& record,
                                                     const Profile& profile, ValueAt valueAt)
    : mRecord(record), mProfile(profile), mValueAt(std::move(valueAt))
{}

void FlightStatisticCalculator::walk(const char* role, const RecordFlight& flight,
                                     const std::function<bool(double, double)>& visit)
{
    const ProfileParameter p = mProfile.getParameterFromVelixType(QString::fromLatin1(role));
    const EntryList& entries = mRecord.entries(p);
    const ProfileDecoder decoder = mProfile.decoder();
    const auto goesOn = [&](const RecordEntry& entry) {
        return entry.time <= flight.stopTime &&
               visit(entry.time, decoder.number(ParameterSample(entry, p)));
    };
    if (entries.isSorted()) {
        std::size_t i = entries.firstAtOrAfter(flight.startTime);
        while (i < entries.size() && goesOn(entries[i])) {
            ++i;
        }
        return;
    }
    for (const RecordEntry* entry : entries.sortedByTime()) {
        if (entry->time >= flight.startTime && !goesOn(*entry)) {
            return;
        }
    }
}

double FlightStatisticCalculator::valueAt(const char* role, double time)
{
    return mValueAt(mProfile.getParameterFromVelixType(QString::fromLatin1(role)), time);
}

QString FlightStatisticCalculator::convertedUnit(const char* role) const
{
    const ProfileParameter p = mProfile.getParameterFromVelixType(QString::fromLatin1(role));
    const NumberFormat format = mProfile.format(p);
    return format.isConverted() ? format.unit(NumberFormat::EUnitOf::Number) : QString();
}

FlightStatisticCalculator::Point FlightStatisticCalculator::positionAt(double time)
{
    return {valueAt("Latitude", time), valueAt("Longitude", time)};
}

FlightStatisticCalculator::Point FlightStatisticCalculator::rollStart(const RecordFlight& flight)
{
    Point point;
    walk("ThrottleA", flight, [&](double time, double throttle) {
        if (throttle > kTakeoffThrottle) {
            point = positionAt(time);
            return false;
        }
        return true;
    });
    return point;
}

double FlightStatisticCalculator::fuel(const char* role, const RecordFlight& flight)
{
    double litres = 0.0;
    double previous = 0.0;
    bool first = true;
    walk(role, flight, [&](double time, double flow) {
        if (!first) {
            litres += flow * (time - previous) / kSecondsPerHour;
        }
        first = false;
        previous = time;
        return true;
    });
    return litres;
}

FlightStatisticCalculator::Reference FlightStatisticCalculator::speeds(const RecordFlight& flight,
                                                                       double& maximum)
{
    Reference reference;
    bool found = false;
    walk("GroundSpeed", flight, [&](double time, double speed) {
        if (speed > maximum) {
            maximum = speed;
        }
        if (!found && speed > kReferenceSpeed) {
            found = true;
            reference = {valueAt("Altitude", time), time};
        }
        return true;
    });
    return reference;
}

FlightStatisticCalculator::Heights FlightStatisticCalculator::heights(const RecordFlight& flight,
                                                                      const Reference& reference)
{
    Heights result;
    bool counted = false;
    bool liftOff = false;
    bool obstacle = false;
    walk("Altitude", flight, [&](double time, double altitude) {
        if (altitude < kNoAltitude) {
            return true;
        }
        const double height = altitude - reference.altitude;
        if (!liftOff && height > kLiftOffHeight && time > reference.time) {
            liftOff = true;
            result.liftOff = positionAt(time);
        }
        if (!obstacle && height > kObstacleHeight && time > reference.time) {
            obstacle = true;
            result.obstacle = positionAt(time);
        }
        if (!counted) {
            counted = true;
            result.minimum = result.maximum = altitude;
            result.timeOfMaximum = time;
        } else if (altitude < result.minimum) {
            result.minimum = altitude;
        } else if (altitude > result.maximum) {
            result.maximum = altitude;
            result.timeOfMaximum = time;
        }
        return true;
    });
    return result;
}

void FlightStatisticCalculator::fill(RecordFlight& flight)
{
    FlightStatistic s;
    const Point start = rollStart(flight);
    s.fuelA = fuel("FuelA", flight);
    s.fuelB = fuel("FuelB", flight);
    s.fuel = s.fuelA + s.fuelB;
    const Reference reference = speeds(flight, s.maxSpeed);
    const Heights h = heights(flight, reference);
    s.minAlt = h.minimum;
    s.maxAlt = h.maximum;
    s.climb = h.maximum - h.minimum;
    s.flightTime = flight.landingTime - flight.takeoffTime;
    s.climbRate = s.climb / (h.timeOfMaximum - flight.takeoffTime);
    s.descendRate = s.climb / (flight.landingTime - h.timeOfMaximum);
    s.timePer100 = s.flightTime / s.climb * 100.0;
    s.fuelPer100 = s.fuel / s.climb * 100.0;
    // Points never found stay at 0, 0, as do their distances.
    s.distance = greatCircleDistance(start.latitude, start.longitude, h.liftOff.latitude,
                                     h.liftOff.longitude);
    s.distance15 = greatCircleDistance(start.latitude, start.longitude, h.obstacle.latitude,
                                       h.obstacle.longitude);
    s.heightUnit = convertedUnit("Altitude");
    s.speedUnit = convertedUnit("GroundSpeed");
    s.fuelUnit = volumeOf(convertedUnit("FuelA"));
    s.valid = true;
    flight.statistic = s;
}

} // namespace VELIX
