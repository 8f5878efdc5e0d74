#pragma once

#include "views/common/Printable.h"
#include "views/graph/widget/GraphLook.h"

#include <QFont>
#include <QSizeF>

namespace VELIX {

class GraphModel;

/// The visible range of a graph on one page: on a white background, in colours that are readable
/// there, and as finely as the device draws.
class GraphPrint final : public PrintLayout
{
public:
    /// model outlives the layout. look, font: those of the graph on screen.
    GraphPrint(const GraphModel& model, const GraphLook& look, bool markersOn, const QFont& font,
               QPaintDevice& device, const QSizeF& room);

    [[nodiscard]] int pageCount() const override { return 1; }
    void paintPage(QPainter& painter, int page) const override;

private:
    const GraphModel& mModel;
    GraphLook mLook;
    bool mMarkersOn;
    QFont mFont;
    QSizeF mRoom;
    double mPixel; ///< device pixels to one of the screen, which a graph is laid out in
};

} // namespace VELIX
