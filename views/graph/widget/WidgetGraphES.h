#pragma once

#include "platform/tessel/opengl/LineStripsSimple.h"
#include "platform/tessel/opengl/Lines.h"
#include "platform/tessel/opengl/MatrixSet.h"
#include "views/graph/widget/WidgetGraphBase.h"

/// The graph drawn with the platform library's line primitives.
class WidgetGraphES : public WidgetGraphBase
{
    Q_OBJECT

public:
    explicit WidgetGraphES(QWidget* parent = nullptr);
    ~WidgetGraphES() override;

protected:
    void initializeGL() override;
    void beginDrawing(const QSize& pixels) override;
    void drawLines(const std::vector<VELIX::GraphVertex>& vertices, const QColor& colour,
                   float width) override;
    void drawCurve(const VELIX::GraphCurve& curve, const QColor& colour, float width,
                   float pointSize) override;
    void endDrawing() override;

private:
    /// Gives program and buffers back while their context is current.
    void release();

    Tessel::OpenGL::MatrixSet mMatrices;
    Tessel::OpenGL::LineProgram mProgram;
    Tessel::OpenGL::Lines mGridLines;
    Tessel::OpenGL::LineStripsSimple mStrips;
};
