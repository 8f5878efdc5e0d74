#pragma once

#include "platform/tessel/opengl/LineProgram.h"
#include "platform/tessel/opengl/VertexBuffer.h"

namespace Tessel::OpenGL {

/// Separate lines of one colour and width, such as a grid. The context rule of VertexBuffer holds.
class Lines
{
public:
    void addLine(float x1, float y1, float x2, float y2);
    void clear() { mVertices.clear(); }

    void setColor(const Color& color) { mColor = color; }
    /// In pixels of the frame buffer.
    void setWidth(float pixels) { mWidth = pixels; }

    void render(LineProgram& program, const MatrixSet& matrices);
    void release() { mVertices.release(); }

private:
    VertexBuffer mVertices;
    Color mColor;
    float mWidth = 1.0F;
};

} // namespace Tessel::OpenGL
