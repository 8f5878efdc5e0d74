#pragma once

namespace Vista2D {

struct ViewCase;
struct ViewScale;

/// What an instrument shows at the moment.
struct ViewReading
{
    const ViewScale* scale = nullptr; ///< never null
    double shown = 0.0;               ///< NaN: no value
    int state = 0;                    ///< 0 normal, 1 warning, 2 limit
    const ViewCase* inCase = nullptr; ///< the case that holds; null if none does
};

} // namespace Vista2D
