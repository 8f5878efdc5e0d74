#pragma once

#include "platform/openstreetmap/TileAddress.h"
#include "platform/tessel/opengl/Texture.h"

#include <QImage>

#include <cstddef>
#include <list>
#include <map>

namespace OpenStreet {

/// The images of tiles in the graphics system; those not drawn for longest are dropped first. The
/// context rule of Tessel::OpenGL::Texture holds.
class TileTextures
{
public:
    /// A null image marks a tile of which nothing is to be drawn.
    void set(const TileAddress& tile, const QImage& image);
    [[nodiscard]] bool has(const TileAddress& tile) const { return mTiles.count(tile) > 0; }
    /// Null if there is none. The tile counts as used.
    Tessel::OpenGL::Texture* use(const TileAddress& tile);

    /// Drops what was used least lately, down to so many tiles; returns which.
    std::list<TileAddress> dropDownTo(std::size_t count);
    void clear();

private:
    struct Tile
    {
        Tessel::OpenGL::Texture texture;
        std::list<TileAddress>::iterator place;
    };

    std::map<TileAddress, Tile> mTiles;
    std::list<TileAddress> mOrder; ///< the first was used last
};

} // namespace OpenStreet
