#pragma once

#include "card/EntryList.h"
#include "profile/ProfileParameter.h"

namespace VELIX {

/// Calls visit(entry) for the entries of a parameter in the order in which they have to be decoded:
/// positions by time, since each is judged by the one before it, all others as in the file.
template <class Visit>
void inDecodingOrder(const EntryList& entries, const ProfileParameter& p, Visit visit)
{
    if (p.coordinate != ECoordinate::None && !entries.isSorted()) {
        for (const RecordEntry* entry : entries.sortedByTime()) {
            visit(*entry);
        }
        return;
    }
    for (const RecordEntry& entry : entries) {
        visit(entry);
    }
}

} // namespace VELIX
