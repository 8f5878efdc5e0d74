#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewInstruments.h"
#include "platform/viewlib/ViewSurface.h"

namespace Vista2D {

namespace {

/// Text on a ground of any colour.
QColor onGround(const QColor& ground)
{
    const bool isLight = 0.3 * ground.redF() + 0.59 * ground.greenF() + 0.11 * ground.blueF() > 0.4;
    return isLight ? QColor(0x0b, 0x0f, 0x14) : QColor(Qt::white);
}

} // namespace

void paintUnits(ViewSurface& surface, const ViewBinding& binding, const ViewScale& scale)
{
    for (const ViewCaption& caption : binding.captions) {
        if (caption.shows == ViewCaption::Shows::Unit) {
            surface.text(caption.style, scale.unit, caption.style.color);
        }
    }
}

void paintNumbers(ViewSurface& surface, const ViewBinding& binding, const ViewReading& reading)
{
    for (const ViewCaption& caption : binding.captions) {
        if (caption.shows != ViewCaption::Shows::Number) {
            continue;
        }
        const bool isKnown = reading.shown == reading.shown;
        QString text = numberText(*reading.scale, reading.shown);
        QColor color = isKnown ? surface.stateColor(reading.state, caption.style.color)
                               : surface.colors().muted;
        if (reading.inCase != nullptr && isKnown) {
            text = reading.inCase->text.isEmpty() ? text : reading.inCase->text;
            color = reading.inCase->color.isValid() ? reading.inCase->color : color;
        }
        surface.text(caption.style, text, color);
    }
}

void paintLamp(ViewSurface& surface, const ViewLamp& lamp, const ViewReading& reading)
{
    QString text = lamp.text;
    QColor ground;
    if (reading.inCase != nullptr) {
        text = reading.inCase->text.isEmpty() ? text : reading.inCase->text;
        ground = reading.inCase->color;
    } else if (lamp.binding.cases.empty()) {
        ground = surface.stateColor(reading.state, {});
    }
    if (ground.isValid()) {
        surface.box(lamp.box, lamp.corner, ground);
        surface.centered(lamp.box.center(), lamp.textSize, true, text, onGround(ground));
    } else {
        surface.box(lamp.box, lamp.corner, {}, surface.colors().line);
        surface.centered(lamp.box.center(), lamp.textSize, false, text, surface.colors().muted);
    }
}

} // namespace Vista2D
