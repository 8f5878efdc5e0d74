#include "views/map/MapSymbol.h"

#include "gui/look/Palette.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace VELIX {

namespace {

/// The outline of the pictogram, filled.
void paintOutline(QPainter& painter, QByteArray svg, const QColor& fill, const QColor& stroke,
                  const char* width)
{
    svg.replace("fill=\"none\"", "fill=\"" + fill.name().toLatin1() + '"');
    svg.replace("currentColor", stroke.name().toLatin1());
    svg.replace("stroke-width=\"1.75\"", QByteArray("stroke-width=\"") + width + '"');
    QSvgRenderer(svg).render(&painter);
}

} // namespace

QImage mapAircraft(int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFile file(QStringLiteral(":/icons/aircraft.svg"));
    if (!file.open(QIODevice::ReadOnly)) {
        return image;
    }
    const QByteArray svg = file.readAll();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // The map's tiles are light in either look, and a halo parts the symbol from them.
    const QColor body = Palette::light().accent;
    paintOutline(painter, svg, Qt::white, Qt::white, "4");
    paintOutline(painter, svg, body, body.darker(160), "1");
    return image;
}

} // namespace VELIX
