#pragma once

#include <cstdint>

namespace VELIX {

/// Bytes of memory that the system could give to this program now; 0 if that cannot be told.
std::uint64_t freeMemory();

} // namespace VELIX
