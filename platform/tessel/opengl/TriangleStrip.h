#pragma once

#include "platform/tessel/opengl/ColorProgram.h"
#include "platform/tessel/opengl/GlBuffer.h"

#include <vector>

namespace Tessel::OpenGL {

class GlHandler;

/// A filled area: each vertex forms a triangle with the two before it. Colours may be translucent
/// and run from vertex to vertex. The context rule of GlBuffer holds.
class TriangleStrip
{
public:
    void clear();
    /// The vertex takes the colour that is set at this moment.
    void addVertex(float x, float y, float z = 0.0F);
    void setColor(const Color& color) { mColor = color; }

    void render(GlHandler& gl);
    void release() { mBuffer.release(); }

private:
    std::vector<ColorProgram::Vertex> mVertices;
    GlBuffer mBuffer;
    Color mColor;
};

} // namespace Tessel::OpenGL
