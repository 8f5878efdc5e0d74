#include "platform/tessel/opengl/Lines.h"

#include "platform/tessel/opengl/Gl.h"

namespace Tessel::OpenGL {

void Lines::addLine(float x1, float y1, float x2, float y2)
{
    mVertices.add(x1, y1);
    mVertices.add(x2, y2);
}

void Lines::render(LineProgram& program, const MatrixSet& matrices)
{
    if (mVertices.size() == 0) {
        return;
    }
    mVertices.bind();
    if (program.begin(matrices, mColor)) {
        glLineWidth(mWidth);
        glDrawArrays(GL_LINES, 0, static_cast<GLsizei>(mVertices.size()));
        LineProgram::end();
    }
    VertexBuffer::unbind();
}

} // namespace Tessel::OpenGL
