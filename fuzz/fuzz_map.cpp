// What the map reads from servers and disks: tile images, notes of their freshness, terrain files
// and coast lines.
//
// The last byte of the input says which of them the rest is.

#include "fuzz/FuzzFolder.h"
#include "platform/openstreetmap/CoastLines.h"
#include "platform/openstreetmap/HillShading.h"
#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/TerrainStore.h"
#include "platform/openstreetmap/TileImage.h"
#include "platform/openstreetmap/TileStore.h"

#include <QDir>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using namespace OpenStreet;
using namespace VELIX::Fuzz;

constexpr std::size_t kTerrainBytes = 1201U * 1201U * 2U;

void useTile(const QByteArray& bytes)
{
    const QImage image = decodeTile(bytes);
    require(image.isNull() || std::max(image.width(), image.height()) <= 1024,
            "an image larger than a tile was accepted");
}

void useMeta(const FuzzFolder& folder, const std::uint8_t* bytes, std::size_t size)
{
    QDir(folder.path()).mkpath(QStringLiteral("1/0"));
    folder.write("1/0/1.png", bytes, std::min<std::size_t>(size, 10));
    folder.write("1/0/1.meta", bytes, size);
    const TileStore store(folder.path());
    const TileAddress tile{1, 0, 1};
    const auto read = store.read(tile);
    require(read.has_value(), "an image with a damaged note was lost");
    require(store.refresh(tile, read->freshness), "a note could not be written");
    const auto again = store.read(tile);
    require(again.has_value() && again->freshness.expires == read->freshness.expires,
            "a note does not say what was written");
}

void useTerrain(const FuzzFolder& folder, const std::uint8_t* bytes, std::size_t size)
{
    // A file of another size is refused before its content is looked at.
    std::vector<std::uint8_t> file(kTerrainBytes);
    for (std::size_t i = 0; i < file.size() && size > 0; ++i) {
        file[i] = bytes[i % size];
    }
    folder.write("N48E011.hgt", file.data(), size % 7 == 0 ? size : file.size());
    TerrainStore terrain(folder.path());
    HeightGrid grid;
    grid.columns = 30;
    grid.rows = 30;
    for (int i = 0; i < grid.columns * grid.rows; ++i) {
        grid.heights.push_back(terrain.height({48.0 + i / 899.0, 11.0 + i % 31 / 30.0}));
    }
    for (int i = 1; i < grid.columns - 1; ++i) {
        const double shade = shadeAt(grid, i, i, {});
        require(shade >= 0.0 && shade <= 2.0, "a shade is out of range");
    }
}

void useCoast(const QByteArray& bytes)
{
    CoastLines coast;
    require(coast.parse(bytes) || coast.lines().empty(), "lines of a refused file were kept");
    MapProjection projection;
    projection.setWindowSize(800, 600);
    for (const double range : {50.0, 1.0e5, 7.0e7}) {
        projection.setCentre({48.0, 179.0});
        projection.setVisibleRange(range, range);
        for (const WindowPoint& point : coast.segments(projection)) {
            require(std::isfinite(point.x) && std::isfinite(point.y), "a coast without a position");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const FuzzFolder folder;
    const std::uint8_t choice = size > 0 ? bytes[--size] : 0;
    const QByteArray content(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    switch (choice % 4U) {
    case 0:
        useTile(content);
        break;
    case 1:
        useMeta(folder, bytes, size);
        break;
    case 2:
        useTerrain(folder, bytes, size);
        break;
    default:
        useCoast(content);
        break;
    }
    return 0;
}
