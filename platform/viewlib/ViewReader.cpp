#include "platform/viewlib/ViewReader.h"

#include "platform/viewlib/ViewVariables.h"

#include <cmath>

namespace Vista2D {

namespace {

constexpr double kFarthest = 1e5; ///< view units from the origin
constexpr double kLargest = 1e12; ///< value of a scale
constexpr double kLargestText = 1000.0;

bool isInstrument(const ViewElement& element)
{
    return element.shape.index() <= 3;
}

ViewBinding& bindingOf(ViewElement& element)
{
    switch (element.shape.index()) {
    case 0:
        return std::get<ViewGauge>(element.shape).binding;
    case 1:
        return std::get<ViewBar>(element.shape).binding;
    case 2:
        return std::get<ViewValue>(element.shape).binding;
    default:
        return std::get<ViewLamp>(element.shape).binding;
    }
}

} // namespace

ViewReader::ViewReader(ViewVariables& variables, Layout layout)
    : mVariables(variables), mLayout(layout)
{
    nameColors();
    mBlocks.push_back({});
}

void ViewReader::nameColors()
{
    const ViewColors& colors = mModel.colors;
    mColors = {{QStringLiteral("background"), colors.background},
               {QStringLiteral("text"), colors.text},
               {QStringLiteral("muted"), colors.muted},
               {QStringLiteral("line"), colors.line},
               {QStringLiteral("track"), colors.track},
               {QStringLiteral("normal"), colors.normal},
               {QStringLiteral("healthy"), colors.healthy},
               {QStringLiteral("warning"), colors.warning},
               {QStringLiteral("limit"), colors.limit}};
}

void ViewReader::read(const QByteArray& text)
{
    if (text.size() > kLargestFile) {
        mErrors.add(0, {}, QStringLiteral("larger than %1 bytes").arg(kLargestFile));
        return;
    }
    int line = 0;
    for (int start = 0; start < text.size();) {
        int end = text.indexOf('\n', start);
        end = end < 0 ? text.size() : end;
        ViewStatement statement(QString::fromUtf8(text.constData() + start, end - start), ++line,
                                mErrors);
        start = end + 1;
        if (statement.kind() == ViewStatement::Kind::Close) {
            close(line);
        } else if (statement.kind() == ViewStatement::Kind::Element) {
            readStatement(statement);
        }
    }
    while (mBlocks.size() > 1) {
        mErrors.add(block().line, block().word, QStringLiteral("its block is never closed"));
        close(line);
    }
    if (mModel.size.isEmpty()) {
        mErrors.add(0, QStringLiteral("view"), QStringLiteral("no size is given"));
        mModel.elements.clear();
    }
}

const std::map<QString, ViewReader::Handler>& ViewReader::handlers(Block::Kind kind)
{
    static const std::map<QString, Handler> group = {
        {QStringLiteral("group"), &ViewReader::readGroup},
        {QStringLiteral("gauge"), &ViewReader::readGauge},
        {QStringLiteral("bar"), &ViewReader::readBar},
        {QStringLiteral("value"), &ViewReader::readValue},
        {QStringLiteral("lamp"), &ViewReader::readLamp},
        {QStringLiteral("label"), &ViewReader::readLabel},
        {QStringLiteral("rectangle"), &ViewReader::readRectangle},
        {QStringLiteral("line"), &ViewReader::readLine},
        {QStringLiteral("arc"), &ViewReader::readArc}};
    static const std::map<QString, Handler> file = [] {
        std::map<QString, Handler> all = group;
        all[QStringLiteral("view")] = &ViewReader::readView;
        all[QStringLiteral("colors")] = &ViewReader::readColors;
        all[QStringLiteral("scales")] = &ViewReader::readScales;
        return all;
    }();
    static const std::map<QString, Handler> scales = {
        {QStringLiteral("scale"), &ViewReader::readScale},
        {QStringLiteral("band"), &ViewReader::readBand},
        {QStringLiteral("mark"), &ViewReader::readMark}};
    static const std::map<QString, Handler> instrument = [] {
        std::map<QString, Handler> all = scales;
        all[QStringLiteral("number")] = &ViewReader::readNumberText;
        all[QStringLiteral("unit")] = &ViewReader::readUnitText;
        all[QStringLiteral("case")] = &ViewReader::readCase;
        return all;
    }();
    switch (kind) {
    case Block::Kind::File:
        return file;
    case Block::Kind::Scales:
        return scales;
    case Block::Kind::Instrument:
        return instrument;
    default:
        return group;
    }
}

void ViewReader::readStatement(ViewStatement& statement)
{
    const std::size_t open = mBlocks.size() + mIgnored;
    if (block().kind != Block::Kind::Unknown && mIgnored == 0) {
        const auto& known = handlers(block().kind);
        const auto handler = known.find(statement.word());
        if (handler == known.end()) {
            mErrors.add(statement.line(), statement.word(),
                        mBlocks.size() == 1 ? QStringLiteral("unknown")
                                            : QStringLiteral("unknown in a %1").arg(block().word));
        } else {
            ViewAttributes attributes(statement, mErrors, mColors);
            (this->*handler->second)(statement, attributes);
            if (const QString* name = statement.unused(); name != nullptr) {
                attributes.wrong(
                    QStringLiteral("attribute \"%1\" is unknown or given twice").arg(*name));
            }
        }
    }
    if (statement.opensBlock() && mBlocks.size() + mIgnored == open) {
        openUnlessDone(statement);
    }
}

/// What is in the block of an element that could not be used is skipped in silence.
void ViewReader::openUnlessDone(const ViewStatement& statement)
{
    Block skipped;
    skipped.kind = Block::Kind::Unknown;
    open(statement, std::move(skipped));
}

void ViewReader::open(const ViewStatement& statement, Block next)
{
    if (mIgnored > 0 || mBlocks.size() > kDeepestBlock) {
        if (mIgnored == 0) {
            mErrors.add(statement.line(), statement.word(),
                        QStringLiteral("nested more than %1 deep").arg(kDeepestBlock));
        }
        ++mIgnored;
        return;
    }
    next.line = statement.line();
    next.word = statement.word();
    mBlocks.push_back(std::move(next));
}

void ViewReader::close(int line)
{
    if (mIgnored > 0) {
        --mIgnored;
    } else if (mBlocks.size() == 1) {
        mErrors.add(line, {}, QStringLiteral("\"}\" without a block to close"));
    } else {
        const Block closed = block();
        mBlocks.pop_back();
        if (closed.kind == Block::Kind::Instrument) {
            checkInstrument(closed);
        }
    }
}

/// A dial without a range has nowhere to point.
void ViewReader::checkInstrument(const Block& closed)
{
    ViewElement& element = mModel.elements[closed.element];
    if (element.shape.index() > 1) {
        return;
    }
    const ViewBinding& read = bindingOf(element);
    bool hasRange = !read.scales.empty();
    for (const ViewScale& scale : read.scales) {
        hasRange = hasRange && scale.hasRange();
    }
    if (!hasRange) {
        mErrors.add(closed.line, closed.word,
                    QStringLiteral("needs a scale with \"from\" and \"to\""));
    }
}

// --- parts of several elements

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
    inside.kind = Block::Kind::Instrument;
    inside.origin = block().origin;
    inside.element = mModel.elements.size();
    mModel.elements.push_back(std::move(element));
    if (!isInstrument(mModel.elements.back())) {
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

void ViewReader::condition(ViewAttributes& attributes, ConditionList& target)
{
    QString text;
    if (!attributes.text("if", text)) {
        return;
    }
    ViewCondition parsed;
    const QString mistake = parsed.parse(text, mVariables);
    if (!mistake.isEmpty()) {
        attributes.wrong("if", mistake);
        return;
    }
    for (const int slot : parsed.slotsRead()) {
        mModel.slotsUsed.insert(slot);
    }
    target.push_back(static_cast<int>(mModel.conditions.size()));
    mModel.conditions.push_back(std::move(parsed));
}

bool ViewReader::place(ViewAttributes& attributes, const char* name, QPointF& target)
{
    QPointF given;
    if (!attributes.require(attributes.pair(name, given, -kFarthest, kFarthest), name)) {
        return false;
    }
    target = given + block().origin;
    return true;
}

bool ViewReader::box(ViewAttributes& attributes, QRectF& target)
{
    QPointF corner;
    QPointF size;
    const bool hasCorner = place(attributes, "at", corner);
    const bool hasSize = attributes.require(attributes.pair("size", size, 0.0, kFarthest), "size");
    target = QRectF(corner, QSizeF(size.x(), size.y()));
    return hasCorner && hasSize;
}

void ViewReader::textStyle(ViewAttributes& attributes, ViewText& style)
{
    using Align = ViewText::Align;
    attributes.number("size", style.size, 1.0, kLargestText);
    attributes.number("width", style.width, 0.0, kFarthest);
    attributes.color("color", style.color);
    attributes.yesOrNo("bold", style.bold);
    attributes.choice<Align>(
        "align", style.align,
        {{"left", Align::Left}, {"center", Align::Center}, {"right", Align::Right}});
}

void ViewReader::bind(ViewAttributes& attributes, ViewBinding& target, bool isNeeded)
{
    QString name;
    const bool isGiven = attributes.text("var", name) && !name.isEmpty();
    if (isNeeded) {
        attributes.require(isGiven, "var");
    }
    if (isGiven) {
        target.slot = mVariables.slot(name.toStdString());
        target.stateSlot = mVariables.slot(name.toStdString() + "_STATE");
        mModel.slotsUsed.insert({target.slot, target.stateSlot});
    }
    QString scales;
    if (attributes.text("scales", scales)) {
        const auto known = mScales.find(scales);
        if (known != mScales.end()) {
            target.scales = known->second;
        } else {
            attributes.wrong("scales", QStringLiteral("knows no \"%1\"").arg(scales.left(40)));
        }
    }
}

ViewBinding& ViewReader::binding()
{
    return bindingOf(mModel.elements[block().element]);
}

std::vector<ViewScale>& ViewReader::openScales()
{
    return block().kind == Block::Kind::Scales ? mScales[block().scales] : binding().scales;
}

// --- what the file itself and groups hold

void ViewReader::readView(ViewStatement&, ViewAttributes& attributes)
{
    QPointF size;
    if (attributes.require(attributes.pair("size", size, 1.0, 10000.0), "size")) {
        mModel.size = QSizeF(size.x(), size.y());
    }
    mHasTall = attributes.pair("tall", size, 1.0, 10000.0);
    if (mHasTall && mLayout == Layout::Tall) {
        mModel.size = QSizeF(size.x(), size.y());
    }
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
    QPointF tallShift = shift;
    attributes.pair("tall", tallShift, -kFarthest, kFarthest);
    shift = mLayout == Layout::Tall ? tallShift : shift;
    inside.origin = block().origin + shift;
    if (statement.opensBlock()) {
        open(statement, std::move(inside));
    }
}

void ViewReader::readGauge(ViewStatement& statement, ViewAttributes& attributes)
{
    ViewGauge gauge;
    gauge.color = mModel.colors.normal;
    bind(attributes, gauge.binding, true);
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
    bind(attributes, bar.binding, true);
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
    bind(attributes, value.binding, true);
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
    bind(attributes, lamp.binding, false);
    attributes.text("text", lamp.text);
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
    const bool hasText = attributes.require(attributes.text("text", label.text), "text");
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

// --- what instruments hold

void ViewReader::rangeOf(ViewAttributes& attributes, ViewScale& scale)
{
    const bool hasFrom = attributes.number("from", scale.from, -kLargest, kLargest);
    const bool hasTo = attributes.number("to", scale.to, -kLargest, kLargest);
    if (hasFrom != hasTo || (hasFrom && !scale.hasRange())) {
        attributes.wrong(QStringLiteral("needs a \"from\" and another \"to\""));
        scale.to = scale.from;
    }
    attributes.number("step", scale.step, 0.0, kLargest);
    attributes.number("minor", scale.minor, 1, kMostTicks);
    const double ticks =
        scale.step > 0.0 ? std::fabs(scale.to - scale.from) / scale.step * scale.minor : 0.0;
    if (ticks > kMostTicks) {
        attributes.wrong("step", QStringLiteral("makes more than %1 ticks").arg(kMostTicks));
        scale.step = 0.0;
    }
}

void ViewReader::readScale(ViewStatement&, ViewAttributes& attributes)
{
    ViewScale scale;
    condition(attributes, scale.conditions);
    rangeOf(attributes, scale);
    attributes.number("divide", scale.divide, 1e-9, kLargest);
    attributes.number("tickdecimals", scale.tickDecimals, 0, 9);
    attributes.number("factor", scale.factor, -kLargest, kLargest);
    attributes.number("offset", scale.offset, -kLargest, kLargest);
    attributes.number("round", scale.round, 0.0, kLargest);
    attributes.number("decimals", scale.decimals, 0, 9);
    attributes.text("unit", scale.unit);
    std::vector<ViewScale>& scales = openScales();
    if (scales.size() < 64) {
        scales.push_back(std::move(scale));
    } else {
        attributes.wrong(QStringLiteral("more than 64 scales"));
    }
}

void ViewReader::readBand(ViewStatement&, ViewAttributes& attributes)
{
    ViewBand band;
    const bool hasFrom =
        attributes.require(attributes.number("from", band.from, -kLargest, kLargest), "from");
    const bool hasTo =
        attributes.require(attributes.number("to", band.to, -kLargest, kLargest), "to");
    const bool hasColor = attributes.require(attributes.color("color", band.color), "color");
    if (openScales().empty()) {
        attributes.wrong(QStringLiteral("no scale before it"));
    } else if (hasFrom && hasTo && hasColor) {
        openScales().back().bands.push_back(band);
    }
}

void ViewReader::readMark(ViewStatement&, ViewAttributes& attributes)
{
    ViewBand mark;
    const bool hasPlace =
        attributes.require(attributes.number("at", mark.from, -kLargest, kLargest), "at");
    const bool hasColor = attributes.require(attributes.color("color", mark.color), "color");
    if (openScales().empty()) {
        attributes.wrong(QStringLiteral("no scale before it"));
    } else if (hasPlace && hasColor) {
        openScales().back().marks.push_back(mark);
    }
}

void ViewReader::readCaption(ViewAttributes& attributes, ViewCaption::Shows shows)
{
    ViewCaption caption;
    caption.shows = shows;
    caption.style.color =
        shows == ViewCaption::Shows::Unit ? mModel.colors.muted : mModel.colors.normal;
    textStyle(attributes, caption.style);
    if (place(attributes, "at", caption.style.at)) {
        binding().captions.push_back(caption);
    }
}

void ViewReader::readNumberText(ViewStatement&, ViewAttributes& attributes)
{
    readCaption(attributes, ViewCaption::Shows::Number);
}

void ViewReader::readUnitText(ViewStatement&, ViewAttributes& attributes)
{
    readCaption(attributes, ViewCaption::Shows::Unit);
}

void ViewReader::readCase(ViewStatement&, ViewAttributes& attributes)
{
    ViewCase read;
    const std::size_t before = mModel.conditions.size();
    condition(attributes, read.conditions);
    const bool hasCondition = attributes.require(mModel.conditions.size() > before, "if");
    attributes.text("text", read.text);
    attributes.color("color", read.color);
    if (hasCondition) {
        binding().cases.push_back(std::move(read));
    }
}

} // namespace Vista2D
