#pragma once

#include "card/EntryList.h"

#include <cstdint>

namespace VELIX {

/// Returns the 32 error bits of a fault matrix message: payload bytes 4 to 7, big-endian, bit 0
/// lowest.
std::uint32_t faultWord(const RecordEntry& entry);

/// Returns the error bits in force at a time (s); 0 before the first and after the last sample.
/// A sample up to 0.01 s ahead of the time counts.
std::uint32_t faultWordAt(const EntryList& entries, double time);

} // namespace VELIX
