#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace VELIX {

/// One captured CAN message as it is stored in a record file, with its decoded time.
///
/// The first 28 bytes mirror the file's entry (words in host order): a profile parameter's
/// startByte indexes them, so their layout is part of the profile's contract.
struct RecordEntry
{
    std::array<std::uint8_t, 8> data{}; ///< payload in bus order; byte 1 is the message's type code
    std::uint8_t aux8 = 0;
    std::uint8_t aux9 = 0;
    std::uint16_t source = 0; ///< 0 and 1 select a collective list, other values are only carried
    std::uint32_t id = 0;     ///< CAN identifier
    std::uint16_t aux16 = 0;
    std::uint16_t aux18 = 0;
    std::uint32_t timeHigh = 0; ///< upper word of the tick count (1 tick = 31.25 ns)
    std::uint32_t timeLow = 0;

    double time = 0.0;       ///< seconds on the unit's clock
    std::int32_t time10 = 0; ///< the same in tenths of a second, rounded half up
    bool flag = false;       ///< false when read; free for consumers
};

/// Bytes of a RecordEntry that a parameter can address.
inline constexpr std::size_t kEntryBytes = 28;

static_assert(offsetof(RecordEntry, id) == 12 && offsetof(RecordEntry, timeLow) == 24,
              "the entry mirrors the file layout");

/// Converts a 64-bit tick count (31.25 ns a tick) to seconds on the unit's clock.
/// The order of the operations is fixed: displays and exports are compared to the last digit.
constexpr double ticksToSeconds(std::uint32_t high, std::uint32_t low)
{
    return static_cast<double>(low) * 31.25 * 1e-9 + static_cast<double>(high) * 134.217728;
}

/// Returns the key of a tenth of a second under which views file a time; times before 0 become key
/// 0.
constexpr std::uint32_t timeKey(double seconds)
{
    const double tenths = seconds * 10.0 + 0.5;
    if (!(tenths >= 0.0)) {
        return 0;
    }
    return tenths < 4294967295.0 ? static_cast<std::uint32_t>(tenths) : 4294967295U;
}

} // namespace VELIX
