#pragma once

#include "platform/tessel/opengl/LineStripsSimple.h"
#include "platform/tessel/opengl/Lines.h"
#include "platform/tessel/opengl/MatrixSet.h"
#include "views/graph/widget/GraphPen.h"

namespace VELIX {

/// Draws with the platform library's line primitives.
class GraphPenES final : public GraphPen
{
public:
    void begin(const QSize& pixels) override;
    void drawLines(const std::vector<GraphVertex>& vertices, const QColor& color,
                   float width) override;
    void drawCurve(const GraphCurve& curve, const QColor& color, float width,
                   float pointSize) override;
    void end() override {}
    void release() override;

private:
    Tessel::OpenGL::MatrixSet mMatrices;
    Tessel::OpenGL::LineProgram mProgram;
    Tessel::OpenGL::Lines mLines;
    Tessel::OpenGL::LineStripsSimple mStrips;
};

} // namespace VELIX
