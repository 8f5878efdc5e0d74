#pragma once

#include <string>

namespace VELIX {

class Property;

/// Where map tiles come from, how many are kept and how the terrain is shaded, as the settings
/// keep it.
struct MapSettings
{
    /// Reads what the settings hold. A limit that is no number or below 1 counts as the default
    /// one.
    static MapSettings read(const Property& settings);
    /// Puts all values into the settings; the caller writes their file.
    void store(Property& settings) const;

    std::string tileServer = "https://tile.openstreetmap.org/"; ///< base address, by zoom, x and y
    int cacheLimit = 500;                                       ///< of tiles on disk, in MB
    bool shading = true;
    double contrast = 1.0;
    double brightness = 1.0;
    double factor = 0.5; ///< strength of the terrain's slopes
};

} // namespace VELIX
