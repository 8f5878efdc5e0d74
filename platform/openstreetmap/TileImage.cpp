#include "platform/openstreetmap/TileImage.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr int kLargestSide = 1024;
/// Of a decoded image: hundreds are kept, and no more pixels reach the screen.
constexpr int kLargestKept = 512;

/// Readers give what they have of a file that is cut off. Its end shows that.
bool isWhole(const QByteArray& data, const QByteArray& format)
{
    if (format == "png") {
        return data.right(64).contains("IEND\xAE\x42\x60\x82");
    }
    if (format == "jpeg") {
        return data.right(64).contains("\xFF\xD9");
    }
    return true;
}

} // namespace

QImage decodeTile(const QByteArray& data)
{
    if (data.isEmpty() || data.size() > kLargestTileBytes) {
        return {};
    }
    QByteArray copy = data;
    QBuffer buffer(&copy);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    static const QList<QByteArray> known{"png", "jpeg", "gif", "webp"};
    const QSize size = reader.size();
    if (!known.contains(format) || size.isEmpty() ||
        std::max(size.width(), size.height()) > kLargestSide || !isWhole(data, format)) {
        return {};
    }
    if (std::max(size.width(), size.height()) > kLargestKept) {
        reader.setScaledSize(size.scaled(kLargestKept, kLargestKept, Qt::KeepAspectRatio));
    }
    // As the graphics system takes it, so that nothing is left to do on the way to the screen.
    const QImage image = reader.read();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_RGBA8888_Premultiplied
                                                         : QImage::Format_RGBX8888);
}

} // namespace OpenStreet
