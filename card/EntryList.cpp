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

// Times grow along the ordered part and, from its end on, along the peaks: one binary search.
template <class Before>
std::size_t EntryList::firstWhere(Before isBefore) const
{
    if (mSortedSize > 0 && !isBefore((*this)[mSortedSize - 1].time)) {
        std::size_t low = 0;
        std::size_t high = mSortedSize - 1;
        while (low < high) {
            const std::size_t middle = low + (high - low) / 2;
            if (isBefore((*this)[middle].time)) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        return low;
    }
    const auto peak =
        std::partition_point(mPeaks.begin(), mPeaks.end(), [&](std::uint32_t position) {
            return isBefore((*this)[position].time);
        });
    return peak == mPeaks.end() ? mSize : *peak;
}

std::size_t EntryList::firstAtOrAfter(double time) const
{
    // Written so that a time that is not a number finds nothing, as in a scan.
    return firstWhere([time](double entryTime) { return !(entryTime >= time); });
}

std::size_t EntryList::firstAfter(double time) const
{
    return firstWhere([time](double entryTime) { return !(entryTime > time); });
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
