#pragma once

#include "views/graph/widget/WidgetGraphBase.h"

/// The graph drawn with OpenGL's fixed-function pipeline, from arrays of vertices.
class WidgetGraph : public WidgetGraphBase
{
    Q_OBJECT

public:
    explicit WidgetGraph(QWidget* parent = nullptr);

protected:
    void beginDrawing(const QSize& pixels) override;
    void drawLines(const std::vector<VELIX::GraphVertex>& vertices, const QColor& colour,
                   float width) override;
    void drawCurve(const VELIX::GraphCurve& curve, const QColor& colour, float width,
                   float pointSize) override;
    void endDrawing() override;
};
