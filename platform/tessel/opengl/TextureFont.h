#pragma once

#include "platform/tessel/opengl/Color.h"
#include "platform/tessel/opengl/GlBuffer.h"
#include "platform/tessel/opengl/GlyphAtlas.h"
#include "platform/tessel/opengl/TextureProgram.h"

#include <QFont>
#include <QString>

#include <cstddef>
#include <string>
#include <vector>

namespace Tessel::OpenGL {

class GlHandler;

/// Draws text from a texture of glyphs. Each glyph is rasterised once, at the size of the font, so
/// that text is sharp where one unit of the matrices is one pixel of the frame buffer. Characters
/// that the font lacks come from the system's fonts. The context rule of Texture holds.
class TextureFont
{
public:
    TextureFont() = default;
    ~TextureFont();
    TextureFont(const TextureFont&) = delete;
    TextureFont& operator=(const TextureFont&) = delete;

    /// Takes a TrueType or OpenType font from memory, under a name of the caller's; pixelSize in
    /// pixels of the frame buffer. False if it is no font; the system's default font then stands
    /// in.
    [[nodiscard]] bool load(const void* data, std::size_t bytes, const std::string& name,
                            int pixelSize);
    [[nodiscard]] const std::string& name() const { return mName; }

    void setColor(const Color& color) { mColor = color; }

    /// In pixels.
    [[nodiscard]] double width(const QString& text) const;
    [[nodiscard]] double height() const;

    /// One line; its upper left corner is at x, y where y runs downwards.
    void render(GlHandler& gl, double x, double y, const QString& text);
    void release();

private:
    void addText(double x, double y, const QString& text);
    void addGlyph(double x, double y, const GlyphAtlas::Glyph& glyph);
    void bindAtlas();

    std::string mName;
    QFont mFont;
    int mFontId = -1;
    GlyphAtlas mAtlas;
    std::vector<TextureProgram::Vertex> mVertices; ///< of the text being drawn
    GlBuffer mBuffer;
    unsigned int mTexture = 0;
    Color mColor;
};

} // namespace Tessel::OpenGL
