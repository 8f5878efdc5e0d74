#pragma once

namespace VELIX {

struct MapContext;

/// Lets the view glide to the aircraft instead of jumping there.
class MapFollower
{
public:
    /// Takes a range (m) to glide to with the next frames.
    void setRange(double range) { mRange = range; }
    /// Ends gliding to a range: the user chose another one.
    void keepRange() { mRange = 0.0; }

    /// Moves by one frame towards an aircraft (degrees); false when it is in the middle.
    bool step(MapContext& context, double latitude, double longitude);

private:
    double mRange = 0.0; ///< m; 0: the range stays
};

} // namespace VELIX
