#pragma once

#include "views/graph/model/GraphTicks.h"
#include "views/graph/widget/GraphLayout.h"
#include "views/graph/widget/GraphLook.h"

#include <QFont>
#include <QRect>

#include <vector>

namespace VELIX {

class GraphModel;

/// What a frame of a graph consists of: which traces, where, and with which ticks.
struct GraphScene
{
    GraphLayout layout;
    std::vector<unsigned int> shown;  ///< numbers of the traces drawn, from top to bottom
    std::vector<unsigned int> listed; ///< numbers of the traces in the legend
    std::vector<GraphTick> timeTicks;
    std::vector<std::vector<GraphTick>> valueTicks; ///< one list for each band
    QFont font;                                     ///< of all texts
    QFont fixedFont;                                ///< of columns of numbers

    static GraphScene make(const GraphModel& model, const GraphLook& look, const QSize& size,
                           const QFont& font);

    /// The band of a position among the traces shown.
    [[nodiscard]] QRect bandOf(std::size_t position) const
    {
        return layout.band(static_cast<int>(position));
    }
    /// The position of a trace among those shown; -1 if it is not shown.
    [[nodiscard]] int positionOf(unsigned int trace) const;
};

} // namespace VELIX
