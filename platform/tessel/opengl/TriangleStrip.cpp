#include "platform/tessel/opengl/TriangleStrip.h"

#include "platform/tessel/opengl/Blending.h"
#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/GlHandler.h"

namespace Tessel::OpenGL {

void TriangleStrip::clear()
{
    mVertices.clear();
    mBuffer.invalidate();
}

void TriangleStrip::addVertex(float x, float y, float z)
{
    mVertices.push_back(ColorProgram::vertex(x, y, z, mColor));
    mBuffer.invalidate();
}

void TriangleStrip::render(GlHandler& gl)
{
    if (mVertices.size() < 3) {
        return;
    }
    mBuffer.bind(mVertices.data(), mVertices.size() * sizeof(ColorProgram::Vertex));
    if (gl.colors().begin(gl.matrices())) {
        const Blending blending(Blending::Colors::Plain);
        glDrawArrays(GL_TRIANGLE_STRIP, 0, static_cast<GLsizei>(mVertices.size()));
        ColorProgram::end();
    }
    GlBuffer::unbind();
}

} // namespace Tessel::OpenGL
