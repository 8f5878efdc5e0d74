#pragma once

#include "views/graph/widget/GraphPen.h"

namespace VELIX {

/// Draws with OpenGL's fixed-function pipeline, from arrays of vertices.
class GraphPenFixed final : public GraphPen
{
public:
    void begin(const QSize& pixels) override;
    void drawLines(const std::vector<GraphVertex>& vertices, const QColor& color,
                   float width) override;
    void drawCurve(const GraphCurve& curve, const QColor& color, float width,
                   float pointSize) override;
    void end() override;
    void release() override {}
};

} // namespace VELIX
