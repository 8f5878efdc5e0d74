#pragma once

#include "platform/openstreetmap/TileAddress.h"
#include "platform/openstreetmap/TileFetcher.h"
#include "platform/openstreetmap/TileFreshness.h"

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QString>
#include <QThreadPool>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace OpenStreet {

class TileStore;

/// Brings the images of tiles from the disk and, where they are missing there or old, from the
/// server. Files and images are read on threads of its own; everything else happens on the
/// thread that it lives in, which needs an event loop.
class TileSource : public QObject
{
    Q_OBJECT

public:
    using Arrival = std::pair<TileAddress, QImage>;

    explicit TileSource(QObject* parent = nullptr);
    ~TileSource() override;

    /// Tiles of another server are shown until this one has sent its own.
    void setServer(const QString& server);
    void setUserAgent(const QByteArray& agent) { mFetcher.setUserAgent(agent); }
    void setTimeouts(const TileFetcher::Timeouts& timeouts) { mFetcher.setTimeouts(timeouts); }
    /// Tiles that failed are asked for again without waiting for their time.
    void retry() { mFetcher.retry(); }
    /// Images of another folder that are there already stay.
    void setFolder(const QString& folder);
    /// Of the store on disk.
    void setLimit(std::int64_t bytes);

    /// Takes what the frame needs now, most urgent first; `standIns` are only looked for on disk.
    /// Called for every frame, also unchanged: tiles whose time has come are asked for again.
    void want(const std::vector<TileAddress>& tiles, const std::vector<TileAddress>& standIns);
    /// Whether the disk has no such tile, as far as is known.
    [[nodiscard]] bool missing(const TileAddress& tile) const;
    /// Forgets an image that was dropped: if it is wanted again, it is brought again.
    void forget(const TileAddress& tile);

    /// Tiles being read, queued or fetched, and what waits for the next want() or takeArrived().
    [[nodiscard]] int loading() const;
    /// The first of what has arrived and was not taken yet, so many at the most; a tile may come
    /// twice: old from the disk, then new.
    std::vector<Arrival> takeArrived(std::size_t most);

signals:
    void arrived();
    /// As TileFetcher::failed().
    void failed(const QString& url, const QString& reason);

private:
    enum class State { Reading, Missing, Decoding, Old, Fresh };
    struct Entry
    {
        State state = State::Reading;
        TileFreshness freshness;
    };
    struct ReadTile
    {
        bool found = false;
        QImage image;
        TileFreshness freshness;
    };

    [[nodiscard]] Entry entryOf(const TileFreshness& freshness) const;
    void read(const TileAddress& tile);
    void takeRead(const TileAddress& tile, const ReadTile& result);
    void takeFetched(const TileAddress& tile, const QByteArray& bytes,
                     const TileFreshness& freshness);
    void takeDecoded(const TileAddress& tile, const QImage& image, const TileFreshness& freshness);
    void takeUnchanged(const TileAddress& tile, const TileFreshness& freshness);
    void countWritten(std::int64_t bytes);
    void trim();
    void dropOthers(const std::vector<TileAddress>& tiles,
                    const std::vector<TileAddress>& standIns);

    QThreadPool mReaders;   ///< one thread: the view waits for it
    QThreadPool mCaretaker; ///< one thread for what nothing waits for
    std::shared_ptr<const TileStore> mStore;
    TileFetcher mFetcher;
    std::map<TileAddress, Entry> mEntries;
    std::vector<Arrival> mArrived;
    int mReading = 0;
    int mUnasked = 0; ///< tiles that the disk has not, or only old, and want() does not know yet
    std::int64_t mLimit = 500LL * 1024 * 1024;
    std::int64_t mWritten = 0; ///< bytes since the store was trimmed
    std::atomic<bool> mEnding = false;
};

} // namespace OpenStreet
