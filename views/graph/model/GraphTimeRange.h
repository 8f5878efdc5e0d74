#pragma once

namespace VELIX {

/// The stretch of time that the graph shows, and what can be done to it. Times are seconds.
///
/// Both ends are kept as they were set, also while they are the wrong way round between two calls
/// that set one end each; what divides by the width uses span(), which is never below kMinSpan.
/// Ends that are not finite are ignored.
class GraphTimeRange
{
public:
    static constexpr double kMinSpan = 1e-6; ///< seconds
    static constexpr double kMaxSpan =
        1e9; ///< seconds; keeps endless zooming out within what can be computed

    GraphTimeRange() = default;
    GraphTimeRange(double xmin, double xmax);

    [[nodiscard]] double xmin() const { return mXmin; }
    [[nodiscard]] double xmax() const { return mXmax; }
    [[nodiscard]] double span() const;
    [[nodiscard]] bool contains(double time) const { return time >= mXmin && time <= mXmax; }

    void setXmin(double xmin);
    void setXmax(double xmax);
    /// Moves the range so that it begins at @p t0.
    void moveStartTo(double t0);
    /// Moves the range so that it ends at @p t1.
    void moveEndTo(double t1);
    void centerOn(double time);
    /// Sets the width in seconds, limited to kMinSpan..kMaxSpan, and keeps the start or the end
    /// where it is.
    void setSpanFromStart(double span);
    void setSpanFromEnd(double span);
    /// Multiplies the distance of both ends from @p pivot by @p factor.
    /// @return false and no change when the width would leave kMinSpan..kMaxSpan
    bool zoomAbout(double pivot, double factor);

    bool operator==(const GraphTimeRange& other) const = default;

private:
    void set(double xmin, double xmax);

    double mXmin = 0.0;
    double mXmax = 60.0;
};

} // namespace VELIX
