#pragma once

#include <string>

namespace VELIX {

/// A colour as the graph takes it: fractions from 0 to 1.
struct GraphColor
{
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;

    /// The colour of a name as QColor knows it; black if there is no such colour.
    static GraphColor fromName(const std::string& name);
};

} // namespace VELIX
