#pragma once

#include <cstddef>
#include <vector>

namespace Tessel::OpenGL {

/// Vertices in the plane, gathered in memory and kept in a buffer of the graphics system.
///
/// The buffer belongs to the context (or share group) that was current at the first bind(). That
/// context must be current again for bind() and release() and when the object is destroyed.
class VertexBuffer
{
public:
    struct Vertex
    {
        float x = 0.0F;
        float y = 0.0F;
    };

    VertexBuffer() = default;
    ~VertexBuffer();
    VertexBuffer(const VertexBuffer&) = delete;
    VertexBuffer& operator=(const VertexBuffer&) = delete;

    void reserve(std::size_t count) { mVertices.reserve(count); }
    void add(float x, float y);
    void add(const Vertex* vertices, std::size_t count);
    /// Drops the vertices and keeps their memory for the next picture.
    void clear();
    [[nodiscard]] std::size_t size() const { return mVertices.size(); }

    /// Binds the buffer for drawing, after handing over what changed since the last time.
    void bind();
    static void unbind();
    /// Gives the buffer back to the graphics system; the vertices stay.
    void release();

private:
    std::vector<Vertex> mVertices;
    unsigned int mBuffer = 0;
    bool mChanged = false;
};

} // namespace Tessel::OpenGL
