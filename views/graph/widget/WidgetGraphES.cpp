#include "views/graph/widget/WidgetGraphES.h"

#include "views/graph/widget/GraphPenES.h"

WidgetGraphES::WidgetGraphES(QWidget* parent)
    : WidgetGraphBase(std::make_unique<VELIX::GraphPenES>(), parent)
{}
