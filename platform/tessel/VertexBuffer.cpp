#include "platform/tessel/VertexBuffer.h"

#include "platform/tessel/Gl.h"

namespace Tessel::OpenGL {

VertexBuffer::~VertexBuffer()
{
    release();
}

void VertexBuffer::add(float x, float y)
{
    mVertices.push_back({x, y});
    mChanged = true;
}

void VertexBuffer::add(const Vertex* vertices, std::size_t count)
{
    mVertices.insert(mVertices.end(), vertices, vertices + count);
    mChanged = true;
}

void VertexBuffer::clear()
{
    mVertices.clear();
    mChanged = true;
}

void VertexBuffer::bind()
{
    if (mBuffer == 0) {
        glGenBuffers(1, &mBuffer);
        mChanged = true;
    }
    glBindBuffer(GL_ARRAY_BUFFER, mBuffer);
    if (mChanged) {
        glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(mVertices.size() * sizeof(Vertex)),
                     mVertices.data(), GL_DYNAMIC_DRAW);
        mChanged = false;
    }
}

void VertexBuffer::unbind()
{
    glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void VertexBuffer::release()
{
    if (mBuffer != 0) {
        glDeleteBuffers(1, &mBuffer);
        mBuffer = 0;
    }
}

} // namespace Tessel::OpenGL
