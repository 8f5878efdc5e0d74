#pragma once

#include "platform/tessel/opengl/Color.h"
#include "platform/tessel/opengl/ShaderProgram.h"

namespace Tessel::OpenGL {

class MatrixSet;

/// Draws lines and points of one colour. One object serves all primitives of a context.
///
/// Made at the first begin(), in the context that is current then; the same context must be
/// current for begin(), end() and release() and when the object is destroyed.
class LineProgram
{
public:
    /// Puts the program in force and describes the bound vertex buffer to it. False if the
    /// graphics system refuses the program; nothing can be drawn then.
    [[nodiscard]] bool begin(const MatrixSet& matrices, const Color& color);
    static void end();
    void release() { mProgram.release(); }

private:
    ShaderProgram mProgram;
};

} // namespace Tessel::OpenGL
