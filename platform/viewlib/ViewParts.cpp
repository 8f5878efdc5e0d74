#include "platform/viewlib/ViewParts.h"

#include "platform/viewlib/ViewVariables.h"

#include <utility>

namespace Vista2D {

bool ViewParts::condition(ConditionList& target)
{
    QString text;
    if (!mAttributes.text("if", text)) {
        return false;
    }
    ViewCondition parsed;
    const QString mistake = parsed.parse(text, mVariables);
    if (!mistake.isEmpty()) {
        mAttributes.wrong("if", mistake);
        return false;
    }
    for (const int slot : parsed.slotsRead()) {
        mModel.slotsUsed.insert(slot);
    }
    target.push_back(static_cast<int>(mModel.conditions.size()));
    mModel.conditions.push_back(std::move(parsed));
    return true;
}

bool ViewParts::place(const char* name, QPointF& target)
{
    QPointF given;
    if (!mAttributes.require(mAttributes.pair(name, given, -kFarthest, kFarthest), name)) {
        return false;
    }
    target = given + mOrigin;
    return true;
}

bool ViewParts::box(QRectF& target)
{
    QPointF corner;
    QPointF size;
    const bool hasCorner = place("at", corner);
    const bool hasSize =
        mAttributes.require(mAttributes.pair("size", size, 0.0, kFarthest), "size");
    target = QRectF(corner, QSizeF(size.x(), size.y()));
    return hasCorner && hasSize;
}

/// A longer text than a panel has room for would cost time with every frame.
bool ViewParts::shownText(const char* name, QString& target)
{
    QString given;
    if (!mAttributes.text(name, given)) {
        return false;
    }
    if (given.size() > kLongestText) {
        mAttributes.wrong(name, QStringLiteral("is longer than %1 characters").arg(kLongestText));
        given.truncate(kLongestText);
    }
    target = given;
    return true;
}

void ViewParts::textStyle(ViewText& style)
{
    using Align = ViewText::Align;
    mAttributes.number("size", style.size, 1.0, kLargestText);
    mAttributes.number("width", style.width, 0.0, kFarthest);
    mAttributes.color("color", style.color);
    mAttributes.yesOrNo("bold", style.bold);
    mAttributes.choice<Align>(
        "align", style.align,
        {{"left", Align::Left}, {"center", Align::Center}, {"right", Align::Right}});
}

bool ViewParts::bindVariable(ViewBinding& target)
{
    QString name;
    if (!mAttributes.text("var", name) || name.isEmpty()) {
        return false;
    }
    target.slot = mVariables.slot(name.toStdString());
    target.stateSlot = mVariables.slot(name.toStdString() + "_STATE");
    target.missingSlot = mVariables.slot(name.toStdString() + "_MISSING");
    mModel.slotsUsed.insert({target.slot, target.stateSlot, target.missingSlot});
    return true;
}

void ViewParts::bindInstrument(ViewBinding& target)
{
    mAttributes.require(bindVariable(target), "var");
    QString scales;
    if (mAttributes.text("scales", scales)) {
        const auto known = mScales.find(scales);
        if (known != mScales.end()) {
            target.scales = known->second;
        } else {
            mAttributes.wrong("scales", QStringLiteral("knows no \"%1\"").arg(scales.left(40)));
        }
    }
}

} // namespace Vista2D
