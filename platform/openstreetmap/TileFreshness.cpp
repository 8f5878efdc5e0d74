#include "platform/openstreetmap/TileFreshness.h"

#include <QDateTime>
#include <QList>
#include <QLocale>

#include <algorithm>

namespace OpenStreet {

namespace {

/// However long a server allows: maps change.
constexpr std::int64_t kLongestLifetime = 365LL * 24 * 3600;

} // namespace

std::int64_t expiryOf(const QByteArray& cacheControl, const QByteArray& expires, std::int64_t now)
{
    for (const QByteArray& part : cacheControl.toLower().split(',')) {
        const QByteArray directive = part.trimmed();
        if (directive == "no-cache" || directive == "no-store") {
            return now;
        }
        if (directive.startsWith("max-age=")) {
            bool valid = false;
            const qlonglong seconds = directive.mid(8).toLongLong(&valid);
            if (valid) {
                return now + std::clamp<std::int64_t>(seconds, 0, kLongestLifetime);
            }
        }
    }
    if (!expires.trimmed().isEmpty()) {
        // The form that servers must send; anything else, "0" above all, means the past.
        QDateTime time = QLocale::c().toDateTime(QString::fromLatin1(expires.trimmed()),
                                                 QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
        time.setTimeSpec(Qt::UTC);
        return time.isValid()
                   ? std::min<std::int64_t>(time.toSecsSinceEpoch(), now + kLongestLifetime)
                   : now;
    }
    return now + kDefaultLifetime;
}

} // namespace OpenStreet
