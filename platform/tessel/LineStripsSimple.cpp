#include "platform/tessel/LineStripsSimple.h"

#include "platform/tessel/Gl.h"
#include "platform/tessel/SmoothLines.h"

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

void LineStripsSimple::addVertices(const VertexBuffer::Vertex* vertices, std::size_t count)
{
    if (mStarts.empty()) {
        beginStrip();
    }
    mVertices.add(vertices, count);
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
        const SmoothLines smooth(mAntiAliasing);
        glLineWidth(mWidth);
        for (std::size_t i = 0; i < mStarts.size(); ++i) {
            const int end = i + 1 < mStarts.size() ? mStarts[i + 1] : size;
            const int count = end - mStarts[i];
            if (count == 1 && mPointSize <= 0.0F) {
                glPointSize(mWidth);
            }
            glDrawArrays(count == 1 ? GL_POINTS : GL_LINE_STRIP, mStarts[i], count);
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
