#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace VELIX {

/// Appends a number with a fixed count of decimals (at most 12) and a point in every locale.
inline void appendFixed(double value, int decimals, std::string& out)
{
    if (std::isnan(value)) {
        out += "nan"; // without the sign that NaNs can carry
        return;
    }
    std::array<char, 330> text{}; // the largest double has 309 digits before its point
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals);
    out.append(text.data(), end.ptr);
}

} // namespace VELIX
