#pragma once

#include "views/graph/widget/GraphLook.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphScene.h"

#include <QFontMetrics>
#include <QPainter>
#include <QString>

namespace VELIX {

class GraphModel;

/// A painter over the lines of a graph, and what all texts and marks need to know of the graph.
/// Coordinates are logical pixels of the widget.
struct GraphCanvas
{
    static constexpr int kPadding = 4; ///< between a text and the edge of its background

    /// All of them outlive the canvas. Sets the painter's font.
    GraphCanvas(QPainter& over, const GraphModel& modelShown, const GraphScene& sceneShown,
                const GraphLook& lookShown, const GraphPointer& pointerShown);

    [[nodiscard]] double xOf(double time) const;
    [[nodiscard]] bool inPlot(double x) const;
    [[nodiscard]] double mouseTime() const;
    [[nodiscard]] QColor colorOf(unsigned int trace) const;
    /// The colour of texts that belong to a trace, on the background of the plot.
    [[nodiscard]] QColor textColorOf(unsigned int trace) const;
    [[nodiscard]] int textWidth(const QString& text) const;
    [[nodiscard]] bool isSplit() const;
    /// Whether each trace has a band of its own that is high enough for a line of text.
    [[nodiscard]] bool bandsHoldText() const;
    /// Fills the outermost pixels of a rectangle.
    void fillFrame(const QRect& frame, const QColor& color) const;

    QPainter& painter;
    const GraphModel& model;
    const GraphScene& scene;
    const GraphLook& look;
    const GraphPointer& pointer;
    QFontMetrics metrics;
    QFontMetricsF widths; ///< of the same font, not rounded
};

} // namespace VELIX
