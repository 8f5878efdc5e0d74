#include "platform/openstreetmap/HillShading.h"

#include "platform/openstreetmap/TerrainStore.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace OpenStreet {

namespace {

/// From here on a tile touches four files at most.
constexpr int kSmallestZoom = 9;
constexpr int kPixels = kTilePixels;

/// One row and column more on all sides, since a slope needs its neighbours.
HeightGrid heightsOf(TerrainStore& terrain, const TileAddress& tile)
{
    const double size = 2.0 * kMercatorHalf / (1 << tile.zoom);
    const double pixel = size / kPixels;
    const double left = tile.x * size - kMercatorHalf;
    const double top = kMercatorHalf - tile.y * size;
    const GeoPoint middle = fromMercator({left, top - size / 2.0});
    HeightGrid grid;
    grid.columns = kPixels + 2;
    grid.rows = kPixels + 2;
    grid.spacingX = pixel * std::cos(middle.latitude * std::numbers::pi / 180.0);
    grid.spacingY = grid.spacingX;
    grid.heights.reserve(static_cast<std::size_t>(grid.columns) *
                         static_cast<std::size_t>(grid.rows));
    for (int row = 0; row < grid.rows; ++row) {
        GeoPoint place = fromMercator({left, top - (row - 0.5) * pixel});
        for (int column = 0; column < grid.columns; ++column) {
            place.longitude = 180.0 * (left + (column - 0.5) * pixel) / kMercatorHalf;
            grid.heights.push_back(terrain.height(place));
        }
    }
    return grid;
}

bool coversAny(TerrainStore& terrain, const TileAddress& tile)
{
    const double size = 2.0 * kMercatorHalf / (1 << tile.zoom);
    for (const double x : {0.0, 1.0}) {
        for (const double y : {0.0, 1.0}) {
            if (terrain.covers(fromMercator(
                    {(tile.x + x) * size - kMercatorHalf, kMercatorHalf - (tile.y + y) * size}))) {
                return true;
            }
        }
    }
    return false;
}

QRgb overlay(double shade)
{
    const bool dark = shade < 1.0;
    const int alpha =
        static_cast<int>(std::lround(255.0 * (dark ? 1.0 - shade : (shade - 1.0) / 2.0)));
    const int tone = dark ? 0 : alpha; // premultiplied
    return qRgba(tone, tone, tone, alpha);
}

} // namespace

double shadeAt(const HeightGrid& grid, int column, int row, const ShadingStyle& style)
{
    std::array<double, 9> z{};
    for (int i = 0; i < 9; ++i) {
        z[static_cast<std::size_t>(i)] = grid.at(column - 1 + i % 3, row - 1 + i / 3);
    }
    const double east =
        ((z[2] + 2.0 * z[5] + z[8]) - (z[0] + 2.0 * z[3] + z[6])) / (8.0 * grid.spacingX);
    const double north =
        ((z[0] + 2.0 * z[1] + z[2]) - (z[6] + 2.0 * z[7] + z[8])) / (8.0 * grid.spacingY);
    if (std::isnan(east) || std::isnan(north) || !(style.lightZ > 0.0)) {
        return 1.0;
    }
    const double light = std::hypot(style.lightX, style.lightY, style.lightZ);
    const double normal = std::hypot(east, north, 1.0);
    const double lit = std::max(0.0, (-east * style.lightX - north * style.lightY + style.lightZ) /
                                         (light * normal));
    const double relative = lit / (style.lightZ / light);
    const double shown = style.brightness * (1.0 + style.contrast * (relative - 1.0));
    return std::clamp(1.0 + style.factor * (shown - 1.0), 0.0, 2.0);
}

QImage shadeTile(TerrainStore& terrain, const TileAddress& tile, const ShadingStyle& style)
{
    if (tile.zoom < kSmallestZoom || !coversAny(terrain, tile)) {
        return {};
    }
    const HeightGrid grid = heightsOf(terrain, tile);
    QImage image(kPixels, kPixels, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < kPixels; ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row)); // NOLINT: as the toolkit has it
        for (int column = 0; column < kPixels; ++column) {
            line[column] = overlay(shadeAt(grid, column + 1, row + 1, style));
        }
    }
    return image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

} // namespace OpenStreet
