#include "views/graph/widget/GraphCanvas.h"

#include "views/graph/model/GraphModel.h"

#include <cmath>

namespace VELIX {

GraphCanvas::GraphCanvas(QPainter& over, const GraphModel& modelShown, const GraphScene& sceneShown,
                         const GraphLook& lookShown, const GraphPointer& pointerShown)
    : painter(over),
      model(modelShown),
      scene(sceneShown),
      look(lookShown),
      pointer(pointerShown),
      metrics(sceneShown.font),
      widths(sceneShown.font)
{
    painter.setFont(scene.font);
}

double GraphCanvas::xOf(double time) const
{
    return scene.layout.xOf(time, model.xmin(), model.xmax());
}

bool GraphCanvas::inPlot(double x) const
{
    const QRect plot = scene.layout.plot();
    return x >= plot.left() && x <= plot.right() + 1.0;
}

double GraphCanvas::mouseTime() const
{
    return scene.layout.timeAt(pointer.mouse.x(), model.xmin(), model.xmax());
}

QColor GraphCanvas::colorOf(unsigned int trace) const
{
    return look.traceColor(model.parameter(trace).color);
}

QColor GraphCanvas::textColorOf(unsigned int trace) const
{
    return GraphLook::readable(colorOf(trace), look.back);
}

int GraphCanvas::textWidth(const QString& text) const
{
    // Rounded up: a text in a room rounded down loses a letter for half a pixel.
    return static_cast<int>(std::ceil(widths.horizontalAdvance(text)));
}

bool GraphCanvas::isSplit() const
{
    return model.displayMode() != GraphModel::DisplaySingle;
}

bool GraphCanvas::bandsHoldText() const
{
    return isSplit() && !scene.shown.empty() &&
           scene.layout.plot().height() / static_cast<int>(scene.shown.size()) >= metrics.height();
}

void GraphCanvas::fillFrame(const QRect& frame, const QColor& color) const
{
    // Filled, since lines of a painter on OpenGL may be drawn a pixel beside their position.
    painter.fillRect(QRect(frame.left(), frame.top(), frame.width(), 1), color);
    painter.fillRect(QRect(frame.left(), frame.bottom(), frame.width(), 1), color);
    painter.fillRect(QRect(frame.left(), frame.top(), 1, frame.height()), color);
    painter.fillRect(QRect(frame.right(), frame.top(), 1, frame.height()), color);
}

} // namespace VELIX
