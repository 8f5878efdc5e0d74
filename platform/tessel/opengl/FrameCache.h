#pragma once

#include <QOpenGLFramebufferObject>
#include <QSize>

#include <memory>

namespace Tessel::OpenGL {

/// Keeps what was drawn, so that a frame of which little changes costs a copy and that little.
///
/// All calls but the constructor need one and the same OpenGL context to be current.
class FrameCache
{
public:
    /// With several samples per pixel lines are smooth, at a fraction of the price of blended ones.
    explicit FrameCache(int samplesPerPixel = 0) : mSamples(samplesPerPixel) {}

    /// Whether the current context can copy from one frame buffer to another.
    [[nodiscard]] static bool isSupported();

    /// Makes the buffer the target of all drawing, in the size given (pixels). What was drawn in
    /// that size before is still there.
    /// @return false if there is no such buffer; the target is then what it was
    [[nodiscard]] bool begin(const QSize& pixels);
    /// Ends the drawing that begin() began.
    void end() const;
    /// Whether there is a frame of that size.
    [[nodiscard]] bool holds(const QSize& pixels) const;
    /// Copies the frame to a frame buffer of the same size, which becomes the target.
    void copyTo(GLuint target) const;
    /// Forgets frame and buffers.
    void release();

private:
    int mSamples;
    std::unique_ptr<QOpenGLFramebufferObject> mDrawn; ///< several samples for each pixel
    /// Their mean: finding it costs as much as many copies.
    std::unique_ptr<QOpenGLFramebufferObject> mFrame;
};

} // namespace Tessel::OpenGL
