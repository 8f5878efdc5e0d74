#pragma once

#include "card/EntryList.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace VELIX {

/// Returns the key of a sample's row: its time in tenths of a second, read as unsigned.
inline std::uint32_t rowKey(const RecordEntry& entry)
{
    return static_cast<std::uint32_t>(entry.time10);
}

/// The rows of a table of samples: every tenth of a second at which one of its lists has a
/// sample, in ascending order.
class TimeRows
{
public:
    TimeRows() = default;
    explicit TimeRows(const std::vector<const EntryList*>& lists);

    std::size_t size() const { return mKeys.size(); }
    bool empty() const { return mKeys.empty(); }
    std::uint32_t key(std::size_t row) const { return mKeys[row]; }

    /// Returns the row of a key that one of the lists has. Samples come mostly in order, so the
    /// search begins at the row found last.
    std::size_t row(std::uint32_t key, std::size_t last) const;
    /// Returns the row that applies at a key: that of the greatest key not above it, or row 0. Not
    /// for an empty table.
    std::size_t rowAt(std::uint32_t key) const;

private:
    std::vector<std::uint32_t> mKeys;
};

} // namespace VELIX
