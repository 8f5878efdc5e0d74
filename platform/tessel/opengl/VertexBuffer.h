#pragma once

#include "platform/tessel/opengl/GlBuffer.h"

#include <cstddef>
#include <vector>

namespace Tessel::OpenGL {

/// Vertices in the plane, gathered in memory and kept in a buffer of the graphics system. The
/// context rule of GlBuffer holds.
class VertexBuffer
{
public:
    struct Vertex
    {
        float x = 0.0F;
        float y = 0.0F;
    };

    void add(float x, float y);
    /// Drops the vertices and keeps their memory for the next frame.
    void clear();
    [[nodiscard]] std::size_t size() const { return mVertices.size(); }

    /// Binds the buffer for drawing, after passing on what changed since the last time.
    void bind() { mBuffer.bind(mVertices.data(), mVertices.size() * sizeof(Vertex)); }
    static void unbind() { GlBuffer::unbind(); }
    /// Gives the buffer back to the graphics system; the vertices stay.
    void release() { mBuffer.release(); }

private:
    std::vector<Vertex> mVertices;
    GlBuffer mBuffer;
};

} // namespace Tessel::OpenGL
