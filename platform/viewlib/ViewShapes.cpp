#include "platform/viewlib/ViewShapes.h"

#include "platform/viewlib/ViewParts.h"

#include <QHash>

#include <utility>

namespace Vista2D {

namespace {

/// Reads between which angles an arc runs, in degrees; without the attribute they stay.
void readSweep(ViewAttributes& attributes, double& start, double& end)
{
    QPointF sweep(start, end);
    attributes.pair("sweep", sweep, -360.0, 360.0);
    start = sweep.x();
    end = sweep.y();
}

std::optional<ViewShape> readGauge(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    ViewGauge gauge;
    gauge.color = parts.colors().normal;
    parts.bindInstrument(gauge.binding);
    const bool hasPlace = parts.place("at", gauge.center);
    const bool hasRadius = attributes.require(
        attributes.number("radius", gauge.radius, 1.0, ViewParts::kFarthest), "radius");
    readSweep(attributes, gauge.start, gauge.end);
    attributes.number("width", gauge.width, 0.0, ViewParts::kFarthest);
    attributes.number("fill", gauge.fill, 0.0, ViewParts::kFarthest);
    attributes.number("tick", gauge.tick, 0.0, ViewParts::kFarthest);
    attributes.number("ticktext", gauge.tickText, 0.0, ViewParts::kLargestText);
    QPointF needle(0.0, hasRadius ? gauge.radius - gauge.width : 0.0);
    attributes.pair("needle", needle, 0.0, ViewParts::kFarthest);
    gauge.needleFrom = needle.x();
    gauge.needleTo = needle.y();
    attributes.number("needlewidth", gauge.needleWidth, 0.0, ViewParts::kFarthest);
    attributes.color("color", gauge.color);
    if (hasPlace && hasRadius) {
        return gauge;
    }
    return std::nullopt;
}

std::optional<ViewShape> readBar(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    using Direction = ViewBar::Direction;
    using Side = ViewBar::Side;
    using Style = ViewBar::Style;
    ViewBar bar;
    bar.color = parts.colors().normal;
    parts.bindInstrument(bar.binding);
    attributes.choice<Direction>("direction", bar.direction,
                                 {{"right", Direction::Right}, {"up", Direction::Up}});
    attributes.choice<Side>(
        "ticks", bar.ticks,
        {{"none", Side::None}, {"before", Side::Before}, {"after", Side::After}});
    attributes.choice<Style>("style", bar.style,
                             {{"fill", Style::Fill}, {"pointer", Style::Pointer}});
    attributes.number("ticktext", bar.tickText, 0.0, ViewParts::kLargestText);
    attributes.color("color", bar.color);
    if (parts.box(bar.box)) {
        return bar;
    }
    return std::nullopt;
}

std::optional<ViewShape> readValue(ViewParts& parts)
{
    ViewValue value;
    parts.bindInstrument(value.binding);
    ViewCaption number;
    number.style.color = parts.colors().normal;
    parts.textStyle(number.style);
    if (parts.place("at", number.style.at)) {
        value.binding.captions.push_back(number);
        return value;
    }
    return std::nullopt;
}

std::optional<ViewShape> readLamp(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    ViewLamp lamp;
    parts.bindVariable(lamp.binding);
    parts.shownText("text", lamp.text);
    attributes.number("textsize", lamp.textSize, 1.0, ViewParts::kLargestText);
    attributes.number("corner", lamp.corner, 0.0, ViewParts::kFarthest);
    if (parts.box(lamp.box)) {
        return lamp;
    }
    return std::nullopt;
}

std::optional<ViewShape> readLabel(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    ViewLabel label;
    label.style.color = parts.colors().text;
    parts.textStyle(label.style);
    const bool hasText = attributes.require(parts.shownText("text", label.text), "text");
    if (parts.place("at", label.style.at) && hasText) {
        return label;
    }
    return std::nullopt;
}

std::optional<ViewShape> readRectangle(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    ViewRectangle rectangle;
    attributes.color("fill", rectangle.fill);
    attributes.color("line", rectangle.line);
    attributes.number("width", rectangle.width, 0.0, ViewParts::kFarthest);
    attributes.number("corner", rectangle.corner, 0.0, ViewParts::kFarthest);
    if (parts.box(rectangle.box)) {
        return rectangle;
    }
    return std::nullopt;
}

std::optional<ViewShape> readLine(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    ViewLine line;
    line.color = parts.colors().line;
    attributes.color("color", line.color);
    attributes.number("width", line.width, 0.0, ViewParts::kFarthest);
    const bool hasStart = parts.place("from", line.from);
    if (parts.place("to", line.to) && hasStart) {
        return line;
    }
    return std::nullopt;
}

std::optional<ViewShape> readArc(ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    ViewArc arc;
    arc.color = parts.colors().line;
    attributes.color("color", arc.color);
    attributes.number("width", arc.width, 0.0, ViewParts::kFarthest);
    readSweep(attributes, arc.start, arc.end);
    const bool hasRadius = attributes.require(
        attributes.number("radius", arc.radius, 0.0, ViewParts::kFarthest), "radius");
    if (parts.place("at", arc.center) && hasRadius) {
        return arc;
    }
    return std::nullopt;
}

} // namespace

ShapeReader shapeReader(const QString& word)
{
    static const QHash<QString, ShapeReader> readers = {
        {QStringLiteral("gauge"), readGauge}, {QStringLiteral("bar"), readBar},
        {QStringLiteral("value"), readValue}, {QStringLiteral("lamp"), readLamp},
        {QStringLiteral("label"), readLabel}, {QStringLiteral("rectangle"), readRectangle},
        {QStringLiteral("line"), readLine},   {QStringLiteral("arc"), readArc}};
    return readers.value(word, nullptr);
}

} // namespace Vista2D
