#include "views/graph/model/GraphTraceSet.h"

#include <algorithm>
#include <numeric>

namespace VELIX {

namespace {

constexpr std::array<GraphTraceSet::Color, 6> kDefaultColors = {{{1.0F, 0.0F, 0.0F},
                                                                 {0.0F, 0.7F, 0.0F},
                                                                 {0.0F, 0.0F, 0.7F},
                                                                 {0.5F, 0.5F, 0.0F},
                                                                 {0.0F, 0.5F, 0.5F},
                                                                 {0.5F, 0.0F, 0.5F}}};

} // namespace

void GraphTraceSet::setMaxParameters(unsigned int count)
{
    mParameters = std::vector<ParStruct>(std::min(count, kMaxTraces));
    for (std::size_t i = 0; i < mParameters.size(); ++i) {
        mParameters[i].color = kDefaultColors[i % kDefaultColors.size()];
        mParameters[i].colorKey = QString::asprintf("GraphColor%d", static_cast<int>(i));
    }
    mDisplayOrder.resize(mParameters.size());
    std::iota(mDisplayOrder.begin(), mDisplayOrder.end(), 0U);
    mSelected = kNoTrace;
    touch();
}

GraphTraceSet::ParStruct* GraphTraceSet::find(unsigned int i)
{
    if (i >= mParameters.size()) {
        return nullptr;
    }
    touch();
    return &mParameters[i];
}

void GraphTraceSet::setParameterName(unsigned int i, const std::string& name)
{
    if (ParStruct* found = find(i)) {
        found->name = QString::fromStdString(name);
    }
}

void GraphTraceSet::setParameterUnit(unsigned int i, const std::string& unit)
{
    if (ParStruct* found = find(i)) {
        found->unit = QString::fromStdString(unit);
    }
}

void GraphTraceSet::setParameterColor(unsigned int i, float red, float green, float blue)
{
    if (ParStruct* found = find(i)) {
        found->color = {red, green, blue};
    }
}

void GraphTraceSet::setPrecision(unsigned int i, int decimals)
{
    constexpr int kMostDecimals = 17;
    if (ParStruct* found = find(i)) {
        found->precision = std::clamp(decimals, 0, kMostDecimals);
    }
}

void GraphTraceSet::setVisible(unsigned int i, bool visible)
{
    if (ParStruct* found = find(i)) {
        found->visible = visible;
    }
}

void GraphTraceSet::activateSamples(unsigned int i, bool on)
{
    if (ParStruct* found = find(i)) {
        found->samples = on;
    }
}

unsigned int GraphTraceSet::nrActive() const
{
    return static_cast<unsigned int>(
        std::count_if(mParameters.begin(), mParameters.end(),
                      [](const ParStruct& parameter) { return parameter.active; }));
}

bool GraphTraceSet::isShown(unsigned int i) const
{
    return i < mParameters.size() && mParameters[i].active && mParameters[i].visible;
}

bool GraphTraceSet::hasShownSamples() const
{
    return std::any_of(mDisplayOrder.begin(), mDisplayOrder.end(), [this](unsigned int i) {
        return isShown(i) && !mParameters[i].trace.isEmpty();
    });
}

void GraphTraceSet::moveParameter(unsigned int from, unsigned int to)
{
    if (from >= mDisplayOrder.size() || to >= mDisplayOrder.size()) {
        return;
    }
    const unsigned int moved = mDisplayOrder[from];
    mDisplayOrder.erase(mDisplayOrder.begin() + from);
    mDisplayOrder.insert(mDisplayOrder.begin() + to, moved);
    touch();
}

unsigned int GraphTraceSet::selectedTrace() const
{
    if (isShown(mSelected)) {
        return mSelected;
    }
    const auto shown = std::find_if(mDisplayOrder.begin(), mDisplayOrder.end(),
                                    [this](unsigned int i) { return isShown(i); });
    return shown == mDisplayOrder.end() ? kNoTrace : *shown;
}

void GraphTraceSet::setSelectedTrace(unsigned int i)
{
    mSelected = i;
    touchPointer();
}

bool GraphTraceSet::getValue(unsigned int i, double t, double& v) const
{
    v = 0.0;
    return i < mParameters.size() && mParameters[i].trace.getValue(t, v);
}

bool GraphTraceSet::getParameterRangeX(unsigned int i, double& first, double& last) const
{
    const bool known = i < mParameters.size() && !mParameters[i].trace.isEmpty();
    first = known ? mParameters[i].trace.firstTime() : 0.0;
    last = known ? mParameters[i].trace.latestTime() : 0.0;
    return known;
}

bool GraphTraceSet::getParameterRangeY(unsigned int i, double& low, double& high) const
{
    const bool known = i < mParameters.size() && mParameters[i].trace.hasRange();
    low = known ? mParameters[i].trace.minimum() : 0.0;
    high = known ? mParameters[i].trace.maximum() : 0.0;
    return known;
}

} // namespace VELIX
