#pragma once

#include "views/graph/widget/GraphCurve.h"

#include <QColor>
#include <QSize>

#include <vector>

namespace VELIX {

/// Draws lines of a graph in the current OpenGL context. Coordinates are pixels of the frame
/// buffer, y downwards.
class GraphPen
{
public:
    GraphPen() = default;
    GraphPen(const GraphPen&) = delete;
    GraphPen& operator=(const GraphPen&) = delete;
    virtual ~GraphPen() = default;

    /// Comes before, and end() after, the calls that draw into a frame buffer of a size.
    virtual void begin(const QSize& pixels) = 0;
    /// Draws pairs of vertices, each a line.
    virtual void drawLines(const std::vector<GraphVertex>& vertices, const QColor& color,
                           float width) = 0;
    /// Draws line strips; with a point size also a square on each vertex.
    virtual void drawCurve(const GraphCurve& curve, const QColor& color, float width,
                           float pointSize) = 0;
    virtual void end() = 0;
    /// Gives back what it holds of the context.
    virtual void release() = 0;
};

} // namespace VELIX
