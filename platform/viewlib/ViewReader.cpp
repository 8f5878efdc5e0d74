#include "platform/viewlib/ViewReader.h"

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewVariables.h"

#include <algorithm>

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
    static const std::map<QString, Handler> lamp = {
        {QStringLiteral("case"), &ViewReader::readCase}};
    switch (kind) {
    case Block::Kind::Lamp:
        return lamp;
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

// --- parts of several elements

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

/// A longer text than a panel has room for would cost time with every picture.
bool ViewReader::shownText(ViewAttributes& attributes, const char* name, QString& target)
{
    QString given;
    if (!attributes.text(name, given)) {
        return false;
    }
    if (given.size() > kLongestText) {
        attributes.wrong(name, QStringLiteral("is longer than %1 characters").arg(kLongestText));
        given.truncate(kLongestText);
    }
    target = given;
    return true;
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

bool ViewReader::bindVariable(ViewAttributes& attributes, ViewBinding& target)
{
    QString name;
    if (!attributes.text("var", name) || name.isEmpty()) {
        return false;
    }
    target.slot = mVariables.slot(name.toStdString());
    target.stateSlot = mVariables.slot(name.toStdString() + "_STATE");
    target.missingSlot = mVariables.slot(name.toStdString() + "_MISSING");
    mModel.slotsUsed.insert({target.slot, target.stateSlot, target.missingSlot});
    return true;
}

void ViewReader::bindInstrument(ViewAttributes& attributes, ViewBinding& target)
{
    attributes.require(bindVariable(attributes, target), "var");
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
    return *bindingOf(mModel.elements[block().element]);
}

ViewScales& ViewReader::openScales()
{
    return block().kind == Block::Kind::Scales ? mScales[block().scales] : binding().scales;
}

} // namespace Vista2D
