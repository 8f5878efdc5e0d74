#pragma once

#include "card/RecordFlight.h"

#include <functional>
#include <vector>

namespace VELIX {

class Profile;
class RecordData;
struct ProfileParameter;
struct RecordEntry;

/// Computes the figures of one flight from all loaded data.
class FlightStatisticCalculator
{
public:
    /// The value of a parameter at a time (s).
    using ValueAt = std::function<double(const ProfileParameter&, double)>;

    FlightStatisticCalculator(const RecordData& record, const Profile& profile, ValueAt valueAt);

    /// Fills the statistic of a flight whose times are set.
    void fill(RecordFlight& flight);

private:
    struct Point
    {
        double latitude = 0.0;
        double longitude = 0.0;
    };
    /// Ground altitude and time from which heights count.
    struct Reference
    {
        double altitude = 0.0;
        double time = 0.0;
    };
    struct Heights
    {
        double minimum = 0.0;
        double maximum = 0.0;
        double timeOfMaximum = 0.0;
        Point liftOff;
        Point obstacle;
    };
    /// Calls visit(time, value) for the samples of a role inside the flight, in time order, until
    /// it returns false.
    void walk(const char* role, const RecordFlight& flight,
              const std::function<bool(double, double)>& visit);
    double valueAt(const char* role, double time);
    /// The unit to which the values of a role are converted; empty if they are not.
    QString convertedUnit(const char* role) const;
    Point positionAt(double time);

    Point rollStart(const RecordFlight& flight);
    double fuel(const char* role, const RecordFlight& flight);
    Reference speeds(const RecordFlight& flight, double& maximum);
    Heights heights(const RecordFlight& flight, const Reference& reference);

    const RecordData& mRecord;
    const Profile& mProfile;
    ValueAt mValueAt;
};

/// Returns the great-circle distance in metres between two points in degrees (one nautical mile a
/// minute).
double greatCircleDistance(double lat1, double lon1, double lat2, double lon2);

} // namespace VELIX
