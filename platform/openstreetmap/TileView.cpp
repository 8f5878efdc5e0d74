#include "platform/openstreetmap/TileView.h"

#include <algorithm>
#include <cmath>

namespace OpenStreet {

namespace {

/// Far more than any window shows; a limit, should a caller's numbers be wild.
constexpr int kMostTilesAcross = 64;

} // namespace

int tileZoom(const MapProjection& projection)
{
    const double worldPixels = 2.0 * kMercatorHalf / projection.metresPerPixelX();
    const double zoom = std::floor(std::log2(worldPixels / kTilePixels));
    return static_cast<int>(std::clamp(zoom, 0.0, static_cast<double>(kLargestZoom)));
}

std::vector<PlacedTile> visibleTiles(const MapProjection& projection)
{
    const int zoom = tileZoom(projection);
    const int count = 1 << zoom;
    const double tile = 2.0 * kMercatorHalf / count;
    const double width = projection.windowWidth();
    const double height = projection.windowHeight();
    const MercatorPoint upperLeft = projection.windowToMercator({0.0, 0.0});
    const MercatorPoint lowerRight = projection.windowToMercator({width, height});
    const auto column = [&](double x) { return std::floor((x + kMercatorHalf) / tile); };
    const auto row = [&](double y) { return std::floor((kMercatorHalf - y) / tile); };
    const double left = column(upperLeft.x);
    const double right = std::min(column(lowerRight.x), left + kMostTilesAcross);
    const double top = std::clamp(row(upperLeft.y), 0.0, count - 1.0);
    const double bottom =
        std::clamp(row(lowerRight.y), 0.0, std::min(count - 1.0, top + kMostTilesAcross));

    std::vector<PlacedTile> tiles;
    for (double y = top; y <= bottom; ++y) {
        for (double x = left; x <= right; ++x) {
            PlacedTile placed;
            const double wrapped = x - std::floor(x / count) * count;
            placed.address = {zoom, static_cast<int>(wrapped), static_cast<int>(y)};
            placed.topLeft =
                projection.mercatorToWindow({x * tile - kMercatorHalf, kMercatorHalf - y * tile});
            placed.bottomRight = projection.mercatorToWindow(
                {(x + 1.0) * tile - kMercatorHalf, kMercatorHalf - (y + 1.0) * tile});
            tiles.push_back(placed);
        }
    }
    const auto distance = [&](const PlacedTile& placed) {
        return std::hypot((placed.topLeft.x + placed.bottomRight.x - width) / 2.0,
                          (placed.topLeft.y + placed.bottomRight.y - height) / 2.0);
    };
    std::sort(tiles.begin(), tiles.end(),
              [&](const PlacedTile& a, const PlacedTile& b) { return distance(a) < distance(b); });
    return tiles;
}

std::array<double, 4> partOfAncestor(const TileAddress& tile, const TileAddress& ancestor)
{
    const int across = 1 << (tile.zoom - ancestor.zoom);
    const double size = 1.0 / across;
    const double left = (tile.x - ancestor.x * across) * size;
    const double top = (tile.y - ancestor.y * across) * size;
    return {left, top, left + size, top + size};
}

} // namespace OpenStreet
