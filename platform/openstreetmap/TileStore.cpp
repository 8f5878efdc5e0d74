#include "platform/openstreetmap/TileStore.h"

#include "platform/openstreetmap/TileImage.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace OpenStreet {

namespace {

constexpr const char* kImage = ".png";
constexpr const char* kMeta = ".meta";
/// A note of use costs a write, so it is not made each time.
constexpr qint64 kSecondsBetweenMarks = 3600;
constexpr qint64 kLargestMeta = 4096;

bool writeFile(const QString& path, const QByteArray& content)
{
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return false;
    }
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.commit();
}

/// Four lines: expiry, entity tag, time of change, server.
TileFreshness parseMeta(const QByteArray& text)
{
    const QList<QByteArray> lines = text.split('\n');
    TileFreshness result;
    result.expires = lines.value(0).toLongLong();
    result.entityTag = lines.value(1);
    result.lastModified = lines.value(2);
    result.server = lines.value(3);
    return result;
}

/// Header texts come from outside: a line break would shift what follows.
QByteArray oneLine(QByteArray text)
{
    return text.replace('\n', ' ').replace('\r', ' ').left(1000);
}

struct Stored
{
    qint64 used;
    qint64 size;
    QString image;
    QString meta;
};

bool isSet(const std::atomic<bool>* flag)
{
    return flag != nullptr && flag->load();
}

bool isNumber(const QString& name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
}

/// Paths of the folders in one that are named by a number.
QStringList numberedIn(const QString& folder)
{
    QStringList result;
    const QDir::Filters folders = QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    for (const QString& name : QDir(folder).entryList(folders, QDir::Unsorted)) {
        if (isNumber(name)) {
            result.append(folder + QLatin1Char('/') + name);
        }
    }
    return result;
}

/// All, or those found until it was time to stop.
std::vector<Stored> tilesIn(const QString& folder, const std::atomic<bool>* stop)
{
    std::vector<Stored> tiles;
    for (const QString& zoom : numberedIn(folder)) {
        for (const QString& column : numberedIn(zoom)) {
            if (isSet(stop)) {
                return tiles;
            }
            QDirIterator files(column, {QStringLiteral("*.png")}, QDir::Files | QDir::NoSymLinks);
            while (files.hasNext() && !isSet(stop)) {
                files.next();
                const QFileInfo image = files.fileInfo();
                if (!isNumber(image.completeBaseName())) {
                    continue;
                }
                const QFileInfo meta(column + QLatin1Char('/') + image.completeBaseName() +
                                     QLatin1String(kMeta));
                const bool isNoted = meta.exists();
                const QDateTime used = (isNoted ? meta : image).lastModified();
                tiles.push_back({used.toSecsSinceEpoch(),
                                 image.size() + (isNoted ? meta.size() : 0), image.filePath(),
                                 meta.filePath()});
            }
        }
    }
    return tiles;
}

} // namespace

TileStore::TileStore(QString folder) : mFolder(std::move(folder)) {}

QString TileStore::path(const TileAddress& tile, const char* suffix) const
{
    return QStringLiteral("%1/%2/%3/%4%5")
        .arg(mFolder)
        .arg(tile.zoom)
        .arg(tile.x)
        .arg(tile.y)
        .arg(QLatin1String(suffix));
}

std::optional<TileStore::Tile> TileStore::read(const TileAddress& tile) const
{
    if (mFolder.isEmpty()) {
        return std::nullopt;
    }
    QFile image(path(tile, kImage));
    if (!image.open(QIODevice::ReadOnly) || image.size() > kLargestTileBytes) {
        return std::nullopt;
    }
    Tile result;
    result.bytes = image.readAll();
    QFile meta(path(tile, kMeta));
    if (meta.open(QIODevice::ReadOnly)) {
        result.freshness = parseMeta(meta.read(kLargestMeta));
        markUsed(tile);
    } else {
        result.freshness.expires =
            QFileInfo(image).lastModified().toSecsSinceEpoch() + kDefaultLifetime;
        writeMeta(tile, result.freshness);
    }
    return result;
}

bool TileStore::write(const TileAddress& tile, const Tile& content) const
{
    // The image first: without its note it is only asked for again.
    return !mFolder.isEmpty() && writeFile(path(tile, kImage), content.bytes) &&
           writeMeta(tile, content.freshness);
}

bool TileStore::refresh(const TileAddress& tile, const TileFreshness& freshness) const
{
    return !mFolder.isEmpty() && QFileInfo::exists(path(tile, kImage)) &&
           writeMeta(tile, freshness);
}

void TileStore::remove(const TileAddress& tile) const
{
    if (!mFolder.isEmpty()) {
        QFile::remove(path(tile, kImage));
        QFile::remove(path(tile, kMeta));
    }
}

bool TileStore::writeMeta(const TileAddress& tile, const TileFreshness& freshness) const
{
    return writeFile(path(tile, kMeta),
                     QByteArray::number(static_cast<qlonglong>(freshness.expires)) + '\n' +
                         oneLine(freshness.entityTag) + '\n' + oneLine(freshness.lastModified) +
                         '\n' + oneLine(freshness.server) + '\n');
}

void TileStore::markUsed(const TileAddress& tile) const
{
    QFile meta(path(tile, kMeta));
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (QFileInfo(meta).lastModified().secsTo(now) > kSecondsBetweenMarks &&
        meta.open(QIODevice::ReadWrite)) {
        meta.setFileTime(now, QFileDevice::FileModificationTime);
    }
}

std::int64_t TileStore::trim(std::int64_t bytes, const std::atomic<bool>* stop) const
{
    if (mFolder.isEmpty()) {
        return 0;
    }
    std::vector<Stored> tiles = tilesIn(mFolder, stop);
    std::int64_t total = 0;
    for (const Stored& tile : tiles) {
        total += tile.size;
    }
    std::sort(tiles.begin(), tiles.end(),
              [](const Stored& a, const Stored& b) { return a.used < b.used; });
    for (const Stored& tile : tiles) {
        if (total <= bytes || isSet(stop)) {
            break;
        }
        if (QFile::remove(tile.image)) {
            QFile::remove(tile.meta);
            total -= tile.size;
        }
    }
    return total;
}

} // namespace OpenStreet
