#include "views/graph/model/GraphTicks.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// More ticks than any screen can show; keeps damaged ranges from filling the memory.
constexpr int kMaxTicks = 10000;

struct Step
{
    double value = 0.0;
    int subdivisions = 0;

    [[nodiscard]] bool valid() const { return value > 0.0; }
};

/// The step of an axis as a double: 0.1 rather than its nearest single-precision number, whose
/// error would add up over the thousands of steps from 0 to a time of day.
Step stepFor(double range, double length, double spacing)
{
    float single = -1.0F;
    Step step;
    GraphTicks::getAutoPara(0.0F, static_cast<float>(range), static_cast<float>(length),
                            static_cast<float>(spacing), &single, &step.subdivisions);
    if (single > 0.0F) {
        step.value = QString::number(static_cast<double>(single), 'g', 6).toDouble();
    }
    return step;
}

/// Decimals by which neighbouring ticks differ.
int decimalsOfSecond(double step)
{
    int decimals = 0;
    for (double scaled = step; scaled < 0.999 && decimals < 9; scaled *= 10.0) {
        ++decimals;
    }
    return decimals;
}

template <typename Label>
std::vector<GraphTick> makeTicks(double minimum, double range, double length, const Step& step,
                                 const Label& label)
{
    std::vector<GraphTick> ticks;
    const double parts = step.subdivisions;
    const double first = std::ceil(minimum / step.value * parts - 1e-6);
    for (int i = 0; i < kMaxTicks; ++i) {
        const double number = first + i;
        const double value = number * step.value / parts;
        if (value - minimum > range * (1.0 + 1e-9)) {
            break;
        }
        GraphTick& tick = ticks.emplace_back();
        tick.value = value;
        tick.position = std::clamp((value - minimum) / range * length, 0.0, length);
        tick.major = std::fmod(number, parts) == 0.0;
        if (tick.major) {
            tick.label = label(value);
        }
    }
    return ticks;
}

double widestLabel(const std::vector<GraphTick>& ticks, const GraphTicks::LabelExtent& extent)
{
    double widest = 0.0;
    for (const GraphTick& tick : ticks) {
        if (!tick.label.isEmpty()) {
            widest = std::max(widest, extent(tick.label));
        }
    }
    return widest;
}

bool isUsable(double minimum, double maximum, double length)
{
    return std::isfinite(maximum - minimum) && maximum > minimum && length >= 1.0;
}

} // namespace

void GraphTicks::getAutoPara(float minimum, float maximum, float length, float spacing, float* step,
                             int* subdivisions)
{
    *step = -1.0F;
    *subdivisions = 0;
    const float range = maximum - minimum;
    const float raw = range / (length / spacing);
    if (!std::isfinite(raw) || raw <= 0.0F || raw > range) {
        return;
    }
    const float exponent = std::log10(std::abs(raw));
    float power = 1.0F;
    if (exponent > 1.0F) {
        power = std::pow(10.0F, std::trunc(exponent));
    } else if (exponent < 0.0F) {
        power = std::pow(10.0F, std::trunc(exponent - 1.0F));
    }
    const float mantissa = raw / power;
    float factor = 10.0F;
    *subdivisions = 5;
    if (mantissa < 1.0F) {
        factor = 1.0F;
    } else if (mantissa < 2.0F) {
        factor = 2.0F;
        *subdivisions = 4;
    } else if (mantissa < 5.0F) {
        factor = 5.0F;
    }
    *step = factor * power;
}

int GraphTicks::decimalsForStep(float step)
{
    const float exponent = std::log10(step);
    if (!std::isfinite(exponent) || exponent >= 1.0F) {
        return 0;
    }
    return static_cast<int>(std::abs(exponent) + 1.0F);
}

void GraphTicks::getAutoFormat(float step, QString& format)
{
    format = QString::asprintf("%%.%df", decimalsForStep(step));
}

QString GraphTicks::timeLabel(double seconds, int decimals)
{
    constexpr double kTooLarge = 1e9;
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::round(seconds * scale);
    if (!(rounded >= 0.0 && seconds < kTooLarge)) {
        return {};
    }
    const auto total = static_cast<qint64>(rounded);
    const auto unit = static_cast<qint64>(scale);
    const qint64 whole = total / unit;
    QString label =
        QString::asprintf("%d:%02d:%02d", static_cast<int>(whole / 3600),
                          static_cast<int>(whole / 60 % 60), static_cast<int>(whole % 60));
    if (decimals > 0) {
        label += QStringLiteral(".%1").arg(total % unit, decimals, 10, QLatin1Char('0'));
    }
    return label;
}

std::vector<GraphTick> GraphTicks::timeTicks(double xmin, double xmax, double length,
                                             const LabelExtent& labelWidth, double gap)
{
    std::vector<GraphTick> ticks;
    if (!isUsable(xmin, xmax, length)) {
        return ticks;
    }
    // Which labels there are depends on the step and the step on how wide they are, so it grows
    // until both fit: each round asks for at least the width that the last one lacked.
    double spacing = labelWidth(timeLabel(std::max(xmax, 0.0))) + gap;
    while (true) {
        const Step step = stepFor(xmax - xmin, length, spacing);
        if (!step.valid()) {
            return {};
        }
        const int decimals = decimalsOfSecond(step.value);
        ticks = makeTicks(xmin, xmax - xmin, length, step,
                          [decimals](double value) { return timeLabel(value, decimals); });
        const double needed = widestLabel(ticks, labelWidth) + gap;
        const bool overlap = needed > step.value / (xmax - xmin) * length;
        if (!overlap || !(needed > spacing)) {
            return ticks;
        }
        spacing = needed;
    }
}

std::vector<GraphTick> GraphTicks::valueTicks(double ymin, double ymax, double length,
                                              double labelHeight, double gap)
{
    if (!isUsable(ymin, ymax, length)) {
        return {};
    }
    const Step step = stepFor(ymax - ymin, length, labelHeight + gap);
    if (!step.valid()) {
        return {};
    }
    const int decimals = decimalsForStep(static_cast<float>(step.value));
    return makeTicks(ymin, ymax - ymin, length, step,
                     [decimals](double value) { return QString::number(value, 'f', decimals); });
}

} // namespace VELIX
