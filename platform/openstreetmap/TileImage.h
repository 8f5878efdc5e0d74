#pragma once

#include <QByteArray>
#include <QImage>

namespace OpenStreet {

/// The largest answer that is taken for a tile.
inline constexpr int kLargestTileBytes = 4 * 1024 * 1024;

/// Returns the image of a tile; null if the bytes are none, or an image larger than a tile can be.
/// The size is read from the head, so that an image of a gigabyte costs nothing. An image that is
/// cut off is none.
QImage decodeTile(const QByteArray& data);

} // namespace OpenStreet
