#include "card/ChunkArena.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include <sys/mman.h>

namespace VELIX {

namespace {

constexpr std::size_t kSmallestBlock = std::size_t{64} << 10U;
constexpr std::size_t kLargestBlock = std::size_t{64} << 20U;
constexpr std::size_t kHugePage = std::size_t{2} << 20U;

constexpr std::size_t roundedUp(std::size_t bytes, std::size_t unit)
{
    return (bytes + unit - 1) / unit * unit;
}

} // namespace

void ChunkArena::Free::operator()(void* block) const
{
    std::free(block);
}

void* ChunkArena::allocate(std::size_t bytes)
{
    const std::size_t needed = roundedUp(bytes, alignof(std::max_align_t));
    if (needed > static_cast<std::size_t>(mEnd - mNext)) {
        addBlock(needed);
    }
    void* memory = mNext;
    mNext += needed;
    mUsed += needed;
    return memory;
}

void ChunkArena::addBlock(std::size_t atLeast)
{
    mBlockSize = mBlockSize == 0 ? kSmallestBlock : std::min(mBlockSize * 4, kLargestBlock);
    const std::size_t wanted = std::max(mBlockSize, atLeast);
    const bool large = wanted >= kHugePage;
    const std::size_t alignment = large ? kHugePage : alignof(std::max_align_t);
    const std::size_t size = roundedUp(wanted, alignment);
    void* block = std::aligned_alloc(alignment, size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    if (large) {
        ::madvise(block, size, MADV_HUGEPAGE); // only advice: small pages work as well
    }
    mBlocks.emplace_back(block);
    mNext = static_cast<std::byte*>(block);
    mEnd = mNext + size;
}

} // namespace VELIX
