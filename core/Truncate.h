#pragma once

#include <cstdint>
#include <limits>

namespace VELIX {

/// Truncates towards zero. What does not fit an int (NaN too) becomes the smallest int, as the
/// processor's own conversion does it, but without undefined behaviour.
constexpr std::int32_t truncateToInt(double value)
{
    constexpr double kSmallest = -2147483648.0;
    constexpr double kBeyond = 2147483648.0;
    if (value > kSmallest - 1.0 && value < kBeyond) {
        return static_cast<std::int32_t>(value);
    }
    return std::numeric_limits<std::int32_t>::min();
}

} // namespace VELIX
