#include "platform/tessel/opengl/LineStripsSimple.h"

#include "platform/tessel/opengl/Gl.h"
#include "platform/tessel/opengl/StripSizes.h"

namespace Tessel::OpenGL {

void LineStripsSimple::beginStrip()
{
    const int start = static_cast<int>(mVertices.size());
    if (mStarts.empty() || mStarts.back() != start) {
        mStarts.push_back(start);
    }
}

void LineStripsSimple::addVertex(float x, float y)
{
    if (mStarts.empty()) {
        beginStrip();
    }
    mVertices.add(x, y);
}

void LineStripsSimple::clear()
{
    mVertices.clear();
    mStarts.clear();
}

void LineStripsSimple::render(LineProgram& program, const MatrixSet& matrices)
{
    const int size = static_cast<int>(mVertices.size());
    if (size == 0) {
        return;
    }
    mVertices.bind();
    if (program.begin(matrices, mColor)) {
        glLineWidth(mWidth);
        fillStripSizes(mStarts, size, mSizes);
        glMultiDrawArrays(GL_LINE_STRIP, mStarts.data(), mSizes.data(),
                          static_cast<GLsizei>(mStarts.size()));
        glPointSize(mWidth);
        for (std::size_t i = 0; i < mStarts.size(); ++i) {
            if (mSizes[i] == 1) {
                glDrawArrays(GL_POINTS, mStarts[i], 1);
            }
        }
        if (mPointSize > 0.0F) {
            glPointSize(mPointSize);
            glDrawArrays(GL_POINTS, 0, size);
        }
        LineProgram::end();
    }
    VertexBuffer::unbind();
}

} // namespace Tessel::OpenGL
