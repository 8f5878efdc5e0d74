#pragma once

#include <QByteArray>

class QIODevice;

namespace VELIX {

/// Writes a KML document as the zip file that viewers read as ".kmz"; false if the device does not
/// take it all.
[[nodiscard]] bool writeKmz(const QByteArray& document, QIODevice& out);

} // namespace VELIX
