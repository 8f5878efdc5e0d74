#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace VELIX {

/// Memory that only grows and is given back as a whole.
///
/// Record files hold millions of entries; what costs time then is the first touch of fresh pages.
/// Blocks grow to 64 MiB and ask the system for huge pages, which cuts that cost several times.
class ChunkArena
{
public:
    /// Returns memory for `bytes`, aligned for any type; throws std::bad_alloc if there is none.
    void* allocate(std::size_t bytes);

    template <class T>
    T* allocateArray(std::size_t count)
    {
        return static_cast<T*>(allocate(count * sizeof(T)));
    }

    std::size_t used() const { return mUsed; } ///< bytes given out

private:
    struct Free
    {
        void operator()(void* block) const;
    };
    void addBlock(std::size_t atLeast);

    std::vector<std::unique_ptr<void, Free>> mBlocks;
    std::byte* mNext = nullptr;
    std::byte* mEnd = nullptr;
    std::size_t mBlockSize = 0;
    std::size_t mUsed = 0;
};

} // namespace VELIX
