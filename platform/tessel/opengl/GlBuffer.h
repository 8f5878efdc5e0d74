#pragma once

#include <cstddef>

namespace Tessel::OpenGL {

/// A vertex buffer of the graphics system.
///
/// It belongs to the context (or share group) that was current at the first bind(). That context
/// must be current again for bind() and release() and at destruction.
class GlBuffer
{
public:
    GlBuffer() = default;
    ~GlBuffer();
    GlBuffer(const GlBuffer&) = delete;
    GlBuffer& operator=(const GlBuffer&) = delete;

    /// Has the next bind() take the content again.
    void invalidate() { mCurrent = false; }
    /// Whether the next bind() has no use for content.
    [[nodiscard]] bool isCurrent() const { return mBuffer != 0 && mCurrent; }
    /// Binds the buffer for drawing, with this content if it is not there yet.
    void bind(const void* content, std::size_t bytes);
    static void unbind();
    void release();

private:
    unsigned int mBuffer = 0;
    bool mCurrent = false;
};

} // namespace Tessel::OpenGL
