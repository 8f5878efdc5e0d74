#pragma once

#include <QRect>

namespace VELIX {

struct GraphCanvas;

/// Paints the legend of a graph: colour, name and values of each trace, as far as there is room.
class GraphLegend
{
public:
    explicit GraphLegend(const GraphCanvas& canvas) : mCanvas(canvas) {}

    void paint() const;

private:
    void paintHeader() const;
    void paintEntry(int row) const;
    void paintSwatch(unsigned int trace, const QRect& swatch) const;
    void paintRest(int count) const;

    const GraphCanvas& mCanvas;
};

} // namespace VELIX
