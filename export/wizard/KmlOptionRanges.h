#pragma once

namespace VELIX::KmlOptionRanges {

/// The numbers that the user may choose; those of a settings file are limited to them.
struct Range
{
    int least;
    int most;
};

constexpr Range kTimeStep = {1, 60};  ///< s
constexpr Range kLineWidth = {1, 6};  ///< pixels
constexpr Range kInterval = {5, 600}; ///< path points
constexpr Range kAlpha = {0, 255};

} // namespace VELIX::KmlOptionRanges
