#include "platform/viewlib/ViewTextPainter.h"

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewSurface.h"

namespace Vista2D {

namespace {

/// Returns a colour for text on a background of any colour.
QColor onBackground(const QColor& background)
{
    const bool isLight =
        0.3 * background.redF() + 0.59 * background.greenF() + 0.11 * background.blueF() > 0.4;
    return isLight ? QColor(0x0b, 0x0f, 0x14) : QColor(Qt::white);
}

} // namespace

void ViewTextPainter::paintUnits(const ViewBinding& binding, const ViewScale& scale)
{
    for (const ViewCaption& caption : binding.captions) {
        if (caption.shows == ViewCaption::Shows::Unit) {
            mSurface.text(caption.style, scale.unit, caption.style.color);
        }
    }
}

void ViewTextPainter::paintNumbers(const ViewBinding& binding, const ViewReading& reading)
{
    for (const ViewCaption& caption : binding.captions) {
        if (caption.shows != ViewCaption::Shows::Number) {
            continue;
        }
        const bool isKnown = reading.shown == reading.shown;
        QString text = numberText(*reading.scale, reading.shown);
        QColor color = isKnown ? mSurface.stateColor(reading.state, caption.style.color)
                               : mSurface.colors().muted;
        if (reading.inCase != nullptr && isKnown) {
            text = reading.inCase->text.isEmpty() ? text : reading.inCase->text;
            color = reading.inCase->color.isValid() ? reading.inCase->color : color;
        }
        mSurface.text(caption.style, text, color);
    }
}

void ViewTextPainter::paintLamp(const ViewLamp& lamp, const ViewReading& reading)
{
    QString text = lamp.text;
    QColor background;
    if (reading.inCase != nullptr) {
        text = reading.inCase->text.isEmpty() ? text : reading.inCase->text;
        background = reading.inCase->color;
    } else if (lamp.binding.cases.empty()) {
        background = mSurface.stateColor(reading.state, {});
    }
    if (background.isValid()) {
        mSurface.box(lamp.box, lamp.corner, background);
        mSurface.centered(lamp.box.center(), lamp.textSize, true, text, onBackground(background));
    } else {
        mSurface.box(lamp.box, lamp.corner, {}, mSurface.colors().line);
        mSurface.centered(lamp.box.center(), lamp.textSize, false, text, mSurface.colors().muted);
    }
}

} // namespace Vista2D
