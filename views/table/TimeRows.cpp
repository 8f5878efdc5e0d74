#include "views/table/TimeRows.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace VELIX {

namespace {

using Keys = std::vector<std::uint32_t>;

/// Returns the keys of all lists; a run of equal keys in one list counts once.
Keys collect(const std::vector<const EntryList*>& lists)
{
    Keys keys;
    for (const EntryList* list : lists) {
        bool first = true;
        for (const RecordEntry& entry : *list) {
            if (first || keys.back() != rowKey(entry)) {
                keys.push_back(rowKey(entry));
            }
            first = false;
        }
    }
    return keys;
}

void sortUnique(Keys& keys)
{
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
}

/// The same with one bit per possible key, for keys that are close together.
void sortUniqueDense(Keys& keys, std::uint32_t lowest, std::uint64_t range)
{
    constexpr std::uint32_t kBits = std::numeric_limits<std::uint64_t>::digits;
    std::vector<std::uint64_t> present(range / kBits + 1);
    for (const std::uint32_t key : keys) {
        const std::uint32_t at = key - lowest;
        present[at / kBits] |= std::uint64_t{1} << (at % kBits);
    }
    keys.clear();
    for (std::size_t word = 0; word < present.size(); ++word) {
        for (std::uint64_t bits = present[word]; bits != 0; bits &= bits - 1) {
            keys.push_back(lowest + static_cast<std::uint32_t>(word * kBits) +
                           static_cast<std::uint32_t>(std::countr_zero(bits)));
        }
    }
}

} // namespace

TimeRows::TimeRows(const std::vector<const EntryList*>& lists) : mKeys(collect(lists))
{
    if (mKeys.empty()) {
        return;
    }
    const auto [lowest, highest] = std::minmax_element(mKeys.begin(), mKeys.end());
    const std::uint64_t range = std::uint64_t{*highest} - *lowest + 1;
    // A damaged time may be years ahead; then bits would take more memory than the keys.
    constexpr std::uint64_t kBitsPerKey = 32;
    if (range / kBitsPerKey <= mKeys.size()) {
        sortUniqueDense(mKeys, *lowest, range);
    } else {
        sortUnique(mKeys);
    }
    mKeys.shrink_to_fit();
}

std::size_t TimeRows::row(std::uint32_t key, std::size_t last) const
{
    constexpr std::size_t kNear = 4;
    const std::size_t nearEnd = std::min(last + kNear, mKeys.size());
    for (std::size_t row = last; row < nearEnd; ++row) {
        if (mKeys[row] == key) {
            return row;
        }
    }
    return static_cast<std::size_t>(std::lower_bound(mKeys.begin(), mKeys.end(), key) -
                                    mKeys.begin());
}

std::size_t TimeRows::rowAt(std::uint32_t key) const
{
    const auto above = std::upper_bound(mKeys.begin(), mKeys.end(), key);
    return above == mKeys.begin() ? 0 : static_cast<std::size_t>(above - mKeys.begin()) - 1;
}

} // namespace VELIX
