#pragma once

namespace VELIX {

/// Unit system in which values are shown.
enum EUnit : int { eUnitMetric = 0, eUnitImperial = 1 };

/// Linear conversion from a metric to an imperial unit: imperial = metric * factor + offset.
struct ProfileUnit
{
    double factor = 1.0;
    double offset = 0.0;
};

} // namespace VELIX
