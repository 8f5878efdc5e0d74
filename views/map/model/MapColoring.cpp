#include "views/map/model/MapColoring.h"

#include "card/SampleWalk.h"
#include "profile/Profile.h"
#include "views/map/model/MapTexts.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace VELIX {

namespace {

constexpr double kFeetPerMetre = 1.0 / 0.3048;
constexpr std::size_t kSteps = 256;

struct Stop
{
    double at;
    std::array<double, 3> color;
};

/// From deep blue over violet to orchid: none of it means a state, and all of it stands out from
/// the greens and greys of a map.
constexpr std::array<Stop, 4> kStops{
    {{0.0, {30, 42, 140}}, {0.4, {112, 40, 190}}, {0.75, {206, 40, 178}}, {1.0, {240, 120, 240}}}};

QRgb mixed(double fraction)
{
    std::size_t right = 1;
    while (right + 1 < kStops.size() && kStops[right].at < fraction) {
        ++right;
    }
    const Stop& from = kStops[right - 1];
    const Stop& to = kStops[right];
    const double part = std::clamp((fraction - from.at) / (to.at - from.at), 0.0, 1.0);
    const auto channel = [&](std::size_t i) {
        return static_cast<int>(std::lround(std::lerp(from.color[i], to.color[i], part)));
    };
    return qRgb(channel(0), channel(1), channel(2));
}

/// Colours along the range of the values; those that are not numbers are grey.
std::vector<QRgb> colorsOf(const std::vector<double>& values, double lowest, double highest)
{
    const double span = highest > lowest ? highest - lowest : 1.0;
    std::vector<QRgb> colors;
    colors.reserve(values.size());
    for (const double value : values) {
        colors.push_back(std::isfinite(value) ? MapColoring::scale((value - lowest) / span)
                                              : qRgb(128, 128, 128));
    }
    return colors;
}

/// Lowest and highest of the finite values; 0 and 0 without one.
std::pair<double, double> rangeOf(const std::vector<double>& values)
{
    std::pair<double, double> range{INFINITY, -INFINITY};
    for (const double value : values) {
        if (std::isfinite(value)) {
            range.first = std::min(range.first, value);
            range.second = std::max(range.second, value);
        }
    }
    return range.first <= range.second ? range : std::pair<double, double>{0.0, 0.0};
}

MapColoring coloring(const QString& name, const QString& unit, int decimals,
                     const std::vector<double>& values)
{
    const auto [lowest, highest] = rangeOf(values);
    MapColoring result;
    result.title = unit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, unit);
    result.lowest = QString::number(lowest, 'f', decimals);
    result.highest = highest > lowest ? QString::number(highest, 'f', decimals) : QString();
    result.colors = colorsOf(values, lowest, highest);
    return result;
}

bool isWhole(double value)
{
    return !std::isfinite(value) || value == std::round(value);
}

/// Returns the decimals that distinguish the ends of a scale.
int decimalsOf(const std::vector<double>& values)
{
    if (std::all_of(values.begin(), values.end(), isWhole)) {
        return 0;
    }
    const auto [lowest, highest] = rangeOf(values);
    return NumberFormat::decimalsOfSpan(highest - lowest);
}

/// An enumeration's values have names.
void nameEnds(MapColoring& coloring, const std::vector<double>& values, const Profile& profile,
              const ProfileParameter& parameter)
{
    const ProfileEnum* names = profile.enumeration(parameter);
    if (names == nullptr) {
        return;
    }
    const auto named = [names](const QString& number, double value) {
        if (number.isEmpty() || std::abs(value) > std::numeric_limits<int>::max()) {
            return number;
        }
        const auto found = names->values.find(static_cast<int>(value));
        return found == names->values.end() ? number : found->second.label;
    };
    const auto [lowest, highest] = rangeOf(values);
    coloring.lowest = named(coloring.lowest, lowest);
    coloring.highest = named(coloring.highest, highest);
}

} // namespace

QRgb MapColoring::scale(double fraction)
{
    static const std::array<QRgb, kSteps> table = [] {
        std::array<QRgb, kSteps> entries{};
        for (std::size_t i = 0; i < kSteps; ++i) {
            entries[i] = mixed(static_cast<double>(i) / (kSteps - 1));
        }
        return entries;
    }();
    const double step = std::clamp(fraction, 0.0, 1.0) * (kSteps - 1);
    return table[static_cast<std::size_t>(std::lround(step))];
}

MapColoring MapColoring::byAltitude(const std::vector<FlightPathPoint>& path, bool imperial)
{
    const double factor = imperial ? kFeetPerMetre : 1.0;
    std::vector<double> values;
    values.reserve(path.size());
    for (const FlightPathPoint& point : path) {
        values.push_back(point.altitude * factor);
    }
    return coloring(tr("Altitude"), imperial ? QStringLiteral("ft") : QStringLiteral("m"), 0,
                    values);
}

MapColoring MapColoring::byParameter(const std::vector<FlightPathPoint>& path,
                                     const RecordData& record, const Profile& profile,
                                     const ProfileParameter& parameter)
{
    const ProfileDecoder decoder = profile.decoder();
    std::vector<double> values;
    std::vector<QRgb> judged(path.size(), 0);
    std::map<int, QRgb> passed; // by state: the milder one first
    values.reserve(path.size());
    double value = std::nan("");
    int state = 0;
    QColor color;
    const auto takePoint = [&] {
        if (state != 0 && color.isValid()) {
            judged[values.size()] = color.rgb();
            passed.emplace(state, color.rgb());
        }
        values.push_back(value);
    };
    bool first = true;
    forEachSampleByTime(record, parameter, profile, [&](const ParameterSample& sample) {
        while (!first && values.size() < path.size() &&
               path[values.size()].time < sample.entry().time) {
            takePoint();
        }
        first = false;
        state = 0;
        color = QColor();
        value = decoder.number(sample, state, color);
    });
    while (values.size() < path.size()) {
        takePoint();
    }
    MapColoring result = coloring(MapTexts::label(profile, parameter),
                                  profile.format(parameter).unit(NumberFormat::EUnitOf::List),
                                  decimalsOf(values), values);
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (judged[i] != 0) {
            result.colors[i] = judged[i];
        }
    }
    for (const auto& [severity, tint] : passed) {
        result.passed.push_back({severity == eThresholdLimit ? tr("Limit") : tr("Warning"), tint});
    }
    nameEnds(result, values, profile, parameter);
    return result;
}

} // namespace VELIX
