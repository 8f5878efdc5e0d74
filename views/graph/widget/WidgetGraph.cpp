#include "views/graph/widget/WidgetGraph.h"

#include "views/graph/widget/GraphPenFixed.h"

WidgetGraph::WidgetGraph(QWidget* parent)
    : WidgetGraphBase(std::make_unique<VELIX::GraphPenFixed>(), parent)
{}
