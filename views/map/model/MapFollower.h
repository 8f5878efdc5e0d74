#pragma once

namespace VELIX {

struct MapContext;

/// Lets the view glide to the aircraft instead of jumping there.
class MapFollower
{
public:
    /// A range (m) to glide to with the next frames.
    void setRange(double range) { mRange = range; }
    /// The user chose another range, which stays.
    void keepRange() { mRange = 0.0; }

    /// One frame towards an aircraft (degrees); false when it is in the middle.
    bool step(MapContext& context, double latitude, double longitude);

private:
    double mRange = 0.0; ///< m; 0: the range is as it shall be
};

} // namespace VELIX
