#pragma once

#include "platform/tessel/opengl/RibbonProgram.h"

#include <cstddef>
#include <vector>

namespace Tessel::OpenGL {

/// Appends the strip of triangles that covers a line through some points. Slight turns are mitred,
/// wider ones bevelled; the ends reach half the width beyond the first and last point, and so does
/// the point where the line turns back. Points without a way between them are one; a line of one
/// point is a square.
void appendRibbon(const ColorProgram::Vertex* points, std::size_t count,
                  std::vector<RibbonProgram::Vertex>& ribbon);

} // namespace Tessel::OpenGL
