#pragma once

#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/TerrainFile.h"

#include <QString>

#include <list>
#include <map>
#include <memory>
#include <utility>

namespace OpenStreet {

/// The heights of a folder of .hgt files, named after their south-western corner as in
/// "N48E011.hgt". A few files are kept open. For one thread.
class TerrainStore
{
public:
    explicit TerrainStore(QString folder);

    /// Metres above sea level; not a number where no file or no height is.
    [[nodiscard]] float height(const GeoPoint& place);
    /// Whether there is anything at all for the square degree of a place.
    [[nodiscard]] bool covers(const GeoPoint& place);

    static QString fileName(int south, int west);

private:
    using Corner = std::pair<int, int>; ///< south, west

    TerrainFile* fileOf(const Corner& corner);

    QString mFolder;
    std::map<Corner, std::unique_ptr<TerrainFile>> mFiles; ///< null: there is none
    std::list<Corner> mOrder;                              ///< the first was opened first
};

} // namespace OpenStreet
