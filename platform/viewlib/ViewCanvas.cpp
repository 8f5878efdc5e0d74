#include "platform/viewlib/ViewCanvas.h"

#include "platform/viewlib/ViewModel.h"
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
    mConditions.clear();
}

bool ViewCanvas::isOutdated(const ViewVariables& variables) const
{
    return mStill.isNull() || mRevision != variables.revision();
}

void ViewCanvas::findConditions(const ViewModel& model)
{
    mConditions.clear();
    const auto append = [this](const ConditionList& list) {
        mConditions.insert(mConditions.end(), list.begin(), list.end());
    };
    for (const ViewElement& element : model.elements) {
        append(element.conditions);
        if (const ViewBinding* binding = bindingOf(element); binding != nullptr) {
            for (const ViewScale& scale : binding->scales) {
                append(scale.conditions);
            }
        }
    }
    std::sort(mConditions.begin(), mConditions.end());
    mConditions.erase(std::unique(mConditions.begin(), mConditions.end()), mConditions.end());
}

std::vector<bool> ViewCanvas::truths(const ViewModel& model, const ViewVariables& variables) const
{
    std::vector<bool> all;
    all.reserve(mConditions.size());
    for (const int condition : mConditions) {
        all.push_back(model.conditions[static_cast<std::size_t>(condition)].holds(variables));
    }
    return all;
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
    mStill.fill(mHasGround ? model.colors.background : QColor(Qt::transparent));
    QPainter painter(&mStill);
    ViewSurface surface(painter, mScale, model.colors);
    ViewPainter(model, variables, surface).paintStill();
}

void ViewCanvas::paintFrame(const ViewModel& model, const ViewVariables& variables)
{
    if (mFrame.isNull()) {
        return;
    }
    std::memcpy(mFrame.bits(), mStill.constBits(), static_cast<std::size_t>(mStill.sizeInBytes()));
    QPainter painter(&mFrame);
    ViewSurface surface(painter, mScale, model.colors);
    ViewPainter(model, variables, surface).paintMoving();
}

const QImage& ViewCanvas::picture(const ViewModel& model, const ViewVariables& variables,
                                  double scale, bool hasGround)
{
    if (mStill.isNull()) {
        findConditions(model);
    }
    const bool isOther = mStill.isNull() || mScale != scale || mHasGround != hasGround;
    if (!isOther && mRevision == variables.revision()) {
        return mFrame;
    }
    std::vector<bool> now = truths(model, variables);
    if (isOther || now != mTruths) {
        mScale = scale;
        mHasGround = hasGround;
        mTruths = std::move(now);
        paintStill(model, variables);
    }
    mRevision = variables.revision();
    paintFrame(model, variables);
    return mFrame;
}

} // namespace Vista2D
