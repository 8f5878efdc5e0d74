#pragma once

#include <tuple>

namespace OpenStreet {

/// A tile of the map: at zoom z the world is 2^z tiles wide and high, x eastwards from 180 W, y
/// southwards from the northern edge.
struct TileAddress
{
    int zoom = 0;
    int x = 0;
    int y = 0;

    friend bool operator==(const TileAddress&, const TileAddress&) = default;
    friend bool operator<(const TileAddress& a, const TileAddress& b)
    {
        return std::tie(a.zoom, a.x, a.y) < std::tie(b.zoom, b.x, b.y);
    }

    /// The tile of four times the area that holds this one. Zoom 0 has none: itself.
    [[nodiscard]] TileAddress parent() const
    {
        return zoom == 0 ? *this : TileAddress{zoom - 1, x / 2, y / 2};
    }
};

inline constexpr int kLargestZoom = 19;
inline constexpr int kTilePixels = 256;

} // namespace OpenStreet
