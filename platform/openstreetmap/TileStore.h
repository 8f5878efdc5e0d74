#pragma once

#include "platform/openstreetmap/TileAddress.h"
#include "platform/openstreetmap/TileFreshness.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <optional>

namespace OpenStreet {

/// Tiles on disk: plain files Z/X/Y.png, and beside each a small Y.meta with its freshness, whose
/// file time says when the tile was used last. A folder of plain images is a store, too; they
/// live as if fetched when they were last changed. A store that cannot be written only reads.
///
/// An object keeps nothing in memory, so that several threads may use the same folder.
class TileStore
{
public:
    struct Tile
    {
        QByteArray bytes; ///< of the image file
        TileFreshness freshness;
    };

    /// An empty folder means no store.
    explicit TileStore(QString folder);

    /// Marks the tile as used.
    [[nodiscard]] std::optional<Tile> read(const TileAddress& tile) const;
    /// False if it could not be written; what was there before is kept.
    bool write(const TileAddress& tile, const Tile& content) const;
    /// Stores the freshness of an image that is up to date.
    bool refresh(const TileAddress& tile, const TileFreshness& freshness) const;
    void remove(const TileAddress& tile) const;

    /// Removes what was not used for longest until the store takes at most this, or `stop` is set.
    /// Returns the bytes that it takes then, as far as they were counted. No other file than those
    /// of tiles is touched.
    std::int64_t trim(std::int64_t bytes, const std::atomic<bool>* stop = nullptr) const;

private:
    [[nodiscard]] QString path(const TileAddress& tile, const char* suffix) const;
    bool writeMeta(const TileAddress& tile, const TileFreshness& freshness) const;
    void markUsed(const TileAddress& tile) const;

    QString mFolder;
};

} // namespace OpenStreet
