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
        return false; // trying would print a warning with each picture
    }
    if (!holds(pixels)) {
        release(); // before the next ones take their memory
        QOpenGLFramebufferObjectFormat format;
        mPicture = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
        if (mSamples > 0) {
            format.setSamples(mSamples);
            mDrawn = std::make_unique<QOpenGLFramebufferObject>(pixels, format);
        }
    }
    const QOpenGLFramebufferObject& drawn = mDrawn != nullptr ? *mDrawn : *mPicture;
    if (!drawn.isValid() || !mPicture->isValid()) {
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
        copy(*mDrawn, mPicture->handle());
    }
}

bool FrameCache::holds(const QSize& pixels) const
{
    return mPicture != nullptr && mPicture->size() == pixels;
}

void FrameCache::copyTo(GLuint target) const
{
    copy(*mPicture, target);
}

void FrameCache::release()
{
    mDrawn.reset();
    mPicture.reset();
}

} // namespace Tessel::OpenGL
