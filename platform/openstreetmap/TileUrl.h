#pragma once

#include "platform/openstreetmap/TileAddress.h"

#include <QString>
#include <QUrl>

namespace OpenStreet {

/// The address of a tile on its server.
///
/// `server` is either a base address, to which "/z/x/y.png" is added, or a pattern with {z}, {x}
/// and {y}, and perhaps {s}, which means one of the hosts a, b and c. Without a scheme http
/// is meant. Not valid for what can be no address of HTTP or HTTPS.
QUrl tileUrl(const QString& server, const TileAddress& tile);

} // namespace OpenStreet
