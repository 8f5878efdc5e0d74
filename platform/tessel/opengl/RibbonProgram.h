#pragma once

#include "platform/tessel/opengl/ColorProgram.h"

#include <cstdint>

namespace Tessel::OpenGL {

/// Draws lines as areas: of the same width in every direction, unlike the lines of the graphics
/// system, and with soft edges at no cost. The context rule of LineProgram holds.
class RibbonProgram
{
public:
    /// A point of a line on its way to one of the two edges.
    struct Vertex
    {
        ColorProgram::Vertex point;
        std::int16_t asideX = 0; ///< from the line to the edge, in halves of the line's width
        std::int16_t asideY = 0;
        std::int16_t side = 0; ///< -1 or 1
        std::int16_t unused = 0;
    };

    /// The way aside is at most 2 long.
    static Vertex vertex(const ColorProgram::Vertex& point, float asideX, float asideY, int side);

    /// Describes the bound buffer of Vertex. Width in pixels of the view port, which the matrices
    /// must not distort. With `color` all vertices take that one.
    [[nodiscard]] bool begin(const MatrixSet& matrices, float width, bool smooth,
                             const Color* color = nullptr);
    static void end();
    void release() { mProgram.release(); }

private:
    ShaderProgram mProgram;
};

} // namespace Tessel::OpenGL
