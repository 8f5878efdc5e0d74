#pragma once

#include "export/KmlExportData.h"

#include <cstdint>
#include <map>

namespace VELIX {

class Profile;
class RecordData;

/// The positions of a record at whole steps of time, gaps filled with the nearest ones.
///
/// Each point is filed under the number of its time step. Positions that are not numbers count as
/// missing. Without any latitude or any longitude there is no point at all; without any altitude
/// all altitudes stay missing.
class KmlPath
{
public:
    using Points = std::map<std::int32_t, KmlExportData>;
    enum class Log { Off, On };

    /// timeStep: s, at least 1. With the log on, every decoded position is printed.
    KmlPath(const RecordData& record, const Profile& profile, int timeStep, Log log);

    const Points& points() const { return mPoints; }
    /// The point at a key, else the nearest earlier one, else the first; null if there is none.
    const KmlExportData* at(std::int32_t key) const;
    /// The first point from a key on among `count` keys, else as at(key).
    const KmlExportData* firstOf(std::int64_t key, std::int64_t count) const;

private:
    void gather(const RecordData& record, const Profile& profile, int timeStep, Log log);
    void fillGaps(Log log);

    Points mPoints;
};

} // namespace VELIX
