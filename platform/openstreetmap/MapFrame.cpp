// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "platform/openstreetmap/MapFrame.h"
#include "platform/openstreetmap/MapPainter.h"

#include <algorithm>
#include <iterator>

namespace OpenStreet {

void MapFrame::show(const Look& look, const std::vector<PlacedTile>& placed,
                    const std::set<TileAddress>& arrived)
{
    const QSize size(look.projection.windowWidth(), look.projection.windowHeight());
    const bool isKept = !mStale && mLook == look && mBuffer.holds(size);
    GLint target = 0;
    glGetIntegerv(GL_FRAMEBUFFER_BINDING, &target);
    if (!isKept || !arrived.empty()) {
        if (!Tessel::OpenGL::FrameCache::isSupported() || !mBuffer.begin(size)) {
            draw(look, placed);
            return;
        }
        if (!isKept || !drawArrived(look, placed, arrived)) {
            draw(look, placed);
        }
        mBuffer.end();
        mLook = look;
        mStale = false;
    }
    mBuffer.copyTo(static_cast<GLuint>(target));
}

void MapFrame::release()
{
    mBuffer.release();
    mStale = true;
}

void MapFrame::draw(const Look& look, const std::vector<PlacedTile>& placed)
{
    if (!look.tiles) {
        mPainter.drawOutline(look.projection);
        return;
    }
    if (mPainter.covers(placed)) {
        MapPainter::drawBackground(); // north and south of the map
    } else {
        mPainter.drawOutline(look.projection);
    }
    mPainter.drawTiles(placed, look.brightness);
    if (look.shading) {
        mPainter.drawShades(placed);
    }
}

/// Over the rest, which stays; false if what has arrived shows elsewhere, too, or shows what is
/// behind it.
bool MapFrame::drawArrived(const Look& look, const std::vector<PlacedTile>& placed,
                           const std::set<TileAddress>& arrived)
{
    std::vector<PlacedTile> tiles;
    std::copy_if(placed.begin(), placed.end(), std::back_inserter(tiles),
                 [&](const PlacedTile& tile) { return arrived.count(tile.address) > 0; });
    std::set<TileAddress> hidden;
    for (const PlacedTile& tile : tiles) {
        const Tessel::OpenGL::Texture* texture = mPainter.tiles().use(tile.address);
        if (texture != nullptr && texture->isOpaque()) {
            hidden.insert(tile.address);
        }
    }
    if (hidden.size() != arrived.size()) {
        return false;
    }
    mPainter.drawTiles(tiles, look.brightness);
    if (look.shading) {
        mPainter.drawShades(tiles);
    }
    return true;
}

} // namespace OpenStreet
