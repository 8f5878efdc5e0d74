#pragma once

namespace VELIX {

/// The two markers of a graph. Times are seconds; those that are not finite are ignored.
class GraphMarkers
{
public:
    [[nodiscard]] double first() const { return mFirst; }
    [[nodiscard]] double second() const { return mSecond; }
    [[nodiscard]] bool coincide() const { return mFirst == mSecond; }
    /// The earlier and the later one, whichever that is.
    [[nodiscard]] double start() const { return mFirst < mSecond ? mFirst : mSecond; }
    [[nodiscard]] double stop() const { return mFirst < mSecond ? mSecond : mFirst; }

    void set(double first, double second);
    /// Moves the first for a time left of the midpoint of both, else the second.
    void setNearer(double time);
    /// Swaps them if the first is later than the second.
    void sort();

    bool operator==(const GraphMarkers&) const = default;

private:
    double mFirst = 0.0;
    double mSecond = 0.0;
};

} // namespace VELIX
