#include "card/RecordData.h"

#include "profile/FaultMatrix.h"
#include "profile/ProfileParameter.h"

#include <algorithm>
#include <utility>

namespace VELIX {

namespace {

bool isCollective(std::uint32_t id)
{
    return id == RecordData::kSource0Id || id == RecordData::kSource1Id;
}

} // namespace

const RecordIdList* RecordData::find(std::uint32_t id) const
{
    const auto found = mIds.find(id);
    return found == mIds.end() ? nullptr : &found->second;
}

const EntryList& RecordData::entries(std::uint32_t id) const
{
    static const EntryList none;
    const RecordIdList* list = find(id);
    return list != nullptr ? list->entries : none;
}

RecordIdList& RecordData::list(std::uint32_t id)
{
    const auto [at, isNew] = mIds.try_emplace(id);
    if (isNew && isCollective(id)) {
        at->second.entries = EntryList(EntryList::Kind::View);
    }
    return at->second;
}

const RecordIdList* RecordData::find(const ProfileParameter& p) const
{
    return find(static_cast<std::uint32_t>(p.id));
}

const RecordIdList* RecordData::find(const FaultMatrix& matrix) const
{
    return find(static_cast<std::uint32_t>(matrix.id));
}

const EntryList& RecordData::entries(const ProfileParameter& p) const
{
    return entries(static_cast<std::uint32_t>(p.id));
}

const EntryList& RecordData::entries(const FaultMatrix& matrix) const
{
    return entries(static_cast<std::uint32_t>(matrix.id));
}

RecordIdList& RecordData::list(const ProfileParameter& p)
{
    return list(static_cast<std::uint32_t>(p.id));
}

// Appending needs no order, so a small direct-mapped table spares most searches of the ordered map.
RecordIdList& RecordData::recentList(std::uint32_t id)
{
    Recent& recent = mRecent[id % mRecent.size()];
    if (recent.list == nullptr || recent.id != id) {
        recent = {id, &list(id)};
    }
    return *recent.list;
}

void RecordData::append(const RecordEntry& entry)
{
    if (entryCount == 0) {
        startTime = stopTime = entry.time;
    } else if (entry.time < startTime) {
        startTime = entry.time;
    } else if (entry.time > stopTime) {
        stopTime = entry.time;
    }
    ++entryCount;

    EntryList& entries = recentList(entry.id).entries;
    const RecordEntry* stored = nullptr;
    if (isCollective(entry.id)) { // a message that uses a collective list's number
        stored = new (mArena.allocate(sizeof(RecordEntry))) RecordEntry(entry);
        entries.append(mArena, stored);
    } else {
        stored = entries.append(mArena, entry);
    }
    if (entry.source <= 1) {
        RecordIdList*& collective = mCollective[entry.source];
        if (collective == nullptr) {
            collective = &list(entry.source == 0 ? kSource0Id : kSource1Id);
        }
        collective->entries.append(mArena, stored);
    }
}

void RecordData::finish(double indexStop)
{
    std::size_t seconds = 0;
    if (indexStop >= 0.0) {
        constexpr double kMost = 1e15; // a damaged stop time; far beyond any record
        seconds = static_cast<std::size_t>(indexStop < kMost ? indexStop : kMost) + 2;
    }
    for (auto& [id, list] : mIds) {
        list.indexSize = seconds;
        if (!list.entries.empty()) {
            list.last = list.entries.back();
        }
    }
}

std::size_t RecordData::memory() const
{
    constexpr std::size_t kNode = 128; // of the map and of what the list keeps elsewhere
    return mArena.used() + mIds.size() * (sizeof(IdMap::value_type) + kNode);
}

void RecordData::clear()
{
    mIds.clear();
    mRecent.fill({});
    mCollective.fill(nullptr);
    mArena = ChunkArena();
    mWhole.reset();
    entryCount = 0;
    startDateTime = QDateTime();
    startTime = stopTime = cursorTime = 0.0;
    limits.clear();
    warnings.clear();
    flight = RecordFlight();
    cycleFlights.clear();
}

std::shared_ptr<RecordData> RecordData::narrowed(std::shared_ptr<const RecordData> whole,
                                                 double from, double to)
{
    auto part = std::make_shared<RecordData>();
    for (const auto& [id, list] : whole->mIds) {
        RecordIdList& kept = part->mIds[id];
        kept.entries = EntryList(EntryList::Kind::View);
        kept.indexSize = list.indexSize;
        const EntryList& all = list.entries;
        const std::size_t first = all.firstAtOrAfter(from);
        const std::size_t end = all.isSorted() ? all.firstAfter(to) : all.size();
        for (std::size_t i = first; i < end; ++i) {
            const RecordEntry& entry = all[i];
            if (entry.time >= from && entry.time <= to) {
                kept.entries.append(part->mArena, &entry);
            }
        }
        if (!kept.entries.empty()) {
            kept.last = kept.entries.back();
        }
        part->entryCount += isCollective(id) ? 0 : static_cast<std::uint32_t>(kept.entries.size());
    }
    part->startDateTime = whole->startDateTime;
    part->startTime = std::max(from, whole->startTime);
    part->stopTime = std::min(to, whole->stopTime);
    part->mWhole = std::move(whole);
    return part;
}

} // namespace VELIX
