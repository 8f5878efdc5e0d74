#pragma once

#include "views/graph/widget/WidgetGraphBase.h"

/// The graph drawn with OpenGL's fixed-function pipeline.
class WidgetGraph : public WidgetGraphBase
{
    Q_OBJECT

public:
    explicit WidgetGraph(QWidget* parent = nullptr);
};
