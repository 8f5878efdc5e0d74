// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "platform/tessel/opengl/TextureFont.h"

#include "platform/tessel/opengl/Blending.h"
#include "platform/tessel/opengl/GlHandler.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <cmath>
#include <utility>

namespace Tessel::OpenGL {

namespace {

/// The layout finds fonts that stand in, joins accents and orders scripts from right to left.
void layOut(QTextLayout& layout)
{
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

} // namespace

TextureFont::~TextureFont()
{
    release();
    if (mFontId >= 0) {
        QFontDatabase::removeApplicationFont(mFontId);
    }
}

bool TextureFont::load(const void* data, std::size_t bytes, const std::string& name, int pixelSize)
{
    mName = name;
    if (mFontId >= 0) {
        QFontDatabase::removeApplicationFont(mFontId);
    }
    mFontId = QFontDatabase::addApplicationFontFromData(
        QByteArray(static_cast<const char*>(data), static_cast<int>(bytes)));
    const QStringList families = QFontDatabase::applicationFontFamilies(mFontId);
    mFont = families.isEmpty() ? QFont() : QFont(families.front());
    mFont.setPixelSize(pixelSize > 0 ? pixelSize : 1);
    mFont.setHintingPreference(QFont::PreferFullHinting);
    return !families.isEmpty();
}

double TextureFont::width(const QString& text) const
{
    return QFontMetricsF(mFont).horizontalAdvance(text);
}

double TextureFont::height() const
{
    return QFontMetricsF(mFont).height();
}

void TextureFont::render(GlHandler& gl, double x, double y, const QString& text)
{
    mVertices.clear();
    const int generation = mAtlas.generation();
    addText(x, y, text);
    if (mAtlas.generation() != generation) { // glyphs made way for others in mid text
        mVertices.clear();
        addText(x, y, text);
    }
    if (mVertices.empty()) {
        return;
    }
    bindAtlas();
    mBuffer.invalidate();
    mBuffer.bind(mVertices.data(), mVertices.size() * sizeof(TextureProgram::Vertex));
    if (gl.textures().begin(gl.matrices(), mColor, TextureProgram::Content::Coverage)) {
        const Blending blending(Blending::Colors::Premultiplied);
        glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(mVertices.size()));
        TextureProgram::end();
    }
    GlBuffer::unbind();
    glBindTexture(GL_TEXTURE_2D, 0);
}

void TextureFont::addText(double x, double y, const QString& text)
{
    QTextLayout layout(text, mFont);
    layOut(layout);
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont font = run.rawFont();
        const QVector<quint32> indices = run.glyphIndexes();
        const QVector<QPointF> places = run.positions();
        for (int i = 0; i < indices.size(); ++i) {
            // Whole pixels keep the rasterised edges.
            addGlyph(std::round(x + places[i].x()), std::round(y + places[i].y()),
                     mAtlas.glyph(font, indices[i]));
        }
    }
}

void TextureFont::addGlyph(double x, double y, const GlyphAtlas::Glyph& glyph)
{
    if (glyph.area.isEmpty()) {
        return;
    }
    const auto corner = [&](int right, int down) {
        const auto dx = static_cast<float>(right * glyph.area.width());
        const auto dy = static_cast<float>(down * glyph.area.height());
        return TextureProgram::Vertex{static_cast<float>(x + glyph.bearing.x()) + dx,
                                      static_cast<float>(y + glyph.bearing.y()) + dy,
                                      static_cast<float>(glyph.area.x()) + dx,
                                      static_cast<float>(glyph.area.y()) + dy};
    };
    for (const auto& [right, down] : {std::pair{0, 0}, {1, 0}, {0, 1}, {0, 1}, {1, 0}, {1, 1}}) {
        mVertices.push_back(corner(right, down));
    }
}

void TextureFont::bindAtlas()
{
    const bool created = mTexture == 0;
    if (created) {
        glGenTextures(1, &mTexture);
    }
    glBindTexture(GL_TEXTURE_2D, mTexture);
    const QImage& image = mAtlas.image();
    if (mAtlas.takeChanged() || created) {
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_ALPHA8, image.width(), image.height(), 0, GL_ALPHA,
                     GL_UNSIGNED_BYTE, image.constBits());
    }
    // The atlas may have grown while the text was laid out: only now is its size known.
    for (TextureProgram::Vertex& vertex : mVertices) {
        vertex.u /= static_cast<float>(image.width());
        vertex.v /= static_cast<float>(image.height());
    }
}

void TextureFont::release()
{
    if (mTexture != 0) {
        glDeleteTextures(1, &mTexture);
        mTexture = 0;
    }
    mBuffer.release();
}

} // namespace Tessel::OpenGL
