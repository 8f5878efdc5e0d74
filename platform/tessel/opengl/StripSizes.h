#pragma once

#include <vector>

namespace Tessel::OpenGL {

/// The number of vertices of each strip, from the index of its first vertex and the total.
void fillStripSizes(const std::vector<int>& starts, int total, std::vector<int>& sizes);

} // namespace Tessel::OpenGL
