#pragma once

#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/TileAddress.h"
#include "platform/openstreetmap/TileView.h"
#include "platform/tessel/opengl/FrameCache.h"

#include <set>
#include <vector>

namespace OpenStreet {

class MapPainter;

/// The map as it was last drawn: while it does not move, showing it costs a copy and the drawing
/// of what has arrived since. The context rule of Tessel::OpenGL::FrameCache holds.
class MapFrame
{
public:
    /// What decides how the map looks, apart from the images that are there.
    struct Look
    {
        MapProjection projection;
        bool tiles = true; ///< or the outline alone
        bool shading = false;
        double brightness = 1.0;

        bool operator==(const Look&) const = default;
    };

    explicit MapFrame(MapPainter& painter) : mPainter(painter) {}

    /// Draws the map to the current frame buffer.
    /// @param placed the tiles of the window
    /// @param arrived those whose image or shade differs from when the map was last shown
    void show(const Look& look, const std::vector<PlacedTile>& placed,
              const std::set<TileAddress>& arrived);
    /// Has all drawn again, since something has changed that show() does not know of.
    void setStale() { mStale = true; }
    void release();

private:
    void draw(const Look& look, const std::vector<PlacedTile>& placed);
    bool drawArrived(const Look& look, const std::vector<PlacedTile>& placed,
                     const std::set<TileAddress>& arrived);

    MapPainter& mPainter;
    Tessel::OpenGL::FrameCache mBuffer;
    Look mLook; ///< of the frame in the buffer
    bool mStale = true;
};

} // namespace OpenStreet
