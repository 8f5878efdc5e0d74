#include "views/graph/GraphSnapshot.h"

#include "views/graph/GraphVectorPainter.h"
#include "views/graph/widget/WidgetGraph.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QPixmap>
#include <QSaveFile>
#include <QSvgGenerator>

namespace VELIX::GraphSnapshot {

namespace {

const QString kSvg = QStringLiteral("svg");
constexpr int kJpegQuality = 95; // thin lines on black do not survive less

QByteArray svgOf(const WidgetGraph& graph)
{
    QBuffer bytes;
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    generator.setSize(graph.size());
    generator.setViewBox(graph.rect());
    generator.setResolution(graph.logicalDpiX()); // else texts are smaller than the room for them
    QPainter painter(&generator);
    GraphVectorPainter(graph.model(), graph.look(), graph.markersOn(), graph.size(), graph.font())
        .paint(painter);
    painter.end();
    return bytes.data();
}

QByteArray bytesOf(const QPixmap& screenshot, const QString& format)
{
    QBuffer bytes;
    QImageWriter writer(&bytes, format.toLatin1());
    if (format == QLatin1String("jpg") || format == QLatin1String("jpeg")) {
        writer.setQuality(kJpegQuality);
    }
    return writer.write(screenshot.toImage()) ? bytes.data() : QByteArray();
}

} // namespace

QString formatOf(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    const bool known =
        suffix == kSvg || QImageWriter::supportedImageFormats().contains(suffix.toLatin1());
    return known ? suffix : QStringLiteral("bmp");
}

QString save(const WidgetGraph& graph, const QPixmap& screenshot, const QString& fileName)
{
    const QString format = formatOf(fileName);
    const QByteArray bytes = format == kSvg ? svgOf(graph) : bytesOf(screenshot, format);
    QSaveFile file(fileName);
    if (!bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
        file.commit()) {
        return {};
    }
    return QCoreApplication::translate("VELIX::GraphSnapshot",
                                       "The snapshot could not be saved as %1: %2.")
        .arg(QDir::toNativeSeparators(fileName), file.errorString());
}

} // namespace VELIX::GraphSnapshot
