#pragma once

#include "platform/tessel/opengl/Color.h"
#include "platform/tessel/opengl/ShaderProgram.h"

namespace Tessel::OpenGL {

class MatrixSet;

/// Draws the bound texture, tinted. The context rule of LineProgram holds.
class TextureProgram
{
public:
    struct Vertex
    {
        float x = 0.0F; ///< the caller's units
        float y = 0.0F;
        float u = 0.0F; ///< 0..1 across the texture
        float v = 0.0F;
    };

    /// What the texture holds.
    enum class Content {
        Image,   ///< colours, premultiplied with their opacity
        Coverage ///< opacity alone, as of glyphs
    };

    /// Describes the bound buffer of Vertex.
    [[nodiscard]] bool begin(const MatrixSet& matrices, const Color& color, Content content);
    static void end();
    void release() { mProgram.release(); }

private:
    ShaderProgram mProgram;
};

} // namespace Tessel::OpenGL
