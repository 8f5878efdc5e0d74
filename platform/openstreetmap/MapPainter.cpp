#include "platform/openstreetmap/MapPainter.h"

#include "platform/openstreetmap/Graticule.h"
#include "platform/tessel/opengl/Gl.h"

#include <algorithm>

namespace OpenStreet {

namespace {

using Tessel::OpenGL::Color;

constexpr Color kBackground{0.937F, 0.949F, 0.961F, 1.0F};
constexpr Color kGridColor{0.78F, 0.82F, 0.86F, 1.0F};
constexpr Color kCoastColor{0.36F, 0.46F, 0.56F, 1.0F};
constexpr Color kLabelColor{0.36F, 0.41F, 0.47F, 1.0F};
constexpr double kGridPixels = 140.0;
/// The same in heights of a label, so that the longest ones stay apart on dense screens, too.
constexpr double kGridLines = 10.0;
constexpr double kLabelGap = 4.0;
/// A tile four zooms up is a few pixels of colour: it distinguishes sea from land, no more.
constexpr int kMostAncestors = 5;
/// Sixteen small tiles instead of a large one.
constexpr int kMostDescendants = 2;

float toFloat(double pixels)
{
    return static_cast<float>(pixels);
}

} // namespace

void MapPainter::begin(const MapProjection& projection)
{
    mGl.matrices().reset();
    // Sizes are positive by the projection's rule.
    static_cast<void>(
        mGl.matrices().setOrtho(0.0, projection.windowWidth(), projection.windowHeight(), 0.0));
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    prepareTextures();
}

/// Drivers compile a program for what it draws when it first draws it, which takes them tens of
/// milliseconds: better with the first frame than in the middle of a drag.
void MapPainter::prepareTextures()
{
    if (!mPrepared) {
        mPrepared = true;
        for (const QImage::Format format :
             {QImage::Format_RGBX8888, QImage::Format_RGBA8888_Premultiplied}) {
            QImage nothing(1, 1, format);
            nothing.fill(Qt::transparent);
            mFirst.setImage(nothing);
            mFirst.render(mGl, 0.0, 0.0, 1.0, 1.0);
        }
    }
}

void MapPainter::drawBackground()
{
    glClearColor(kBackground.red, kBackground.green, kBackground.blue, kBackground.alpha);
    glClear(GL_COLOR_BUFFER_BIT);
}

void MapPainter::drawOutline(const MapProjection& projection)
{
    drawBackground();
    const float width = toFloat(projection.windowWidth());
    const float height = toFloat(projection.windowHeight());
    const double step =
        graticuleStep(projection, std::max(kGridPixels, kGridLines * mFont.height()));
    const std::vector<GraticuleLine> lines = graticule(projection, step);
    mGrid.clear();
    mGrid.setColor(kGridColor);
    for (const GraticuleLine& line : lines) {
        const float at = toFloat(line.position);
        if (line.meridian) {
            mGrid.addLine(at, 0.0F, at, height);
        } else {
            mGrid.addLine(0.0F, at, width, at);
        }
    }
    mGrid.render(mGl.lines(), mGl.matrices());

    mCoastLines.clear();
    mCoastLines.setColor(kCoastColor);
    mCoastLines.setWidth(1.5F);
    const std::vector<WindowPoint> segments = mCoast.segments(projection);
    for (std::size_t i = 0; i + 1 < segments.size(); i += 2) {
        mCoastLines.addLine(toFloat(segments[i].x), toFloat(segments[i].y),
                            toFloat(segments[i + 1].x), toFloat(segments[i + 1].y));
    }
    mCoastLines.render(mGl.lines(), mGl.matrices());

    mFont.setColor(kLabelColor);
    const double top = mLabelTop + kLabelGap;
    for (const GraticuleLine& line : lines) {
        const double above = line.position - mFont.height() - 1.0;
        if (line.meridian) {
            mFont.render(mGl, line.position + kLabelGap, top, line.label);
        } else if (above > top + mFont.height()) {
            mFont.render(mGl, kLabelGap, above, line.label);
        }
    }
}

bool MapPainter::covers(const std::vector<PlacedTile>& tiles) const
{
    return std::all_of(tiles.begin(), tiles.end(), [this](const PlacedTile& placed) {
        TileAddress tile = placed.address;
        for (int level = 0; level <= kMostAncestors; ++level) {
            if (mTiles.has(tile)) {
                return true;
            }
            tile = tile.parent();
        }
        return false;
    });
}

bool MapPainter::shows(const PlacedTile& tile) const
{
    return covers({tile}) || hasDescendant(tile.address, kMostDescendants);
}

bool MapPainter::hasDescendant(const TileAddress& tile, int levels) const
{
    for (int quarter = 0; levels > 0 && quarter < 4; ++quarter) {
        const TileAddress child{tile.zoom + 1, tile.x * 2 + quarter % 2, tile.y * 2 + quarter / 2};
        if (mTiles.has(child) || hasDescendant(child, levels - 1)) {
            return true;
        }
    }
    return false;
}

void MapPainter::drawTiles(const std::vector<PlacedTile>& tiles, double brightness)
{
    const float light = toFloat(std::clamp(brightness, 0.0, 1.0));
    const Color color{light, light, light, 1.0F};
    for (const PlacedTile& placed : tiles) {
        drawAncestor(mTiles, placed, color);
        if (!mTiles.has(placed.address)) {
            drawDescendants(placed, kMostDescendants, color);
        }
    }
}

void MapPainter::drawShades(const std::vector<PlacedTile>& tiles)
{
    for (const PlacedTile& placed : tiles) {
        drawAncestor(mShades, placed, {});
    }
}

/// The tile itself or the nearest of its ancestors; false if there is neither.
bool MapPainter::drawAncestor(TileTextures& textures, const PlacedTile& tile, const Color& color)
{
    TileAddress ancestor = tile.address;
    for (int level = 0; level <= kMostAncestors; ++level) {
        if (Tessel::OpenGL::Texture* texture = textures.use(ancestor)) {
            texture->setColor(color);
            texture->renderPart(
                mGl, tile.topLeft.x, tile.topLeft.y, tile.bottomRight.x - tile.topLeft.x,
                tile.bottomRight.y - tile.topLeft.y, partOfAncestor(tile.address, ancestor));
            return true;
        }
        ancestor = ancestor.parent();
    }
    return false;
}

void MapPainter::drawDescendants(const PlacedTile& tile, int levels, const Color& color)
{
    if (levels == 0 || tile.address.zoom >= kLargestZoom) {
        return;
    }
    const double width = (tile.bottomRight.x - tile.topLeft.x) / 2.0;
    const double height = (tile.bottomRight.y - tile.topLeft.y) / 2.0;
    for (int quarter = 0; quarter < 4; ++quarter) {
        const int right = quarter % 2;
        const int down = quarter / 2;
        PlacedTile child;
        child.address = {tile.address.zoom + 1, tile.address.x * 2 + right,
                         tile.address.y * 2 + down};
        child.topLeft = {tile.topLeft.x + right * width, tile.topLeft.y + down * height};
        child.bottomRight = {child.topLeft.x + width, child.topLeft.y + height};
        if (Tessel::OpenGL::Texture* texture = mTiles.use(child.address)) {
            texture->setColor(color);
            texture->render(mGl, child.topLeft.x, child.topLeft.y, width, height);
        } else {
            drawDescendants(child, levels - 1, color);
        }
    }
}

void MapPainter::release()
{
    mTiles.clear();
    mShades.clear();
    mFirst.release();
    mPrepared = false;
    mFont.release();
    mGrid.release();
    mCoastLines.release();
    mGl.release();
}

} // namespace OpenStreet
