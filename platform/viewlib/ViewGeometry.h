#pragma once

#include <QPointF>
#include <QString>

#include <vector>

namespace Vista2D {

struct ViewScale;
struct ViewGauge;

/// Where numbers are shown and how they are written, without anything to paint on.

/// Returns the value as a scale shows it.
[[nodiscard]] double shownValue(const ViewScale& scale, double value);

/// Returns the part of the range before a shown value, 0 to 1: beyond its ends a scale stops.
/// NaN for a value that is not a number and for a scale without a range.
[[nodiscard]] double partOfRange(const ViewScale& scale, double shown);

/// Returns the direction of a shown value on a dial: degrees, clockwise from twelve o'clock.
[[nodiscard]] double angleOf(const ViewGauge& gauge, const ViewScale& scale, double shown);

/// Returns the point at a radius and an angle as above, y running downwards.
[[nodiscard]] QPointF onCircle(const QPointF& center, double radius, double degrees);

struct ViewTick
{
    double at = 0.0;
    bool isLong = false;
};
/// Returns the ticks of a scale: whole multiples of the step are long ones.
[[nodiscard]] std::vector<ViewTick> ticksOf(const ViewScale& scale);

/// Returns their number, give or take one.
[[nodiscard]] double tickCount(const ViewScale& scale);

/// Returns the text of a shown value; dashes for one that is not a number.
[[nodiscard]] QString numberText(const ViewScale& scale, double shown);
/// Returns the number at a tick.
[[nodiscard]] QString tickText(const ViewScale& scale, double at);

} // namespace Vista2D
