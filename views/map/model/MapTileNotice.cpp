#include "views/map/model/MapTileNotice.h"

#include "core/Diagnostics.h"

namespace VELIX {

namespace {

/// Those of the map itself; what the network says comes in the language of the program already.
constexpr const char* kReasons[] = {
    QT_TRANSLATE_NOOP("VELIX::MapTileNotice", "not an address of HTTP or HTTPS"),
    QT_TRANSLATE_NOOP("VELIX::MapTileNotice", "no answer in time"),
    QT_TRANSLATE_NOOP("VELIX::MapTileNotice", "not a picture of a tile"),
    QT_TRANSLATE_NOOP("VELIX::MapTileNotice", "larger than a tile can be"),
    QT_TRANSLATE_NOOP("VELIX::MapTileNotice", "not whole in time"),
};
constexpr const char* kStatus = "HTTP status ";

QString translated(const char* reason)
{
    for (const char* known : kReasons) {
        if (qstrcmp(known, reason) == 0) {
            return MapTileNotice::tr(known);
        }
    }
    const QString text = QString::fromUtf8(reason);
    const QString status = QString::fromLatin1(kStatus);
    return text.startsWith(status)
               ? MapTileNotice::tr("HTTP status %1").arg(text.mid(status.size()))
               : text;
}

} // namespace

void MapTileNotice::fail(const char* url, const char* reason)
{
    if (mPrinted.insert(reason).second) {
        Diagnostics::print("no map tile from %s: %s\n", url, reason);
    }
    mReason = translated(reason);
}

void MapTileNotice::reset()
{
    mReason.clear();
    mPrinted.clear();
    mShown = false;
}

QString MapTileNotice::update(bool tilesInSight, bool loading)
{
    mShown = hasReason() && !tilesInSight && (mShown || !loading);
    return mShown ? tr("No map tiles: %1").arg(mReason) : QString();
}

} // namespace VELIX
