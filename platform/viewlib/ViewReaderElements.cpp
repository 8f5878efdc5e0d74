// The lines of the file itself and of groups.

#include "platform/viewlib/ViewReader.h"

namespace Vista2D {

template <class Shape>
void ViewReader::add(const ViewStatement& statement, ViewAttributes& attributes, Shape shape)
{
    if (mModel.elements.size() == kMostElements) {
        if (!mFull) {
            attributes.wrong(QStringLiteral("more than %1 elements").arg(kMostElements));
        }
        mFull = true;
        return;
    }
    ViewElement element;
    element.conditions = block().conditions;
    condition(attributes, element.conditions);
    element.shape = std::move(shape);
    Block inside;
    inside.kind = std::is_same_v<Shape, ViewLamp> ? Block::Kind::Lamp : Block::Kind::Instrument;
    inside.origin = block().origin;
    inside.element = mModel.elements.size();
    mModel.elements.push_back(std::move(element));
    if (bindingOf(mModel.elements.back()) == nullptr) {
        return;
    }
    if (statement.opensBlock()) {
        open(statement, std::move(inside));
    } else {
        inside.line = statement.line();
        inside.word = statement.word();
        checkInstrument(inside);
    }
}

bool ViewReader::readSize(ViewAttributes& attributes, const char* name, Layout layout)
{
    QPointF size;
    const bool isGiven = attributes.pair(name, size, 1.0, 10000.0);
    if (isGiven && (layout == Layout::Wide || layout == mLayout)) {
        mModel.size = QSizeF(size.x(), size.y());
    }
    return isGiven;
}

void ViewReader::readView(ViewStatement&, ViewAttributes& attributes)
{
    attributes.require(readSize(attributes, "size", Layout::Wide), "size");
    mHasTall = readSize(attributes, "tall", Layout::Tall);
    mHasLow = readSize(attributes, "low", Layout::Low);
    attributes.color("background", mModel.colors.background);
    mColors[QStringLiteral("background")] = mModel.colors.background;
}

void ViewReader::readColors(ViewStatement& statement, ViewAttributes& attributes)
{
    for (const ViewStatement::Attribute& attribute : statement.takeAll()) {
        const QColor color = attributes.colorOf(attribute.value);
        if (color.isValid()) {
            mColors[attribute.name] = color;
        } else {
            attributes.wrong(QStringLiteral("\"%1\" is no colour: \"%2\"")
                                 .arg(attribute.name.left(40), attribute.value.left(40)));
        }
    }
    ViewColors& colors = mModel.colors;
    const std::pair<const char*, QColor*> roles[] = {{"background", &colors.background},
                                                     {"text", &colors.text},
                                                     {"muted", &colors.muted},
                                                     {"line", &colors.line},
                                                     {"track", &colors.track},
                                                     {"normal", &colors.normal},
                                                     {"healthy", &colors.healthy},
                                                     {"warning", &colors.warning},
                                                     {"limit", &colors.limit}};
    for (const auto& [name, color] : roles) {
        *color = mColors[QLatin1String(name)];
    }
}

void ViewReader::readScales(ViewStatement& statement, ViewAttributes& attributes)
{
    Block inside;
    inside.kind = Block::Kind::Scales;
    if (!attributes.require(attributes.text("name", inside.scales), "name")) {
        return;
    }
    mScales[inside.scales].clear();
    if (statement.opensBlock()) {
        open(statement, std::move(inside));
    }
}

void ViewReader::readGroup(ViewStatement& statement, ViewAttributes& attributes)
{
    Block inside;
    inside.kind = Block::Kind::Group;
    inside.conditions = block().conditions;
    condition(attributes, inside.conditions);
    QPointF shift;
    attributes.pair("at", shift, -kFarthest, kFarthest);
    QPointF tall = shift;
    QPointF low = shift;
    attributes.pair("tall", tall, -kFarthest, kFarthest);
    attributes.pair("low", low, -kFarthest, kFarthest);
    inside.origin = block().origin + (mLayout == Layout::Tall  ? tall
                                      : mLayout == Layout::Low ? low
                                                               : shift);
    if (statement.opensBlock()) {
        open(statement, std::move(inside));
    }
}

void ViewReader::readGauge(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewGauge gauge;
    gauge.color = mModel.colors.normal;
    bindInstrument(attributes, gauge.binding);
    const bool hasPlace = place(attributes, "at", gauge.center);
    const bool hasRadius =
        attributes.require(attributes.number("radius", gauge.radius, 1.0, kFarthest), "radius");
    QPointF sweep(gauge.start, gauge.end);
    attributes.pair("sweep", sweep, -360.0, 360.0);
    gauge.start = sweep.x();
    gauge.end = sweep.y();
    attributes.number("width", gauge.width, 0.0, kFarthest);
    attributes.number("fill", gauge.fill, 0.0, kFarthest);
    attributes.number("tick", gauge.tick, 0.0, kFarthest);
    attributes.number("ticktext", gauge.tickText, 0.0, kLargestText);
    QPointF needle(0.0, hasRadius ? gauge.radius - gauge.width : 0.0);
    attributes.pair("needle", needle, 0.0, kFarthest);
    gauge.needleFrom = needle.x();
    gauge.needleTo = needle.y();
    attributes.number("needlewidth", gauge.needleWidth, 0.0, kFarthest);
    attributes.color("color", gauge.color);
    if (hasPlace && hasRadius) {
        add(statement, attributes, std::move(gauge));
    }
}

void ViewReader::readBar(ViewStatement& statement, ViewAttributes& attributes)
{
    using Direction = ViewBar::Direction;
    using Side = ViewBar::Side;
    using Style = ViewBar::Style;
    ViewBar bar;
    bar.color = mModel.colors.normal;
    bindInstrument(attributes, bar.binding);
    attributes.choice<Direction>("direction", bar.direction,
                                 {{"right", Direction::Right}, {"up", Direction::Up}});
    attributes.choice<Side>(
        "ticks", bar.ticks,
        {{"none", Side::None}, {"before", Side::Before}, {"after", Side::After}});
    attributes.choice<Style>("style", bar.style,
                             {{"fill", Style::Fill}, {"pointer", Style::Pointer}});
    attributes.number("ticktext", bar.tickText, 0.0, kLargestText);
    attributes.color("color", bar.color);
    if (box(attributes, bar.box)) {
        add(statement, attributes, std::move(bar));
    }
}

void ViewReader::readValue(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewValue value;
    bindInstrument(attributes, value.binding);
    ViewCaption number;
    number.style.color = mModel.colors.normal;
    textStyle(attributes, number.style);
    if (place(attributes, "at", number.style.at)) {
        value.binding.captions.push_back(number);
        add(statement, attributes, std::move(value));
    }
}

void ViewReader::readLamp(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewLamp lamp;
    bindVariable(attributes, lamp.binding);
    shownText(attributes, "text", lamp.text);
    attributes.number("textsize", lamp.textSize, 1.0, kLargestText);
    attributes.number("corner", lamp.corner, 0.0, kFarthest);
    if (box(attributes, lamp.box)) {
        add(statement, attributes, std::move(lamp));
    }
}

void ViewReader::readLabel(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewLabel label;
    label.style.color = mModel.colors.text;
    textStyle(attributes, label.style);
    const bool hasText = attributes.require(shownText(attributes, "text", label.text), "text");
    if (place(attributes, "at", label.style.at) && hasText) {
        add(statement, attributes, std::move(label));
    }
}

void ViewReader::readRectangle(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewRectangle rectangle;
    attributes.color("fill", rectangle.fill);
    attributes.color("line", rectangle.line);
    attributes.number("width", rectangle.width, 0.0, kFarthest);
    attributes.number("corner", rectangle.corner, 0.0, kFarthest);
    if (box(attributes, rectangle.box)) {
        add(statement, attributes, std::move(rectangle));
    }
}

void ViewReader::readLine(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewLine line;
    line.color = mModel.colors.line;
    attributes.color("color", line.color);
    attributes.number("width", line.width, 0.0, kFarthest);
    const bool hasStart = place(attributes, "from", line.from);
    if (place(attributes, "to", line.to) && hasStart) {
        add(statement, attributes, std::move(line));
    }
}

void ViewReader::readArc(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewArc arc;
    arc.color = mModel.colors.line;
    attributes.color("color", arc.color);
    attributes.number("width", arc.width, 0.0, kFarthest);
    QPointF sweep(arc.start, arc.end);
    attributes.pair("sweep", sweep, -360.0, 360.0);
    arc.start = sweep.x();
    arc.end = sweep.y();
    const bool hasRadius =
        attributes.require(attributes.number("radius", arc.radius, 0.0, kFarthest), "radius");
    if (place(attributes, "at", arc.center) && hasRadius) {
        add(statement, attributes, std::move(arc));
    }
}

} // namespace Vista2D
