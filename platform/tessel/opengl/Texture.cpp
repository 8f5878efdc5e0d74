// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "platform/tessel/opengl/Texture.h"

#include "platform/tessel/opengl/Blending.h"
#include "platform/tessel/opengl/GlHandler.h"

#include <algorithm>
#include <optional>

namespace Tessel::OpenGL {

namespace {

QImage withinLimits(const QImage& image)
{
    GLint limit = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    return std::max(image.width(), image.height()) <= limit
               ? image
               : image.scaled(limit, limit, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

Texture::~Texture()
{
    release();
}

bool Texture::load(const std::string& file)
{
    const QImage image(QString::fromStdString(file));
    setImage(image);
    return !image.isNull();
}

void Texture::setImage(const QImage& image)
{
    mWidth = image.width();
    mHeight = image.height();
    mOpaque = !image.hasAlphaChannel();
    mPending = image.convertToFormat(mOpaque ? QImage::Format_RGBX8888
                                             : QImage::Format_RGBA8888_Premultiplied);
}

void Texture::render(GlHandler& gl, double x, double y, double width, double height)
{
    renderPart(gl, x, y, width, height, {0.0, 0.0, 1.0, 1.0});
}

void Texture::renderPart(GlHandler& gl, double x, double y, double width, double height,
                         const std::array<double, 4>& leftTopRightBottom)
{
    if (mWidth == 0 || mHeight == 0) {
        return;
    }
    const auto [left, top, right, bottom] = leftTopRightBottom;
    const auto corner = [](double px, double py, double u, double v) {
        return TextureProgram::Vertex{static_cast<float>(px), static_cast<float>(py),
                                      static_cast<float>(u), static_cast<float>(v)};
    };
    mVertices = {corner(x, y, left, top), corner(x + width, y, right, top),
                 corner(x, y + height, left, bottom), corner(x + width, y + height, right, bottom)};
    bind();
    mBuffer.invalidate();
    mBuffer.bind(mVertices.data(), sizeof(mVertices));
    if (gl.textures().begin(gl.matrices(), mColor, TextureProgram::Content::Image)) {
        std::optional<Blending> blending;
        if (!mOpaque || mColor.alpha < 1.0F) { // it costs software drivers as much as the drawing
            blending.emplace(Blending::Colors::Premultiplied);
        }
        glDrawArrays(GL_TRIANGLE_STRIP, 0, static_cast<GLsizei>(mVertices.size()));
        TextureProgram::end();
    }
    GlBuffer::unbind();
    glBindTexture(GL_TEXTURE_2D, 0);
}

void Texture::bind()
{
    if (mTexture == 0) {
        glGenTextures(1, &mTexture);
        glBindTexture(GL_TEXTURE_2D, mTexture);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    }
    glBindTexture(GL_TEXTURE_2D, mTexture);
    if (!mPending.isNull()) {
        const QImage image = withinLimits(mPending);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, image.width(), image.height(), 0, GL_RGBA,
                     GL_UNSIGNED_BYTE, image.constBits());
        mPending = {};
    }
}

void Texture::release()
{
    if (mTexture != 0) {
        glDeleteTextures(1, &mTexture);
        mTexture = 0;
        mWidth = 0;
        mHeight = 0;
    }
    mBuffer.release();
}

} // namespace Tessel::OpenGL
