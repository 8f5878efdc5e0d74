#pragma once

#include "platform/tessel/opengl/ColorProgram.h"
#include "platform/tessel/opengl/GlBuffer.h"

#include <cstddef>
#include <vector>

namespace Tessel::OpenGL {

class GlHandler;

/// Connected lines in space, seen along z (their width is across x and y), in one colour or with a
/// colour for every vertex: a path. All strips are drawn with one call, as areas: equally wide in
/// every direction, and a strip of one place is a square. The context rule of GlBuffer holds.
///
/// Vertices are single precision: give them relative to a near origin and move that with the
/// matrices.
class LineStrips
{
public:
    void clear();
    /// The vertices that follow are not connected to those before.
    void beginStrip();
    /// The vertex takes the colour that is set at this moment.
    void addVertex(float x, float y, float z = 0.0F);
    [[nodiscard]] std::size_t size() const { return mVertices.size(); }

    void setColor(const Color& color) { mColor = color; }
    /// Off: everything is drawn in the colour that is set when it is drawn.
    void setVertexColors(bool on) { mVertexColors = on; }
    /// In pixels of the frame buffer.
    void setLineWidth(float pixels) { mWidth = pixels; }
    /// Soft edges. Off at first.
    void setAntiAliasing(bool on) { mAntiAliasing = on; }

    void render(GlHandler& gl);
    void release() { mBuffer.release(); }

private:
    void fillBuffer();

    std::vector<ColorProgram::Vertex> mVertices;
    std::vector<int> mStarts; ///< index of the first vertex of each strip
    GlBuffer mBuffer;         ///< of the strips' areas
    std::vector<int> mFirsts; ///< index of the first vertex of each area
    std::vector<int> mSizes;  ///< its number of vertices
    Color mColor;
    float mWidth = 1.0F;
    bool mVertexColors = false;
    bool mAntiAliasing = false;
};

} // namespace Tessel::OpenGL
