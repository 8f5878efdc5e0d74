#include "views/GraphPlotBuffer.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace VELIX {

namespace {

constexpr int kSamplesPerPixel = 4; ///< smooth lines at a fraction of the price of blended ones

void copy(const QOpenGLFramebufferObject& source, GLuint target)
{
    QOpenGLExtraFunctions& gl = *QOpenGLContext::currentContext()->extraFunctions();
    const int width = source.width();
    const int height = source.height();
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, source.handle());
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, target);
    gl.glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, target);
}

} // namespace

bool GraphPlotBuffer::isSupported()
{
    return QOpenGLFramebufferObject::hasOpenGLFramebufferBlit();
}

bool GraphPlotBuffer::begin(const QSize& pixels)
{
    if (!holds(pixels)) {
        release(); // before the next ones take their memory
        QOpenGLFramebufferObjectFormat format;
        mPicture = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
        format.setSamples(kSamplesPerPixel);
        mDrawn = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
    }
    if (!mDrawn->isValid() || !mPicture->isValid()) {
        release();
        return false;
    }
    return mDrawn->bind();
}

void GraphPlotBuffer::end() const
{
    copy(*mDrawn, mPicture->handle());
}

bool GraphPlotBuffer::holds(const QSize& pixels) const
{
    return mPicture != nullptr && mPicture->size() == pixels;
}

void GraphPlotBuffer::copyTo(GLuint target) const
{
    copy(*mPicture, target);
}

void GraphPlotBuffer::release()
{
    mDrawn.reset();
    mPicture.reset();
}

} // namespace VELIX
