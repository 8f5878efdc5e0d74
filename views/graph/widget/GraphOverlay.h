#pragma once

#include "views/graph/widget/GraphCanvas.h"

namespace VELIX {

/// Paints everything in a graph that is not a line: labels of the axes, legend, drag handles,
/// readouts, markers' flags. It is painted over the lines, in logical pixels.
class GraphOverlay
{
public:
    GraphOverlay(QPainter& painter, const GraphModel& model, const GraphScene& scene,
                 const GraphLook& look, const GraphPointer& pointer);

    void paint();

private:
    void paintInPlot();
    void paintHandles();
    void paintDrop();
    void paintHint(const QString& text);

    GraphCanvas mCanvas;
};

} // namespace VELIX
