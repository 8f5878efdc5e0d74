#include "platform/viewlib/ViewInstrumentReader.h"

#include "platform/viewlib/ViewGeometry.h"

#include <memory>
#include <utility>

namespace Vista2D {

namespace {

constexpr double kLargest = 1e12; // of the values of a scale

} // namespace

const std::map<QString, ViewInstrumentReader::Line>& ViewInstrumentReader::lines()
{
    using Self = ViewInstrumentReader;
    static const std::set<Owner> scaled = {Owner::Scales, Owner::Instrument};
    static const std::map<QString, Line> all = {
        {QStringLiteral("scale"), {&Self::readScale, scaled}},
        {QStringLiteral("band"), {&Self::readBand, scaled}},
        {QStringLiteral("mark"), {&Self::readMark, scaled}},
        {QStringLiteral("number"), {&Self::readNumber, {Owner::Instrument}}},
        {QStringLiteral("unit"), {&Self::readUnit, {Owner::Instrument}}},
        {QStringLiteral("case"), {&Self::readCase, {Owner::Lamp, Owner::Instrument}}}};
    return all;
}

bool ViewInstrumentReader::knows(Owner owner, const QString& word)
{
    const auto line = lines().find(word);
    return line != lines().end() && line->second.owners.count(owner) > 0;
}

void ViewInstrumentReader::read(const QString& word)
{
    if (const auto line = lines().find(word); line != lines().end()) {
        (this->*line->second.read)();
    }
}

void ViewInstrumentReader::rangeOf(ViewScale& scale)
{
    const bool hasFrom = mAttributes.number("from", scale.from, -kLargest, kLargest);
    const bool hasTo = mAttributes.number("to", scale.to, -kLargest, kLargest);
    if (hasFrom != hasTo || (hasFrom && !scale.hasRange())) {
        mAttributes.wrong(QStringLiteral("needs a \"from\" and another \"to\""));
        scale.to = scale.from;
    }
    mAttributes.number("step", scale.step, 0.0, kLargest);
    mAttributes.number("minor", scale.minor, 1, ViewScale::kMostTicks);
    if (tickCount(scale) > ViewScale::kMostTicks) {
        mAttributes.wrong("step",
                          QStringLiteral("makes more than %1 ticks").arg(ViewScale::kMostTicks));
        scale.step = 0.0;
    }
}

void ViewInstrumentReader::readScale()
{
    ViewScale scale;
    mParts.condition(scale.conditions);
    rangeOf(scale);
    mAttributes.number("divide", scale.divide, 1e-9, kLargest);
    mAttributes.number("tickdecimals", scale.tickDecimals, 0, 9);
    mAttributes.number("factor", scale.factor, -kLargest, kLargest);
    mAttributes.number("offset", scale.offset, -kLargest, kLargest);
    mAttributes.number("round", scale.round, 0.0, kLargest);
    mAttributes.number("decimals", scale.decimals, 0, 9);
    mParts.shownText("unit", scale.unit);
    if (mScales.size() < kMostScales) {
        mScales.push_back(std::make_shared<const ViewScale>(std::move(scale)));
    } else {
        mAttributes.wrong(QStringLiteral("more than %1 scales").arg(kMostScales));
    }
}

/// Changes a copy: others may have the last scale too.
void ViewInstrumentReader::addToScale(Part part, const ViewBand& band)
{
    if (mScales.empty()) {
        mAttributes.wrong(QStringLiteral("no scale before it"));
        return;
    }
    auto changed = std::make_shared<ViewScale>(*mScales.back());
    std::vector<ViewBand>& list = part == Part::Band ? changed->bands : changed->marks;
    if (list.size() == kMostBands) {
        mAttributes.wrong(QStringLiteral("more than %1 of them at a scale").arg(kMostBands));
        return;
    }
    list.push_back(band);
    mScales.back() = std::move(changed);
}

void ViewInstrumentReader::readBand()
{
    ViewBand band;
    const bool hasFrom =
        mAttributes.require(mAttributes.number("from", band.from, -kLargest, kLargest), "from");
    const bool hasTo =
        mAttributes.require(mAttributes.number("to", band.to, -kLargest, kLargest), "to");
    const bool hasColor = mAttributes.require(mAttributes.color("color", band.color), "color");
    if (hasFrom && hasTo && hasColor) {
        addToScale(Part::Band, band);
    }
}

void ViewInstrumentReader::readMark()
{
    ViewBand mark;
    const bool hasPlace =
        mAttributes.require(mAttributes.number("at", mark.from, -kLargest, kLargest), "at");
    const bool hasColor = mAttributes.require(mAttributes.color("color", mark.color), "color");
    if (hasPlace && hasColor) {
        addToScale(Part::Mark, mark);
    }
}

void ViewInstrumentReader::readCaption(ViewCaption::Shows shows)
{
    ViewCaption caption;
    caption.shows = shows;
    caption.style.color =
        shows == ViewCaption::Shows::Unit ? mParts.colors().muted : mParts.colors().normal;
    mParts.textStyle(caption.style);
    if (mParts.place("at", caption.style.at)) {
        mBinding->captions.push_back(caption);
    }
}

void ViewInstrumentReader::readCase()
{
    ViewCase read;
    const bool hasCondition = mAttributes.require(mParts.condition(read.conditions), "if");
    mParts.shownText("text", read.text);
    mAttributes.color("color", read.color);
    if (hasCondition) {
        mBinding->cases.push_back(std::move(read));
    }
}

} // namespace Vista2D
