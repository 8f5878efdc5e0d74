#include "platform/openstreetmap/TileSource.h"

#include "platform/openstreetmap/TileImage.h"
#include "platform/openstreetmap/TileStore.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>

namespace OpenStreet {

namespace {

/// So much may be written before the store is measured again.
constexpr std::int64_t kTrimAfter = 20LL * 1024 * 1024;
constexpr std::size_t kMostEntries = 4096;

bool isFresh(const TileFreshness& freshness)
{
    return freshness.expires > QDateTime::currentSecsSinceEpoch();
}

} // namespace

TileSource::TileSource(QObject* parent)
    : QObject(parent), mStore(std::make_shared<const TileStore>(QString()))
{
    mReaders.setMaxThreadCount(1);
    mCaretaker.setMaxThreadCount(1);
    connect(&mFetcher, &TileFetcher::fetched, this, &TileSource::takeFetched);
    connect(&mFetcher, &TileFetcher::unchanged, this, &TileSource::takeUnchanged);
    connect(&mFetcher, &TileFetcher::failed, this, &TileSource::failed);
}

TileSource::~TileSource()
{
    mEnding = true; // a walk through a large store takes seconds
    mReaders.clear();
    mCaretaker.clear();
    mReaders.waitForDone();
    mCaretaker.waitForDone();
}

void TileSource::setServer(const QString& server)
{
    mFetcher.setServer(server);
    for (auto& [tile, entry] : mEntries) {
        if (entry.state == State::Fresh || entry.state == State::Old) {
            entry = entryOf(entry.freshness);
        }
    }
}

/// Of an image that is there. What another server said of its own does not hold for this one's.
TileSource::Entry TileSource::entryOf(const TileFreshness& freshness) const
{
    const QByteArray server = mFetcher.server().toUtf8();
    const bool isForeign =
        !freshness.server.isEmpty() && !server.isEmpty() && freshness.server != server;
    if (isForeign) {
        return {State::Old, {}};
    }
    return {isFresh(freshness) ? State::Fresh : State::Old, freshness};
}

void TileSource::setFolder(const QString& folder)
{
    mStore = std::make_shared<const TileStore>(folder);
    mEntries.clear();
    trim();
}

void TileSource::setLimit(std::int64_t bytes)
{
    if (bytes != mLimit) {
        mLimit = bytes;
        trim();
    }
}

void TileSource::want(const std::vector<TileAddress>& tiles,
                      const std::vector<TileAddress>& standIns)
{
    dropOthers(tiles, standIns);
    for (const TileAddress& tile : standIns) {
        read(tile);
    }
    std::vector<TileFetcher::Request> requests;
    for (const TileAddress& tile : tiles) {
        read(tile);
        Entry& entry = mEntries[tile];
        if (entry.state == State::Fresh && !isFresh(entry.freshness)) {
            entry.state = State::Old;
        }
        if (entry.state == State::Missing || entry.state == State::Old) {
            requests.push_back({tile, entry.freshness});
        }
    }
    mFetcher.setWanted(requests);
    mUnasked = 0;
}

bool TileSource::missing(const TileAddress& tile) const
{
    const auto found = mEntries.find(tile);
    return found != mEntries.end() && found->second.state == State::Missing;
}

void TileSource::forget(const TileAddress& tile)
{
    const auto found = mEntries.find(tile);
    if (found != mEntries.end() && found->second.state != State::Reading &&
        found->second.state != State::Decoding) {
        mEntries.erase(found);
    }
}

int TileSource::loading() const
{
    return mReading + mUnasked + mFetcher.loading() + static_cast<int>(mArrived.size());
}

std::vector<TileSource::Arrival> TileSource::takeArrived(std::size_t most)
{
    std::vector<Arrival> rest;
    if (mArrived.size() > most) {
        const auto end = mArrived.begin() + static_cast<std::ptrdiff_t>(most);
        rest.assign(std::make_move_iterator(end), std::make_move_iterator(mArrived.end()));
        mArrived.erase(end, mArrived.end());
    }
    return std::exchange(mArrived, std::move(rest));
}

/// What is known of tiles elsewhere is let go when it becomes much.
void TileSource::dropOthers(const std::vector<TileAddress>& tiles,
                            const std::vector<TileAddress>& standIns)
{
    if (mEntries.size() < kMostEntries) {
        return;
    }
    std::set<TileAddress> kept(tiles.begin(), tiles.end());
    kept.insert(standIns.begin(), standIns.end());
    for (auto it = mEntries.begin(); it != mEntries.end();) {
        const bool idle = it->second.state == State::Missing;
        it = idle && kept.count(it->first) == 0 ? mEntries.erase(it) : std::next(it);
    }
}

void TileSource::read(const TileAddress& tile)
{
    if (!mEntries.emplace(tile, Entry()).second) {
        return;
    }
    ++mReading;
    mReaders.start([this, store = mStore, tile] {
        ReadTile result;
        if (const std::optional<TileStore::Tile> stored = store->read(tile)) {
            result.image = decodeTile(stored->bytes);
            result.freshness = stored->freshness;
            result.found = !result.image.isNull();
            if (!result.found) {
                store->remove(tile); // it would prevent a good one
            }
        }
        QMetaObject::invokeMethod(
            this, [this, tile, result] { takeRead(tile, result); }, Qt::QueuedConnection);
    });
}

void TileSource::takeRead(const TileAddress& tile, const ReadTile& result)
{
    --mReading;
    const auto entry = mEntries.find(tile);
    if (entry == mEntries.end()) {
        emit arrived();
        return; // of a folder that is no longer in use
    }
    if (!result.found) {
        entry->second = {State::Missing, {}};
    } else {
        entry->second = entryOf(result.freshness);
        mArrived.emplace_back(tile, result.image);
    }
    mUnasked += entry->second.state == State::Fresh ? 0 : 1;
    emit arrived();
}

void TileSource::takeFetched(const TileAddress& tile, const QByteArray& bytes,
                             const TileFreshness& freshness)
{
    mEntries[tile].state = State::Decoding;
    ++mReading;
    mReaders.start([this, store = mStore, tile, bytes, freshness] {
        const QImage image = decodeTile(bytes);
        const auto written =
            !image.isNull() && freshness.mayBeStored && store->write(tile, {bytes, freshness})
                ? bytes.size()
                : 0;
        QMetaObject::invokeMethod(
            this,
            [this, tile, image, freshness, written] {
                takeDecoded(tile, image, freshness);
                countWritten(written);
            },
            Qt::QueuedConnection);
    });
}

void TileSource::takeDecoded(const TileAddress& tile, const QImage& image,
                             const TileFreshness& freshness)
{
    --mReading;
    if (image.isNull()) {
        mFetcher.reject(tile);
        mEntries.erase(tile); // perhaps there is an old one on the disk
    } else {
        mFetcher.accept(tile);
        mEntries[tile] = entryOf(freshness);
        mArrived.emplace_back(tile, image);
    }
    emit arrived();
}

void TileSource::takeUnchanged(const TileAddress& tile, const TileFreshness& freshness)
{
    const auto entry = mEntries.find(tile);
    if (entry != mEntries.end() && entry->second.state == State::Old) {
        entry->second = {State::Fresh, freshness};
    } // else its image was dropped in the meantime, and comes from the disk if it is wanted again
    mCaretaker.start([store = mStore, tile, freshness] { store->refresh(tile, freshness); });
    emit arrived();
}

void TileSource::countWritten(std::int64_t bytes)
{
    mWritten += bytes;
    if (mWritten >= kTrimAfter) {
        trim();
    }
}

void TileSource::trim()
{
    mWritten = 0;
    mCaretaker.start(
        [store = mStore, limit = mLimit, stop = &mEnding] { store->trim(limit, stop); });
}

} // namespace OpenStreet
