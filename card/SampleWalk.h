#pragma once

#include "card/RecordData.h"
#include "profile/CoordinateFilter.h"
#include "profile/ParameterSample.h"

#include <cstdint>

namespace VELIX {

class Profile;

/// Returns the filter with which a walk over a parameter's samples begins: it has judged nothing
/// yet. Longitudes are judged at the record's last latitude, so that one walked alone comes out as
/// it does beside its latitude.
CoordinateFilter filterForWalk(const RecordData& record, const ProfileParameter& p,
                               const Profile& profile);

/// Calls visit(sample) for all samples of a parameter by time.
template <class Visit>
void forEachSampleByTime(const RecordData& record, const ProfileParameter& p,
                         const Profile& profile, Visit visit)
{
    CoordinateFilter filter = filterForWalk(record, p, profile);
    const EntryList& entries = record.entries(p);
    if (!entries.isSorted()) {
        for (const RecordEntry* entry : entries.sortedByTime()) {
            visit(ParameterSample(*entry, p, filter));
        }
        return;
    }
    for (const RecordEntry& entry : entries) {
        visit(ParameterSample(entry, p, filter));
    }
}

/// Calls visit(sample) for all samples of a parameter: positions by time, since each is judged by
/// the one before it, all others in the order of the file.
template <class Visit>
void forEachSample(const RecordData& record, const ProfileParameter& p, const Profile& profile,
                   Visit visit)
{
    if (p.coordinate != ECoordinate::None) {
        forEachSampleByTime(record, p, profile, visit);
        return;
    }
    for (const RecordEntry& entry : record.entries(p)) {
        visit(ParameterSample(entry, p));
    }
}

} // namespace VELIX
