#include "card/EntryList.h"

#include <algorithm>

namespace VELIX {

EntryList::Iterator::Iterator(const EntryList* list, std::size_t position)
    : mList(list), mPosition(position)
{
    enterChunk();
}

void EntryList::Iterator::enterChunk()
{
    if (mPosition >= mList->mSize) {
        return;
    }
    const Place p = place(mPosition);
    mLeft = p.chunkSize - p.offset;
    if (mList->mKind == Kind::Owning) {
        mAt = static_cast<const RecordEntry*>(mList->mChunks[p.chunk]) + p.offset;
    } else {
        mAt = static_cast<const RecordEntry* const*>(mList->mChunks[p.chunk]) + p.offset;
    }
}

// Samples mostly come at an even rate, so a proportional guess lands near the block; from there the
// search doubles its steps until it has the block between two that are known.
template <class Before>
std::size_t EntryList::blockOf(double time, Before isBefore) const
{
    const double* latest = mLatestBefore.data();
    std::size_t low = 1;                     // all before it are before the time
    std::size_t high = mLatestBefore.size(); // it and all behind are not
    const double part = (time - latest[0]) / (mLatest - latest[0]);
    if (part > 0.0 && part < 1.0 && high > low) {
        const auto guess = low + static_cast<std::size_t>(part * static_cast<double>(high - low));
        if (isBefore(latest[guess])) {
            low = guess + 1;
            for (std::size_t step = 1; low + step < high; step *= 2) {
                if (!isBefore(latest[low + step])) {
                    high = low + step;
                    break;
                }
                low += step + 1;
            }
        } else {
            high = guess;
            for (std::size_t step = 1; high > low + step; step *= 2) {
                if (isBefore(latest[high - step])) {
                    low = high - step + 1;
                    break;
                }
                high -= step;
            }
        }
    }
    return static_cast<std::size_t>(std::partition_point(latest + low, latest + high, isBefore) -
                                    latest) -
           1;
}

// The first block before whose end a time is reached holds the answer; blocks before it cannot.
template <class Before>
std::size_t EntryList::firstWhere(double time, Before isBefore) const
{
    if (empty()) {
        return 0;
    }
    std::size_t position = blockOf(time, isBefore) * kBlock;
    for (Iterator entry(this, position); position < mSize && isBefore(entry->time); ++entry) {
        ++position;
    }
    return position;
}

std::size_t EntryList::firstAtOrAfter(double time) const
{
    // Written so that a time that is not a number finds nothing, as in a scan.
    return firstWhere(time, [time](double entryTime) { return !(entryTime >= time); });
}

std::size_t EntryList::firstAfter(double time) const
{
    return firstWhere(time, [time](double entryTime) { return !(entryTime > time); });
}

std::vector<const RecordEntry*> EntryList::sortedByTime() const
{
    std::vector<const RecordEntry*> sorted;
    sorted.reserve(mSize);
    for (const RecordEntry& entry : *this) {
        sorted.push_back(&entry);
    }
    if (!isSorted()) {
        std::stable_sort(
            sorted.begin(), sorted.end(),
            [](const RecordEntry* a, const RecordEntry* b) { return a->time < b->time; });
    }
    return sorted;
}

} // namespace VELIX
