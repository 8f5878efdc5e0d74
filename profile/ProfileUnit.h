#pragma once

namespace VELIX {

/// Linear conversion from a metric to an imperial unit: imperial = metric * factor + offset.
struct ProfileUnit
{
    double factor = 1.0;
    double offset = 0.0;
};

} // namespace VELIX
