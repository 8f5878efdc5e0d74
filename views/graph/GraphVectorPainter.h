#pragma once

#include "views/graph/widget/GraphLook.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphScene.h"

class QPainter;

namespace VELIX {

class GraphModel;

/// The graph as vector graphics: what the graph widget shows of a model, painted with any painter,
/// so that it can be printed at any size.
class GraphVectorPainter
{
public:
    /// model and look outlive the painter. size, font: the widget's.
    GraphVectorPainter(const GraphModel& model, const GraphLook& look, bool markersOn,
                       const QSize& size, const QFont& font);

    /// Draws so many columns of samples to a pixel, for devices that are finer than the screen; by
    /// default the columns of the model.
    void setFineness(double columns) { mFineness = columns; }

    void paint(QPainter& painter) const;

private:
    void paintGrid(QPainter& painter) const;
    void paintTraces(QPainter& painter) const;
    void paintLines(QPainter& painter) const;

    const GraphModel& mModel;
    const GraphLook& mLook;
    GraphPointer mPointer;
    GraphScene mScene;
    QSize mSize;
    double mFineness = 0.0; ///< 0: as the model
};

} // namespace VELIX
