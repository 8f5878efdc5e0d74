#pragma once

#include "platform/tessel/opengl/Color.h"
#include "platform/tessel/opengl/ShaderProgram.h"

#include <cstdint>

namespace Tessel::OpenGL {

class MatrixSet;

/// Draws primitives whose vertices have colours of their own. The context rule of LineProgram
/// holds.
class ColorProgram
{
public:
    /// A place in the caller's units with its colour.
    struct Vertex
    {
        float x = 0.0F;
        float y = 0.0F;
        float z = 0.0F;
        std::uint8_t red = 255;
        std::uint8_t green = 255;
        std::uint8_t blue = 255;
        std::uint8_t alpha = 255;
    };

    static Vertex vertex(float x, float y, float z, const Color& color);

    /// Describes the bound buffer of Vertex.
    [[nodiscard]] bool begin(const MatrixSet& matrices);
    static void end();
    void release() { mProgram.release(); }

private:
    ShaderProgram mProgram;
};

} // namespace Tessel::OpenGL
