#pragma once

#include "platform/tessel/opengl/LineProgram.h"
#include "platform/tessel/opengl/VertexBuffer.h"

#include <vector>

namespace Tessel::OpenGL {

/// Connected lines of one colour and width: any number of strips, each from vertex to vertex.
/// Strips of one vertex draw a point. The context rule of VertexBuffer holds.
class LineStripsSimple
{
public:
    /// The vertices that follow are not connected to those before.
    void beginStrip();
    void addVertex(float x, float y);
    void clear();

    void setColor(const Color& color) { mColor = color; }
    /// In pixels of the frame buffer.
    void setWidth(float pixels) { mWidth = pixels; }
    /// A square of this edge (pixels of the frame buffer) on every vertex; 0: none.
    void setPointSize(float pixels) { mPointSize = pixels; }

    void render(LineProgram& program, const MatrixSet& matrices);
    void release() { mVertices.release(); }

private:
    VertexBuffer mVertices;
    std::vector<int> mStarts; ///< index of the first vertex of each strip
    std::vector<int> mSizes;  ///< its number of vertices; kept for its memory
    Color mColor;
    float mWidth = 1.0F;
    float mPointSize = 0.0F;
};

} // namespace Tessel::OpenGL
