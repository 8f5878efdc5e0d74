#pragma once

#include "platform/openstreetmap/CoastLines.h"
#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/TileTextures.h"
#include "platform/openstreetmap/TileView.h"
#include "platform/tessel/opengl/GlHandler.h"
#include "platform/tessel/opengl/Lines.h"
#include "platform/tessel/opengl/Texture.h"
#include "platform/tessel/opengl/TextureFont.h"

#include <vector>

namespace OpenStreet {

/// Draws the map from the images that are there. The context rule of Tessel::OpenGL::GlHandler
/// holds.
class MapPainter
{
public:
    [[nodiscard]] TileTextures& tiles() { return mTiles; }
    [[nodiscard]] TileTextures& shades() { return mShades; }
    [[nodiscard]] CoastLines& coast() { return mCoast; }
    [[nodiscard]] Tessel::OpenGL::TextureFont& font() { return mFont; }

    [[nodiscard]] double labelTop() const { return mLabelTop; }
    /// Where the labels of the meridians begin; those of parallels keep below them.
    void setLabelTop(double pixels) { mLabelTop = pixels; }

    /// Makes the window's pixels the units of all that is drawn until the next begin().
    void begin(const MapProjection& projection);
    static void drawBackground();
    /// Draws background, graticule and coasts.
    void drawOutline(const MapProjection& projection);
    /// Draws each tile itself, or its stand-in.
    void drawTiles(const std::vector<PlacedTile>& tiles, double brightness);
    void drawShades(const std::vector<PlacedTile>& tiles);
    /// Whether each tile is there itself or in an ancestor.
    [[nodiscard]] bool covers(const std::vector<PlacedTile>& tiles) const;
    /// Whether anything is drawn for the tile: itself, or its stand-in.
    [[nodiscard]] bool shows(const PlacedTile& tile) const;

    void release();

private:
    bool drawAncestor(TileTextures& textures, const PlacedTile& tile,
                      const Tessel::OpenGL::Color& color);
    void prepareTextures();
    [[nodiscard]] bool hasDescendant(const TileAddress& tile, int levels) const;
    void drawDescendants(const PlacedTile& tile, int levels, const Tessel::OpenGL::Color& color);

    Tessel::OpenGL::GlHandler mGl;
    TileTextures mTiles;
    TileTextures mShades;
    CoastLines mCoast;
    Tessel::OpenGL::Texture mFirst; ///< drawn once, see prepareTextures()
    bool mPrepared = false;
    Tessel::OpenGL::TextureFont mFont;
    double mLabelTop = 0.0;
    Tessel::OpenGL::Lines mGrid;
    Tessel::OpenGL::Lines mCoastLines;
};

} // namespace OpenStreet
