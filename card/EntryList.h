#pragma once

#include "card/ChunkArena.h"
#include "core/RecordEntry.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace VELIX {

/// The entries of one identifier in file order; grows at its end without moving what it holds.
///
/// A list either owns its entries or, for collective and narrowed lists, refers to entries that
/// another list owns. Its memory is the arena's that it is given on every append.
class EntryList
{
public:
    enum class Kind { Owning, View };

    explicit EntryList(Kind kind = Kind::Owning) : mKind(kind) {}
    EntryList(const EntryList&) = delete; // two lists would append into one chunk
    EntryList& operator=(const EntryList&) = delete;
    EntryList(EntryList&&) = default;
    EntryList& operator=(EntryList&&) = default;
    ~EntryList() = default;

    std::size_t size() const { return mSize; }
    bool empty() const { return mSize == 0; }
    const RecordEntry& operator[](std::size_t i) const;
    const RecordEntry& front() const { return (*this)[0]; }
    const RecordEntry& back() const { return (*this)[mSize - 1]; }

    /// Whether no entry is earlier than the one before it.
    bool isSorted() const { return mSorted; }

    /// Returns the position of the first entry at or after a time (seconds); size() if there is
    /// none. The answer is that of a scan from the front, also for entries out of order.
    std::size_t firstAtOrAfter(double time) const;
    /// Returns the position of the first entry after a time (seconds), likewise.
    std::size_t firstAfter(double time) const;

    /// Returns the entries ordered by time; those of equal time keep their order.
    std::vector<const RecordEntry*> sortedByTime() const;

    /// Appends to an owning list; returns the stored entry, whose address stays.
    const RecordEntry* append(ChunkArena& arena, const RecordEntry& entry);
    /// Appends to a view; the entry must outlive the list.
    void append(ChunkArena& arena, const RecordEntry* entry);

    class Iterator;
    Iterator begin() const;
    Iterator end() const;

private:
    // Chunks hold 4, 8, ... 4096 entries and from then on always 4096: small lists stay small,
    // large ones waste little, and a position needs no search.
    static constexpr std::size_t kFirst = 4;
    static constexpr std::size_t kLargest = 4096;
    static constexpr std::size_t kGrowing = 10; ///< chunks before the first of 4096
    static constexpr std::size_t kGrowingSize = kLargest - kFirst;
    static constexpr std::size_t kBlock = 16; ///< entries that a look-up by time walks over

    struct Place
    {
        std::size_t chunk;
        std::size_t offset;
        std::size_t chunkSize;
    };
    static constexpr Place place(std::size_t i)
    {
        if (i >= kGrowingSize) {
            const std::size_t rest = i - kGrowingSize;
            return {kGrowing + rest / kLargest, rest % kLargest, kLargest};
        }
        const auto chunk = static_cast<std::size_t>(std::bit_width(i / kFirst + 1)) - 1;
        const std::size_t before = (kFirst << chunk) - kFirst;
        return {chunk, i - before, kFirst << chunk};
    }
    template <class T>
    T* slot(ChunkArena& arena);
    void noteTime(double time);
    template <class Before>
    std::size_t blockOf(double time, Before isBefore) const;
    template <class Before>
    std::size_t firstWhere(double time, Before isBefore) const;

    Kind mKind;
    std::size_t mSize = 0;
    std::vector<void*> mChunks;
    std::byte* mNext = nullptr; ///< where the next element goes
    std::byte* mChunkEnd = nullptr;
    double mLatest = 0.0; ///< greatest time so far, seconds
    bool mSorted = true;
    /// Of each block of kBlock entries: the greatest time before it. It never falls, also for
    /// entries out of order, and is small enough to be searched within the processor's cache.
    std::vector<double> mLatestBefore;
};

/// Forward iterator that walks chunk by chunk.
class EntryList::Iterator
{
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = RecordEntry;
    using difference_type = std::ptrdiff_t;
    using pointer = const RecordEntry*;
    using reference = const RecordEntry&;

    Iterator() = default;
    Iterator(const EntryList* list, std::size_t position);

    reference operator*() const
    {
        return mList->mKind == Kind::Owning ? *static_cast<const RecordEntry*>(mAt)
                                            : **static_cast<const RecordEntry* const*>(mAt);
    }
    pointer operator->() const { return &**this; }
    Iterator& operator++();
    Iterator operator++(int);
    bool operator==(const Iterator& other) const { return mPosition == other.mPosition; }

private:
    void enterChunk();

    const EntryList* mList = nullptr;
    std::size_t mPosition = 0;
    std::size_t mLeft = 0; ///< elements left in this chunk, the current one included
    const void* mAt = nullptr;
};

inline const RecordEntry& EntryList::operator[](std::size_t i) const
{
    const Place p = place(i);
    return mKind == Kind::Owning
               ? static_cast<const RecordEntry*>(mChunks[p.chunk])[p.offset]
               : *static_cast<const RecordEntry* const*>(mChunks[p.chunk])[p.offset];
}

template <class T>
T* EntryList::slot(ChunkArena& arena)
{
    if (mNext == mChunkEnd) {
        const std::size_t count = place(mSize).chunkSize;
        T* chunk = arena.allocateArray<T>(count);
        mChunks.push_back(chunk);
        mNext = reinterpret_cast<std::byte*>(chunk);
        mChunkEnd = reinterpret_cast<std::byte*>(chunk + count);
    }
    T* free = reinterpret_cast<T*>(mNext);
    mNext += sizeof(T);
    return free;
}

inline void EntryList::noteTime(double time)
{
    if (mSize % kBlock == 0) {
        mLatestBefore.push_back(mLatest);
    }
    if (mSize == 0 || time >= mLatest) {
        mLatest = time;
    } else {
        mSorted = false;
    }
    ++mSize;
}

inline const RecordEntry* EntryList::append(ChunkArena& arena, const RecordEntry& entry)
{
    RecordEntry* stored = new (slot<RecordEntry>(arena)) RecordEntry(entry);
    noteTime(entry.time);
    return stored;
}

inline void EntryList::append(ChunkArena& arena, const RecordEntry* entry)
{
    *slot<const RecordEntry*>(arena) = entry;
    noteTime(entry->time);
}

inline EntryList::Iterator& EntryList::Iterator::operator++()
{
    ++mPosition;
    if (--mLeft == 0) {
        enterChunk();
    } else if (mList->mKind == Kind::Owning) {
        mAt = static_cast<const RecordEntry*>(mAt) + 1;
    } else {
        mAt = static_cast<const RecordEntry* const*>(mAt) + 1;
    }
    return *this;
}

inline EntryList::Iterator EntryList::Iterator::operator++(int)
{
    Iterator before = *this;
    ++*this;
    return before;
}

inline EntryList::Iterator EntryList::begin() const
{
    return {this, 0};
}
inline EntryList::Iterator EntryList::end() const
{
    return {this, mSize};
}

} // namespace VELIX
