#pragma once

#include "views/graph/widget/WidgetGraphBase.h"

/// The graph drawn with the platform library's line primitives.
class WidgetGraphES : public WidgetGraphBase
{
    Q_OBJECT

public:
    explicit WidgetGraphES(QWidget* parent = nullptr);
};
