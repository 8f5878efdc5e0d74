#include "platform/openstreetmap/TerrainStore.h"

#include <cmath>
#include <limits>
#include <utility>

namespace OpenStreet {

namespace {

/// A tile touches four at most; its neighbours touch the same.
constexpr std::size_t kMostFiles = 12;

std::pair<int, int> cornerOf(const GeoPoint& place)
{
    return {static_cast<int>(std::floor(place.latitude)),
            static_cast<int>(std::floor(normalizedLongitude(place.longitude)))};
}

} // namespace

TerrainStore::TerrainStore(QString folder) : mFolder(std::move(folder)) {}

QString TerrainStore::fileName(int south, int west)
{
    return QStringLiteral("%1%2%3%4.hgt")
        .arg(QLatin1Char(south < 0 ? 'S' : 'N'))
        .arg(std::abs(south), 2, 10, QLatin1Char('0'))
        .arg(QLatin1Char(west < 0 ? 'W' : 'E'))
        .arg(std::abs(west), 3, 10, QLatin1Char('0'));
}

float TerrainStore::height(const GeoPoint& place)
{
    const Corner corner = cornerOf(place);
    TerrainFile* file = fileOf(corner);
    if (file == nullptr) {
        return std::numeric_limits<float>::quiet_NaN();
    }
    return file->height(normalizedLongitude(place.longitude) - corner.second,
                        1.0 - (place.latitude - corner.first));
}

bool TerrainStore::covers(const GeoPoint& place)
{
    return fileOf(cornerOf(place)) != nullptr;
}

TerrainFile* TerrainStore::fileOf(const Corner& corner)
{
    const auto found = mFiles.find(corner);
    if (found != mFiles.end()) {
        return found->second.get();
    }
    if (mOrder.size() >= kMostFiles) {
        mFiles.erase(mOrder.front());
        mOrder.pop_front();
    }
    mOrder.push_back(corner);
    const QString path = mFolder + QLatin1Char('/') + fileName(corner.first, corner.second);
    return (mFiles[corner] = TerrainFile::open(path)).get();
}

} // namespace OpenStreet
