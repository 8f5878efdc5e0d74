#pragma once

#include "platform/openstreetmap/TileAddress.h"

#include <QImage>

#include <vector>

namespace OpenStreet {

class TerrainStore;

/// How hills are lit.
struct ShadingStyle
{
    /// Towards the light: east, north, up; any length.
    double lightX = -1.0;
    double lightY = 1.0;
    double lightZ = 1.0;
    double contrast = 1.0;   ///< 0: no difference between slopes
    double brightness = 1.0; ///< of the lit ground; 1: level ground stays as it is
    double factor = 0.5;     ///< 0: no shading, 1: all of it

    friend bool operator==(const ShadingStyle&, const ShadingStyle&) = default;
};

/// Heights in a grid, row by row from the north-west, with the distances between neighbours.
struct HeightGrid
{
    int columns = 0;
    int rows = 0;
    double spacingX = 1.0; ///< metres
    double spacingY = 1.0; ///< metres
    std::vector<float> heights;

    [[nodiscard]] float at(int column, int row) const
    {
        return heights[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                       static_cast<std::size_t>(column)];
    }
};

/// The light on a place inside the grid as a multiple of that on level ground, 0 to 2, with slopes
/// after Horn (1981). 1 where a height is missing or the light comes from below.
double shadeAt(const HeightGrid& grid, int column, int row, const ShadingStyle& style);

/// Returns the shade of a tile, to be drawn over its image: black where it darkens, white where it
/// lights up. Null if there are no heights, or the tile is so large that slopes would be lost in
/// it.
QImage shadeTile(TerrainStore& terrain, const TileAddress& tile, const ShadingStyle& style);

} // namespace OpenStreet
