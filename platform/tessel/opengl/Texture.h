#pragma once

#include "platform/tessel/opengl/Color.h"
#include "platform/tessel/opengl/GlBuffer.h"
#include "platform/tessel/opengl/TextureProgram.h"

#include <QImage>

#include <array>
#include <string>

namespace Tessel::OpenGL {

class GlHandler;

/// An image in the graphics system, drawn into any rectangle.
///
/// Load it at any time; what is loaded is handed over at the first drawing, to the context that is
/// current then. That context must be current again for render() and release() and at destruction.
class Texture
{
public:
    Texture() = default;
    ~Texture();
    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    /// Loads an image file of the system or of the program's resources; false if it cannot be read.
    [[nodiscard]] bool load(const std::string& file);
    /// A null image leaves nothing to draw.
    void setImage(const QImage& image);
    /// In texels; 0 without an image.
    [[nodiscard]] int width() const { return mWidth; }
    [[nodiscard]] int height() const { return mHeight; }

    /// Whether it hides all that is behind it.
    [[nodiscard]] bool isOpaque() const { return mOpaque && mWidth > 0; }

    /// Tints the image; white leaves it as it is.
    void setColor(const Color& color) { mColor = color; }
    /// Draws the whole image; its upper left corner is at x, y where y runs downwards.
    void render(GlHandler& gl, double x, double y, double width, double height);
    /// Draws the part left..right, top..bottom (fractions of the image) into the rectangle.
    void renderPart(GlHandler& gl, double x, double y, double width, double height,
                    const std::array<double, 4>& leftTopRightBottom);
    void release();

private:
    void bind();

    QImage mPending; ///< not handed over yet
    int mWidth = 0;
    int mHeight = 0;
    bool mOpaque = false;
    unsigned int mTexture = 0;
    GlBuffer mBuffer;
    std::array<TextureProgram::Vertex, 4> mVertices;
    Color mColor;
};

} // namespace Tessel::OpenGL
