// The lines of instruments.

#include "platform/viewlib/ViewGeometry.h"
#include "platform/viewlib/ViewReader.h"

namespace Vista2D {

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
    if (tickCount(scale) > kMostTicks) {
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
    shownText(attributes, "unit", scale.unit);
    ViewScales& scales = openScales();
    if (scales.size() < kMostScales) {
        scales.push_back(std::make_shared<const ViewScale>(std::move(scale)));
    } else {
        attributes.wrong(QStringLiteral("more than %1 scales").arg(kMostScales));
    }
}

/// Changes a copy: others may have the last scale too.
void ViewReader::addToScale(ViewAttributes& attributes, Part part, const ViewBand& band)
{
    ViewScales& scales = openScales();
    if (scales.empty()) {
        attributes.wrong(QStringLiteral("no scale before it"));
        return;
    }
    auto changed = std::make_shared<ViewScale>(*scales.back());
    std::vector<ViewBand>& list = part == Part::Band ? changed->bands : changed->marks;
    if (list.size() == kMostBands) {
        attributes.wrong(QStringLiteral("more than %1 of them at a scale").arg(kMostBands));
        return;
    }
    list.push_back(band);
    scales.back() = std::move(changed);
}

void ViewReader::readBand(ViewStatement&, ViewAttributes& attributes)
{
    ViewBand band;
    const bool hasFrom =
        attributes.require(attributes.number("from", band.from, -kLargest, kLargest), "from");
    const bool hasTo =
        attributes.require(attributes.number("to", band.to, -kLargest, kLargest), "to");
    const bool hasColor = attributes.require(attributes.color("color", band.color), "color");
    if (hasFrom && hasTo && hasColor) {
        addToScale(attributes, Part::Band, band);
    }
}

void ViewReader::readMark(ViewStatement&, ViewAttributes& attributes)
{
    ViewBand mark;
    const bool hasPlace =
        attributes.require(attributes.number("at", mark.from, -kLargest, kLargest), "at");
    const bool hasColor = attributes.require(attributes.color("color", mark.color), "color");
    if (hasPlace && hasColor) {
        addToScale(attributes, Part::Mark, mark);
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
    shownText(attributes, "text", read.text);
    attributes.color("color", read.color);
    if (hasCondition) {
        binding().cases.push_back(std::move(read));
    }
}

} // namespace Vista2D
