#pragma once

#include <cstdint>

namespace VELIX {

/// Returns the bytes of memory that the system could give to this program now; 0 if unknown.
std::uint64_t freeMemory();

} // namespace VELIX
