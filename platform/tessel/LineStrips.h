#pragma once

#include "platform/tessel/ColorProgram.h"
#include "platform/tessel/GlBuffer.h"

#include <cstddef>
#include <vector>

namespace Tessel::OpenGL {

class GlHandler;

/// Connected lines in space, in one colour or with a colour for every vertex: a path. All strips
/// are drawn with one call. The context rule of GlBuffer holds.
///
/// Vertices are single precision: give them relative to a near origin and move that with the
/// matrices.
class LineStrips
{
public:
    void clear();
    void reserve(std::size_t vertices) { mVertices.reserve(vertices); }
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

    void render(GlHandler& gl);
    void release() { mBuffer.release(); }

private:
    std::vector<ColorProgram::Vertex> mVertices;
    std::vector<int> mStarts; ///< index of the first vertex of each strip
    std::vector<int> mSizes;  ///< its number of vertices; kept for its memory
    GlBuffer mBuffer;
    Color mColor;
    float mWidth = 1.0F;
    bool mVertexColors = false;
};

} // namespace Tessel::OpenGL
