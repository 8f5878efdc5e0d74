#include "platform/viewlib/ViewPainter.h"

#include "platform/viewlib/ViewBarPainter.h"
#include "platform/viewlib/ViewGaugePainter.h"
#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewSurface.h"
#include "platform/viewlib/ViewTextPainter.h"
#include "platform/viewlib/ViewVariables.h"

#include <cmath>
#include <limits>

namespace Vista2D {

namespace {

const ViewScale kNoScale; // numbers as they are, without decimals and range

const ViewScale& orNone(const ViewScale* scale)
{
    return scale != nullptr ? *scale : kNoScale;
}

} // namespace

ViewReading ViewPainter::reading(const ViewBinding& binding) const
{
    ViewReading reading;
    reading.scale = &orNone(binding.scaleOf(mResults));
    reading.shown = std::numeric_limits<double>::quiet_NaN();
    const auto isMissing = [&] {
        const double missing = mVariables.value(binding.missingSlot);
        return !std::isnan(missing) && missing != 0.0;
    };
    if (binding.slot >= 0 && !isMissing()) {
        reading.shown = shownValue(*reading.scale, mVariables.value(binding.slot));
        const double state = mVariables.value(binding.stateSlot);
        reading.state = state >= 2.0 ? 2 : state >= 1.0 ? 1 : 0;
    }
    for (const ViewCase& one : binding.cases) {
        if (hold(one.conditions, mResults)) {
            reading.inCase = &one;
            break;
        }
    }
    return reading;
}

void ViewPainter::paintStill()
{
    for (const ViewElement& element : mModel.elements) {
        if (hold(element.conditions, mResults)) {
            paintStill(element);
        }
    }
}

void ViewPainter::paintMoving()
{
    for (const ViewElement& element : mModel.elements) {
        if (hold(element.conditions, mResults)) {
            paintMoving(element);
        }
    }
}

void ViewPainter::paintStill(const ViewElement& element)
{
    ViewTextPainter texts(mSurface);
    const auto scaleOf = [this](const ViewBinding& binding) -> const ViewScale& {
        return orNone(binding.scaleOf(mResults));
    };
    if (const auto* gauge = std::get_if<ViewGauge>(&element.shape)) {
        ViewGaugePainter(mSurface, *gauge).paintDial(scaleOf(gauge->binding));
        texts.paintUnits(gauge->binding, scaleOf(gauge->binding));
    } else if (const auto* bar = std::get_if<ViewBar>(&element.shape)) {
        ViewBarPainter(mSurface, *bar).paintTrack(scaleOf(bar->binding));
        texts.paintUnits(bar->binding, scaleOf(bar->binding));
    } else if (const auto* value = std::get_if<ViewValue>(&element.shape)) {
        texts.paintUnits(value->binding, scaleOf(value->binding));
    } else if (const auto* label = std::get_if<ViewLabel>(&element.shape)) {
        mSurface.text(label->style, label->text, label->style.color);
    } else if (const auto* rectangle = std::get_if<ViewRectangle>(&element.shape)) {
        mSurface.box(rectangle->box, rectangle->corner, rectangle->fill, rectangle->line,
                     rectangle->width);
    } else if (const auto* line = std::get_if<ViewLine>(&element.shape)) {
        QPainter& painter = mSurface.shapes();
        painter.setPen(QPen(line->color, line->width, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(line->from, line->to);
    } else if (const auto* arc = std::get_if<ViewArc>(&element.shape)) {
        mSurface.ring(arc->center, arc->radius, arc->width, arc->start, arc->end, arc->color);
    }
}

void ViewPainter::paintMoving(const ViewElement& element)
{
    ViewTextPainter texts(mSurface);
    if (const auto* gauge = std::get_if<ViewGauge>(&element.shape)) {
        const ViewReading read = reading(gauge->binding);
        ViewGaugePainter(mSurface, *gauge).paintNeedle(read);
        texts.paintNumbers(gauge->binding, read);
    } else if (const auto* bar = std::get_if<ViewBar>(&element.shape)) {
        const ViewReading read = reading(bar->binding);
        ViewBarPainter(mSurface, *bar).paintLevel(read);
        texts.paintNumbers(bar->binding, read);
    } else if (const auto* value = std::get_if<ViewValue>(&element.shape)) {
        texts.paintNumbers(value->binding, reading(value->binding));
    } else if (const auto* lamp = std::get_if<ViewLamp>(&element.shape)) {
        texts.paintLamp(*lamp, reading(lamp->binding));
    }
}

} // namespace Vista2D
