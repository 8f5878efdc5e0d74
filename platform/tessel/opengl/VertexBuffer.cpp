#include "platform/tessel/opengl/VertexBuffer.h"

namespace Tessel::OpenGL {

void VertexBuffer::add(float x, float y)
{
    mVertices.push_back({x, y});
    mBuffer.invalidate();
}

void VertexBuffer::clear()
{
    mVertices.clear();
    mBuffer.invalidate();
}

} // namespace Tessel::OpenGL
