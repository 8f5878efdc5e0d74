#include "platform/openstreetmap/TileFreshness.h"

#include <QDateTime>
#include <QList>
#include <QLocale>

#include <algorithm>

namespace OpenStreet {

namespace {

/// However long a server allows: maps change.
constexpr std::int64_t kLongestLifetime = 365LL * 24 * 3600;

QList<QByteArray> directivesOf(const QByteArray& cacheControl)
{
    QList<QByteArray> directives = cacheControl.toLower().split(',');
    for (QByteArray& directive : directives) {
        directive = directive.trimmed();
    }
    return directives;
}

} // namespace

bool mayBeStored(const QByteArray& cacheControl)
{
    return !directivesOf(cacheControl).contains("no-store");
}

std::int64_t expiryOf(const QByteArray& cacheControl, const QByteArray& expires,
                      const QByteArray& age, std::int64_t now)
{
    for (const QByteArray& directive : directivesOf(cacheControl)) {
        if (directive == "no-cache" || directive == "no-store") {
            return now;
        }
        if (directive.startsWith("max-age=")) {
            bool valid = false;
            const qlonglong seconds = directive.mid(8).toLongLong(&valid);
            if (valid) {
                // A cache on the way has had it for so long; 0 if that is no number.
                const qlonglong old = std::max(age.trimmed().toLongLong(), 0LL);
                const qlonglong lifetime = std::clamp<qlonglong>(seconds, 0, kLongestLifetime);
                return now + std::max(lifetime - old, 0LL);
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
