#include "profile/NumberFormat.h"

#include "profile/DataType.h"
#include "profile/ProfileParameter.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// Whether a number has no more than so many decimals.
bool fits(double number, int decimals)
{
    const double scaled = number * std::pow(10.0, decimals);
    return std::abs(scaled - std::round(scaled)) < 1e-9 * std::max(1.0, std::abs(scaled));
}

} // namespace

bool NumberFormat::isConverted() const
{
    return mUnit == eUnitImperial && mParameter.hasConversion;
}

const QString& NumberFormat::unit(EUnitOf of) const
{
    const bool imperial = of == EUnitOf::List   ? mUnit == eUnitImperial
                          : of == EUnitOf::Text ? isConverted() && mParameter.dataType == eFloat
                                                : isConverted();
    return imperial ? mParameter.unitImperial : mParameter.unitMetric;
}

QString NumberFormat::label(EUnitOf of) const
{
    return mParameter.label(unit(of));
}

int NumberFormat::decimals(EDecimals how) const
{
    return how == EDecimals::Exact ? exactDecimals() : stepDecimals();
}

int NumberFormat::exactDecimals() const
{
    if (mParameter.dataType == eFloat || mParameter.coordinate != ECoordinate::None) {
        return mParameter.precision;
    }
    double step = mParameter.factor;
    double offset = mParameter.offset;
    if (isConverted()) {
        step *= mParameter.toImperial.factor;
        offset = offset * mParameter.toImperial.factor + mParameter.toImperial.offset;
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

int NumberFormat::stepDecimals() const
{
    constexpr double kMost = 6.0;
    const double converted = isConverted() ? std::fabs(mParameter.toImperial.factor) : 1.0;
    const double step = mParameter.dataType == eFloat ? std::pow(10.0, -mParameter.precision)
                                                      : std::fabs(mParameter.factor) * converted;
    if (!(step > 0.0) || !std::isfinite(step)) {
        return 0;
    }
    return static_cast<int>(std::clamp(std::floor(0.01 - std::log10(step)), 0.0, kMost));
}

int NumberFormat::decimalsOfSpan(double span)
{
    return span >= 20.0 || span <= 0.0 ? 0 : span >= 2.0 ? 1 : 2;
}

} // namespace VELIX
