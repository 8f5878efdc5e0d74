#pragma once

namespace VELIX {

/// The values at the bottom and at the top of a Y scale; maximum is always above minimum.
struct GraphYScale
{
    static constexpr double kDefaultSpread = 0.1;

    double minimum = -0.5;
    double maximum = 1.5;

    /// The scale that shows values from @p low to @p high with a margin of @p spread times their
    /// distance at both ends, or of 0.0001 when they are closer together than 0.001.
    [[nodiscard]] static GraphYScale autoscale(double low, double high,
                                               double spread = kDefaultSpread);

    /// The scale between two values in any order; equal or nearly equal ones are drawn apart as
    /// autoscale() does.
    [[nodiscard]] static GraphYScale fixed(double a, double b);

    [[nodiscard]] double span() const { return maximum - minimum; }
    /// 0 at the bottom, 1 at the top; outside that range for values beyond the scale.
    [[nodiscard]] double fraction(double value) const { return (value - minimum) / span(); }
    [[nodiscard]] double value(double fraction) const { return minimum + fraction * span(); }
};

} // namespace VELIX
