#include "views/graph/widget/GraphScene.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphTexts.h"

#include <QFontDatabase>
#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// Widths are rounded up to this, so that the plot does not move with every digit.
constexpr int kWidthStep = 8;
constexpr int kLeastAxisWidth = 24;
constexpr int kMostNameWidth = 160;
constexpr double kGap = 16.0;    ///< pixels between labels of a value axis
constexpr double kBandGap = 3.0; ///< in a band, which is low

int roundedUp(int width)
{
    return (width + kWidthStep - 1) / kWidthStep * kWidthStep;
}

/// Whether a label is wholly inside a band.
bool hasRoomForLabel(const std::vector<GraphTick>& ticks, int height, int line)
{
    return std::any_of(ticks.begin(), ticks.end(), [height, line](const GraphTick& tick) {
        return !tick.label.isEmpty() && tick.position >= line / 2.0 &&
               tick.position <= height - line / 2.0;
    });
}

/// For bands so low that regular ticks have no room: a round value near the middle, so that the
/// eye knows at least how large the values are.
std::vector<GraphTick> loneTick(const GraphYScale& scale, int height, int line)
{
    if (height < line) {
        return {};
    }
    const double room = scale.span() * std::max(1, height - line + 1) / height;
    const double step = std::pow(10.0, std::floor(std::log10(room)));
    for (const double part : {5.0, 2.0, 1.0, 0.5}) {
        const double middle = (scale.minimum + scale.maximum) / 2.0;
        const double value = std::round(middle / (part * step)) * part * step;
        const double position = scale.fraction(value) * height;
        if (position >= line / 2.0 && position <= height - line / 2.0) {
            const int decimals =
                std::max(0, static_cast<int>(-std::floor(std::log10(part * step))));
            return {{value, position, true, QString::number(value, 'f', decimals)}};
        }
    }
    return {};
}

void fillTicks(GraphScene& scene, const GraphModel& model, const QFontMetrics& metrics)
{
    scene.valueTicks.clear();
    for (int band = 0; band < scene.layout.bandCount(); ++band) {
        const bool single = scene.layout.bandAt(0) < 0;
        if (single && scene.shown.empty()) {
            break;
        }
        const unsigned int trace = scene.shown[static_cast<std::size_t>(band)];
        const GraphYScale& scale = single ? model.commonScale() : model.scaleOf(trace);
        const int height = scene.layout.band(band).height();
        scene.valueTicks.push_back(GraphTicks::valueTicks(
            scale.minimum, scale.maximum, height, metrics.height(), single ? kGap : kBandGap));
        if (!single && !hasRoomForLabel(scene.valueTicks.back(), height, metrics.height())) {
            scene.valueTicks.back() = loneTick(scale, height, metrics.height());
        }
    }
}

int axisWidth(const GraphScene& scene, const QFontMetrics& metrics)
{
    int width = kLeastAxisWidth;
    for (const std::vector<GraphTick>& ticks : scene.valueTicks) {
        for (const GraphTick& tick : ticks) {
            if (!tick.label.isEmpty()) {
                width = std::max(width, metrics.horizontalAdvance(tick.label));
            }
        }
    }
    return roundedUp(width);
}

QFont fixedFontLike(const QFont& font)
{
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (font.pixelSize() > 0) {
        fixed.setPixelSize(font.pixelSize());
    } else {
        fixed.setPointSizeF(font.pointSizeF());
    }
    return fixed;
}

} // namespace

GraphScene GraphScene::make(const GraphModel& model, const GraphLook& look, const QSize& size,
                            const QFont& font)
{
    GraphScene scene;
    scene.font = font;
    scene.fixedFont = fixedFontLike(font);
    const QFontMetrics metrics(font);
    const QFontMetrics fixed(scene.fixedFont);

    GraphLayoutInput input;
    input.size = size;
    input.lineHeight = std::max(metrics.height(), fixed.height());
    input.legend = look.legendOn;
    input.split = model.displayMode() != GraphModel::DisplaySingle;
    input.nameWidth = 0;
    for (const unsigned int trace : model.displayOrder()) {
        const GraphModel::ParStruct& parameter = model.parameter(trace);
        if (!parameter.active) {
            continue;
        }
        scene.listed.push_back(trace);
        if (model.isShown(trace)) {
            scene.shown.push_back(trace);
        }
        input.nameWidth = std::max(input.nameWidth, metrics.horizontalAdvance(parameter.name));
        input.valuesWidth =
            std::max(input.valuesWidth,
                     fixed.horizontalAdvance(GraphTexts::legendValues(model, trace, false)));
    }
    input.nameWidth = std::min(roundedUp(input.nameWidth), kMostNameWidth);
    input.valuesWidth = roundedUp(input.valuesWidth);
    input.traces = static_cast<int>(scene.shown.size());
    input.legendRows = static_cast<int>(scene.listed.size());

    // The labels of the value axes need the plot's height only, which no width changes.
    input.axisWidth = 0;
    scene.layout = GraphLayout(input);
    if (scene.layout.empty()) {
        return scene;
    }
    fillTicks(scene, model, metrics);
    input.axisWidth = axisWidth(scene, metrics);
    scene.layout = GraphLayout(input);
    if (!scene.layout.empty()) {
        scene.timeTicks = GraphTicks::timeTicks(
            model.xmin(), model.xmax(), scene.layout.plot().width(),
            [&metrics](const QString& label) { return metrics.horizontalAdvance(label); });
    }
    return scene;
}

int GraphScene::positionOf(unsigned int trace) const
{
    const auto found = std::find(shown.begin(), shown.end(), trace);
    return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
}

} // namespace VELIX
