#include "platform/viewlib/ViewGeometry.h"

#include "platform/viewlib/ViewModel.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Vista2D {

namespace {

constexpr double kLongestNumber = 1e12; // more digits than any instrument has room for

QString fixed(double number, int decimals)
{
    // Rounded here, since "-0" is no number on an instrument.
    const double power = std::pow(10.0, decimals);
    const double rounded = std::round(number * power) / power;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'f', decimals);
}

} // namespace

double shownValue(const ViewScale& scale, double value)
{
    return value * scale.factor + scale.offset;
}

double partOfRange(const ViewScale& scale, double shown)
{
    if (!scale.hasRange() || std::isnan(shown)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return std::clamp((shown - scale.from) / (scale.to - scale.from), 0.0, 1.0);
}

double angleOf(const ViewGauge& gauge, const ViewScale& scale, double shown)
{
    return gauge.start + (gauge.end - gauge.start) * partOfRange(scale, shown);
}

QPointF onCircle(const QPointF& center, double radius, double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    return center + QPointF(std::sin(angle), -std::cos(angle)) * radius;
}

std::vector<ViewTick> ticksOf(const ViewScale& scale)
{
    std::vector<ViewTick> ticks;
    if (!(scale.step > 0.0) || !scale.hasRange()) {
        return ticks;
    }
    const double least = std::min(scale.from, scale.to);
    const double most = std::max(scale.from, scale.to);
    const double part = scale.step / scale.minor;
    constexpr double kSlack = 1e-6; // of a part: the ends belong to the scale
    const double first = std::ceil(least / part - kSlack);
    for (int i = 0; i <= ViewScale::kMostTicks; ++i) {
        const double number = first + i;
        if (number * part > most + kSlack * part) {
            break;
        }
        ticks.push_back({number * part, std::fmod(number, scale.minor) == 0.0});
    }
    return ticks;
}

double tickCount(const ViewScale& scale)
{
    return scale.step > 0.0 ? std::fabs(scale.to - scale.from) / scale.step * scale.minor : 0.0;
}

QString numberText(const ViewScale& scale, double shown)
{
    if (!std::isfinite(shown) || std::fabs(shown) > kLongestNumber) {
        return QStringLiteral("- -");
    }
    const double rounded =
        scale.round > 0.0 ? std::round(shown / scale.round) * scale.round : shown;
    return fixed(rounded, scale.decimals);
}

QString tickText(const ViewScale& scale, double at)
{
    return fixed(at / scale.divide, scale.tickDecimals);
}

} // namespace Vista2D
