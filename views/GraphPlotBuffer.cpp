#include "views/GraphPlotBuffer.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace VELIX {

namespace {

constexpr int kSamplesPerPixel = 4; ///< smooth lines at a fraction of the price of blended ones

} // namespace

bool GraphPlotBuffer::isSupported()
{
    return QOpenGLFramebufferObject::hasOpenGLFramebufferBlit();
}

bool GraphPlotBuffer::begin(const QSize& pixels)
{
    if (!holds(pixels)) {
        QOpenGLFramebufferObjectFormat format;
        format.setSamples(kSamplesPerPixel);
        mBuffer.reset(); // before the next one takes its memory
        mBuffer = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
    }
    if (!mBuffer->isValid()) {
        mBuffer.reset();
        return false;
    }
    return mBuffer->bind();
}

bool GraphPlotBuffer::holds(const QSize& pixels) const
{
    return mBuffer != nullptr && mBuffer->size() == pixels;
}

void GraphPlotBuffer::copyTo(GLuint target) const
{
    QOpenGLExtraFunctions& gl = *QOpenGLContext::currentContext()->extraFunctions();
    const int width = mBuffer->width();
    const int height = mBuffer->height();
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, mBuffer->handle());
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, target);
    gl.glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, target);
}

} // namespace VELIX
