#include "platform/viewlib/ViewReader.h"

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewInstrumentReader.h"
#include "platform/viewlib/ViewShapes.h"
#include "platform/viewlib/ViewStatement.h"
#include "platform/viewlib/ViewVariables.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace Vista2D {

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

/// Null for a word that means nothing in such a block.
ViewReader::Handler ViewReader::handlerOf(Block::Kind kind, const QString& word)
{
    using Owner = ViewInstrumentReader::Owner;
    static const std::map<Block::Kind, Owner> owners = {
        {Block::Kind::Scales, Owner::Scales},
        {Block::Kind::Lamp, Owner::Lamp},
        {Block::Kind::Instrument, Owner::Instrument}};
    static const std::map<QString, Handler> ofFile = {
        {QStringLiteral("view"), &ViewReader::readView},
        {QStringLiteral("colors"), &ViewReader::readColors},
        {QStringLiteral("scales"), &ViewReader::readScales}};
    if (const auto owner = owners.find(kind); owner != owners.end()) {
        return ViewInstrumentReader::knows(owner->second, word) ? &ViewReader::readInstrumentLine
                                                                : nullptr;
    }
    if (const auto handler = ofFile.find(word);
        kind == Block::Kind::File && handler != ofFile.end()) {
        return handler->second;
    }
    if (word == QLatin1String("group")) {
        return &ViewReader::readGroup;
    }
    return shapeReader(word) != nullptr ? &ViewReader::readElement : nullptr;
}

void ViewReader::readStatement(ViewStatement& statement)
{
    const std::size_t open = mBlocks.size() + mIgnored;
    if (block().kind != Block::Kind::Unknown && mIgnored == 0) {
        const Handler handler = handlerOf(block().kind, statement.word());
        if (handler == nullptr) {
            mErrors.add(statement.line(), statement.word(),
                        mBlocks.size() == 1 ? QStringLiteral("unknown")
                                            : QStringLiteral("unknown in a %1").arg(block().word));
        } else {
            ViewAttributes attributes(statement, mErrors, mColors);
            ViewParts parts(attributes, block().origin, mModel, mVariables, mScales);
            (this->*handler)(statement, parts);
            if (const QString* name = statement.unused(); name != nullptr) {
                attributes.wrong(
                    QStringLiteral("attribute \"%1\" is unknown or given twice").arg(*name));
            }
        }
    }
    if (statement.opensBlock() && mBlocks.size() + mIgnored == open) {
        skipBlock(statement);
    }
}

/// What is in the block of an element that could not be used is skipped in silence.
void ViewReader::skipBlock(const ViewStatement& statement)
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

namespace {

/// What there is to draw in an instrument, with the scale that has most.
std::size_t detailsOf(const ViewBinding& binding)
{
    std::size_t most = 0;
    for (const auto& scale : binding.scales) {
        const auto ticks = static_cast<std::size_t>(tickCount(*scale));
        most = std::max(most, ticks + scale->bands.size() + scale->marks.size());
    }
    return most + binding.captions.size();
}

} // namespace

/// The instrument is the last element: its block holds no others.
void ViewReader::checkInstrument(const Block& closed)
{
    const std::size_t details = detailsOf(*bindingOf(mModel.elements[closed.element]));
    if (mDetails + details > kMostDetails) {
        if (!mCrowded) {
            mErrors.add(closed.line, closed.word,
                        QStringLiteral("more than %1 ticks, bands, marks and texts in the view")
                            .arg(kMostDetails));
        }
        mCrowded = true;
        mModel.elements.pop_back();
        return;
    }
    mDetails += details;
    checkRange(closed);
}

/// A dial without a range has nowhere to point.
void ViewReader::checkRange(const Block& closed)
{
    const ViewElement& element = mModel.elements[closed.element];
    const bool needsRange = std::holds_alternative<ViewGauge>(element.shape) ||
                            std::holds_alternative<ViewBar>(element.shape);
    if (!needsRange) {
        return;
    }
    const ViewScales& scales = bindingOf(element)->scales;
    const bool hasRange =
        !scales.empty() && std::all_of(scales.begin(), scales.end(),
                                       [](const auto& scale) { return scale->hasRange(); });
    if (!hasRange) {
        mErrors.add(closed.line, closed.word,
                    QStringLiteral("needs a scale with \"from\" and \"to\""));
    }
}

// --- statements

void ViewReader::readView(ViewStatement& /*statement*/, ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    attributes.require(readSize(attributes, "size", Layout::Wide), "size");
    mHasTall = readSize(attributes, "tall", Layout::Tall);
    mHasLow = readSize(attributes, "low", Layout::Low);
    attributes.color("background", mModel.colors.background);
    mColors[QStringLiteral("background")] = mModel.colors.background;
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

void ViewReader::readColors(ViewStatement& statement, ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
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

void ViewReader::readScales(ViewStatement& statement, ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
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

void ViewReader::readGroup(ViewStatement& statement, ViewParts& parts)
{
    ViewAttributes& attributes = parts.attributes();
    Block inside;
    inside.kind = Block::Kind::Group;
    inside.conditions = block().conditions;
    parts.condition(inside.conditions);
    QPointF shift;
    attributes.pair("at", shift, -ViewParts::kFarthest, ViewParts::kFarthest);
    QPointF tall = shift;
    QPointF low = shift;
    attributes.pair("tall", tall, -ViewParts::kFarthest, ViewParts::kFarthest);
    attributes.pair("low", low, -ViewParts::kFarthest, ViewParts::kFarthest);
    inside.origin = block().origin + (mLayout == Layout::Tall  ? tall
                                      : mLayout == Layout::Low ? low
                                                               : shift);
    if (statement.opensBlock()) {
        open(statement, std::move(inside));
    }
}

void ViewReader::readElement(ViewStatement& statement, ViewParts& parts)
{
    if (std::optional<ViewShape> shape = shapeReader(statement.word())(parts)) {
        add(statement, parts, std::move(*shape));
    }
}

void ViewReader::readInstrumentLine(ViewStatement& statement, ViewParts& parts)
{
    const Block& open = block();
    if (open.kind == Block::Kind::Scales) {
        ViewInstrumentReader(parts, mScales[open.scales], nullptr).read(statement.word());
    } else {
        ViewBinding& binding = *bindingOf(mModel.elements[open.element]);
        ViewInstrumentReader(parts, binding.scales, &binding).read(statement.word());
    }
}

void ViewReader::add(const ViewStatement& statement, ViewParts& parts, ViewShape shape)
{
    if (mModel.elements.size() == kMostElements) {
        if (!mFull) {
            parts.attributes().wrong(QStringLiteral("more than %1 elements").arg(kMostElements));
        }
        mFull = true;
        return;
    }
    ViewElement element;
    element.conditions = block().conditions;
    parts.condition(element.conditions);
    Block inside;
    inside.kind =
        std::holds_alternative<ViewLamp>(shape) ? Block::Kind::Lamp : Block::Kind::Instrument;
    element.shape = std::move(shape);
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

} // namespace Vista2D
