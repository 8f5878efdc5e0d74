#pragma once

#include <QOpenGLFramebufferObject>
#include <QSize>

#include <memory>

namespace VELIX {

/// Keeps a picture of grid and traces, so that only what stands over them has to be drawn again
/// when a cursor moves. Lines in it are smooth, being drawn with four samples per pixel.
///
/// All calls but the constructor need the widget's OpenGL context to be current.
class GraphPlotBuffer
{
public:
    /// Whether this context can copy from one frame buffer to another.
    [[nodiscard]] static bool isSupported();

    /// Makes the buffer the target of all drawing, in the size given (pixels).
    /// @return false if there is no such buffer; the target is then what it was
    [[nodiscard]] bool begin(const QSize& pixels);
    /// The picture is drawn.
    void end() const;
    /// Whether there is a picture of that size.
    [[nodiscard]] bool holds(const QSize& pixels) const;
    /// Copies the picture to a frame buffer of the same size, which becomes the target.
    void copyTo(GLuint target) const;
    /// Forgets picture and buffers.
    void release();

private:
    std::unique_ptr<QOpenGLFramebufferObject> mDrawn; ///< several samples for each pixel
    /// Their mean: finding it costs as much as many copies.
    std::unique_ptr<QOpenGLFramebufferObject> mPicture;
};

} // namespace VELIX
