#include "platform/tessel/opengl/GlBuffer.h"

#include "platform/tessel/opengl/Gl.h"

namespace Tessel::OpenGL {

GlBuffer::~GlBuffer()
{
    release();
}

void GlBuffer::bind(const void* content, std::size_t bytes)
{
    if (mBuffer == 0) {
        glGenBuffers(1, &mBuffer);
        mCurrent = false;
    }
    glBindBuffer(GL_ARRAY_BUFFER, mBuffer);
    if (!mCurrent) {
        glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(bytes), content, GL_DYNAMIC_DRAW);
        mCurrent = true;
    }
}

void GlBuffer::unbind()
{
    glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void GlBuffer::release()
{
    if (mBuffer != 0) {
        glDeleteBuffers(1, &mBuffer);
        mBuffer = 0;
    }
}

} // namespace Tessel::OpenGL
