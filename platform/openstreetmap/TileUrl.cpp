#include "platform/openstreetmap/TileUrl.h"

namespace OpenStreet {

QUrl tileUrl(const QString& server, const TileAddress& tile)
{
    QString pattern = server.trimmed();
    if (pattern.isEmpty()) {
        return {};
    }
    if (!pattern.contains(QLatin1String("://"))) {
        pattern.prepend(QLatin1String("http://"));
    }
    if (!pattern.contains(QLatin1String("{z}"))) {
        while (pattern.endsWith(QLatin1Char('/'))) {
            pattern.chop(1);
        }
        pattern += QLatin1String("/{z}/{x}/{y}.png");
    }
    // The same host for the same tile, so that caches on the way find it.
    const QChar host = QLatin1Char(static_cast<char>('a' + (tile.x + tile.y) % 3));
    pattern.replace(QLatin1String("{s}"), host);
    pattern.replace(QLatin1String("{z}"), QString::number(tile.zoom));
    pattern.replace(QLatin1String("{x}"), QString::number(tile.x));
    pattern.replace(QLatin1String("{y}"), QString::number(tile.y));
    const QUrl url(pattern, QUrl::TolerantMode);
    const bool web =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return web && url.isValid() && !url.host().isEmpty() ? url : QUrl();
}

} // namespace OpenStreet
