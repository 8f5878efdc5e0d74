#include "views/common/GraphValues.h"

#include "profile/DataType.h"
#include "profile/Profile.h"

#include <algorithm>
#include <cmath>

namespace VELIX::GraphValues {

namespace {

bool isConverted(const Profile& profile, const ProfileParameter& parameter)
{
    return profile.currentUnit() == eUnitImperial && parameter.hasConversion;
}

/// Whether a number has no more than so many decimals.
bool fits(double number, int decimals)
{
    const double scaled = number * std::pow(10.0, decimals);
    return std::abs(scaled - std::round(scaled)) < 1e-9 * std::max(1.0, std::abs(scaled));
}

} // namespace

std::string unit(const Profile& profile, const ProfileParameter& parameter)
{
    const QString& label =
        isConverted(profile, parameter) ? parameter.unitImperial : parameter.unitMetric;
    return label.isEmpty() ? "-" : label.toStdString();
}

int decimals(const Profile& profile, const ProfileParameter& parameter)
{
    if (parameter.dataType == eFloat || parameter.coordinate != ECoordinate::None) {
        return parameter.precision;
    }
    double step = parameter.factor;
    double offset = parameter.offset;
    if (isConverted(profile, parameter)) {
        step *= parameter.toImperial.factor;
        offset = offset * parameter.toImperial.factor + parameter.toImperial.offset;
    }
    constexpr int kFewEnough = 3;
    for (int count = 0; count <= kFewEnough; ++count) {
        if (fits(step, count) && fits(offset, count)) {
            return count;
        }
    }
    // Odd factors: one digit of the text is worth about one step.
    const double digits = step != 0.0 && std::isfinite(step) ? -std::log10(std::abs(step)) : 0.0;
    return static_cast<int>(std::ceil(std::clamp(digits, 0.0, 9.0)));
}

} // namespace VELIX::GraphValues
