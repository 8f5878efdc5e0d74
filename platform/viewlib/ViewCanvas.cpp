#include "platform/viewlib/ViewCanvas.h"

#include "platform/viewlib/ViewPainter.h"
#include "platform/viewlib/ViewSurface.h"
#include "platform/viewlib/ViewVariables.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Vista2D {

namespace {

constexpr int kDotsPerMeter = 2835; // 72 per inch

/// Whole pixels that hold a length; scales are not exact, since OpenGL's matrices are not.
int edge(double pixels)
{
    return std::max(1, static_cast<int>(std::ceil(pixels - 0.01)));
}

} // namespace

double ViewCanvas::usableScale(const ViewModel& model, double scale)
{
    const double longest = std::max(model.size.width(), model.size.height());
    return std::min(scale, kLargestEdge / longest);
}

void ViewCanvas::forget()
{
    mStill = QImage();
    mMovesStill.clear();
}

bool ViewCanvas::isOutdated(const ViewVariables& variables) const
{
    return mStill.isNull() || mRevision != variables.revision();
}

void ViewCanvas::findConditions(const ViewModel& model)
{
    mMovesStill.assign(model.conditions.size(), false);
    const auto take = [this](const ConditionList& list) {
        for (const int condition : list) {
            mMovesStill[static_cast<std::size_t>(condition)] = true;
        }
    };
    for (const ViewElement& element : model.elements) {
        take(element.conditions);
        if (const ViewBinding* binding = bindingOf(element); binding != nullptr) {
            for (const auto& scale : binding->scales) {
                take(scale->conditions);
            }
        }
    }
}

bool ViewCanvas::isStillAsBefore(const ConditionResults& results) const
{
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (mMovesStill[i] && results[i] != mResults[i]) {
            return false;
        }
    }
    return true;
}

void ViewCanvas::paintStill(const ViewModel& model, const ViewVariables& variables)
{
    const QSize size(edge(model.size.width() * mScale), edge(model.size.height() * mScale));
    if (mStill.size() != size) {
        mStill = QImage(size, QImage::Format_ARGB32_Premultiplied);
        mStill.setDotsPerMeterX(kDotsPerMeter);
        mStill.setDotsPerMeterY(kDotsPerMeter);
        mFrame = mStill.copy();
    }
    if (mStill.isNull()) {
        return; // no memory for it
    }
    mStill.fill(mHasBackground ? model.colors.background : QColor(Qt::transparent));
    QPainter painter(&mStill);
    ViewSurface surface(painter, mScale, model.colors);
    ViewPainter(model, mResults, variables, surface).paintStill();
}

void ViewCanvas::paintFrame(const ViewModel& model, const ViewVariables& variables)
{
    if (mFrame.isNull()) {
        return;
    }
    std::memcpy(mFrame.bits(), mStill.constBits(), static_cast<std::size_t>(mStill.sizeInBytes()));
    QPainter painter(&mFrame);
    ViewSurface surface(painter, mScale, model.colors);
    ViewPainter(model, mResults, variables, surface).paintMoving();
}

const QImage& ViewCanvas::frame(const ViewModel& model, const ViewVariables& variables,
                                double scale, bool hasBackground)
{
    if (mStill.isNull()) {
        findConditions(model);
    }
    const bool isOther = mStill.isNull() || mScale != scale || mHasBackground != hasBackground;
    if (!isOther && mRevision == variables.revision()) {
        return mFrame;
    }
    ConditionResults now = model.results(variables);
    const bool isStill = !isOther && isStillAsBefore(now);
    mResults = std::move(now);
    if (!isStill) {
        mScale = scale;
        mHasBackground = hasBackground;
        paintStill(model, variables);
    }
    mRevision = variables.revision();
    paintFrame(model, variables);
    return mFrame;
}

} // namespace Vista2D
