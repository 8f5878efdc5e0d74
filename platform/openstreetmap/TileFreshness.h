#pragma once

#include <QByteArray>

#include <cstdint>

namespace OpenStreet {

/// How long a tile may be shown without asking the server again, and how to ask.
struct TileFreshness
{
    std::int64_t expires = 0; ///< seconds since 1970 in UTC
    QByteArray entityTag;     ///< as the server sent it; may be empty
    QByteArray lastModified;  ///< likewise
    QByteArray server = {};   ///< address that it came from; empty: unknown
    bool mayBeStored = true;  ///< on disk

    friend bool operator==(const TileFreshness&, const TileFreshness&) = default;
};

/// Where a server names no time.
inline constexpr std::int64_t kDefaultLifetime = 7 * 24 * 3600;

/// What a server said of an answer's age: the text of its headers "Cache-Control", "Expires" and
/// "Age", empty where there is none. Seconds since 1970; a time in the past means: ask each time.
std::int64_t expiryOf(const QByteArray& cacheControl, const QByteArray& expires,
                      const QByteArray& age, std::int64_t now);
/// Whether the header "Cache-Control" does not forbid it.
bool mayBeStored(const QByteArray& cacheControl);

} // namespace OpenStreet
