#include "platform/tessel/opengl/FrameCache.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

#include <algorithm>

namespace Tessel::OpenGL {

namespace {

QOpenGLExtraFunctions& functions()
{
    return *QOpenGLContext::currentContext()->extraFunctions();
}

GLint largestSide()
{
    GLint texture = 0;
    GLint several = 0; // samples need the other kind of memory
    functions().glGetIntegerv(GL_MAX_TEXTURE_SIZE, &texture);
    functions().glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &several);
    return std::min(texture, several);
}

void copy(const QOpenGLFramebufferObject& source, GLuint target)
{
    QOpenGLExtraFunctions& gl = functions();
    const int width = source.width();
    const int height = source.height();
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, source.handle());
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, target);
    gl.glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, target);
}

} // namespace

bool FrameCache::isSupported()
{
    return QOpenGLFramebufferObject::hasOpenGLFramebufferBlit();
}

bool FrameCache::begin(const QSize& pixels)
{
    GLint target = 0; // making a buffer binds it
    functions().glGetIntegerv(GL_FRAMEBUFFER_BINDING, &target);
    if (std::max(pixels.width(), pixels.height()) > largestSide()) {
        release();
        return false; // trying would print a warning with each frame
    }
    if (!holds(pixels)) {
        release(); // before the next ones take their memory
        QOpenGLFramebufferObjectFormat format;
        mFrame = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
        if (mSamples > 0) {
            format.setSamples(mSamples);
            mDrawn = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
        }
    }
    const QOpenGLFramebufferObject& drawn = mDrawn != nullptr ? *mDrawn : *mFrame;
    if (!drawn.isValid() || !mFrame->isValid()) {
        release();
        functions().glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(target));
        return false;
    }
    functions().glBindFramebuffer(GL_FRAMEBUFFER, drawn.handle());
    return true;
}

void FrameCache::end() const
{
    if (mDrawn != nullptr) {
        copy(*mDrawn, mFrame->handle());
    }
}

bool FrameCache::holds(const QSize& pixels) const
{
    return mFrame != nullptr && mFrame->size() == pixels;
}

void FrameCache::copyTo(GLuint target) const
{
    copy(*mFrame, target);
}

void FrameCache::release()
{
    mDrawn.reset();
    mFrame.reset();
}

} // namespace Tessel::OpenGL
