#include "platform/tessel/LineStrips.h"

#include "platform/tessel/Gl.h"
#include "platform/tessel/GlHandler.h"
#include "platform/tessel/StripSizes.h"

namespace Tessel::OpenGL {

void LineStrips::clear()
{
    mVertices.clear();
    mStarts.clear();
    mBuffer.invalidate();
}

void LineStrips::beginStrip()
{
    const int start = static_cast<int>(mVertices.size());
    if (mStarts.empty() || mStarts.back() != start) {
        mStarts.push_back(start);
    }
}

void LineStrips::addVertex(float x, float y, float z)
{
    if (mStarts.empty()) {
        beginStrip();
    }
    mVertices.push_back(ColorProgram::vertex(x, y, z, mColor));
    mBuffer.invalidate();
}

void LineStrips::render(GlHandler& gl)
{
    if (mVertices.empty()) {
        return;
    }
    mBuffer.bind(mVertices.data(), mVertices.size() * sizeof(ColorProgram::Vertex));
    if (gl.colors().begin(gl.matrices(), mVertexColors ? nullptr : &mColor)) {
        glLineWidth(mWidth);
        fillStripSizes(mStarts, static_cast<int>(mVertices.size()), mSizes);
        glMultiDrawArrays(GL_LINE_STRIP, mStarts.data(), mSizes.data(),
                          static_cast<GLsizei>(mStarts.size()));
        ColorProgram::end();
    }
    GlBuffer::unbind();
}

} // namespace Tessel::OpenGL
