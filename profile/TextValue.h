#pragma once

#include <cstdint>

namespace VELIX {

/// The value that a display text shows and that thresholds judge, before it becomes characters.
struct TextValue
{
    enum class Kind {
        Fixed,      ///< number with fixed decimals, converted to the unit system
        General,    ///< number in general notation
        Integer,    ///< whole number
        StrictEnum, ///< bit field whose label must exist
        Enum,       ///< bit field with an optional label
        Undecoded,  ///< type without a decoder
    };
    Kind kind = Kind::Undecoded;
    double number = 0.0;
    std::int32_t integer = 0;
};

} // namespace VELIX
