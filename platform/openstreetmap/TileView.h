#pragma once

#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/TileAddress.h"

#include <array>
#include <vector>

namespace OpenStreet {

/// A tile and where it appears. The same tile appears several times where the window shows more
/// than one world.
struct PlacedTile
{
    TileAddress address;
    WindowPoint topLeft;
    WindowPoint bottomRight;
};

/// The zoom at which one pixel of a tile covers at least one and less than two device pixels, as
/// far as tiles exist.
int tileZoom(const MapProjection& projection);

/// The tiles that the window shows, nearest to its centre first.
std::vector<PlacedTile> visibleTiles(const MapProjection& projection);

/// Returns the part of an ancestor's image that a tile covers: left, top, right and bottom as
/// fractions. `ancestor` must hold `tile`.
std::array<double, 4> partOfAncestor(const TileAddress& tile, const TileAddress& ancestor);

} // namespace OpenStreet
