#pragma once

#include "platform/tessel/opengl/FrameCache.h"
#include "views/graph/widget/GraphPen.h"

#include <QRect>
#include <QSize>

#include <memory>
#include <vector>

class QOpenGLFunctions;

namespace VELIX {

class GraphModel;
class GraphSceneCache;
struct GraphLook;
struct GraphPointer;

/// Draws a graph with OpenGL, layer by layer: background, grid and traces, which it keeps, then the
/// lines of cursor, markers and mouse, and all texts.
class GraphPainter
{
public:
    /// What is drawn on.
    struct Target
    {
        QSize pixels;
        double ratio = 1.0; ///< pixels to a logical one
        unsigned int frameBuffer = 0;
    };

    /// model, look, pointer and scenes outlive the painter.
    GraphPainter(const GraphModel& model, const GraphLook& look, const GraphPointer& pointer,
                 GraphSceneCache& scenes, std::unique_ptr<GraphPen> pen);

    /// Draws a frame in the current context.
    void paint(const Target& target);
    /// Gives back what it holds of the current context.
    void release();

private:
    void showPlot();
    void drawPlot();
    void drawBackground();
    void drawGrid();
    void drawTicks(bool major);
    void drawTraces();
    void drawOverlayLines();
    void drawCursorValue();
    void drawTexts();

    void scissor(const QRect& area) const;
    void addVertical(double x, const QRect& area);
    void addHorizontal(double y, const QRect& area);
    /// Draws the lines added, and forgets them. width: pixels.
    void drawLines(const QColor& color, double width);
    [[nodiscard]] double pixelOf(double logical) const { return logical * mTarget.ratio; }
    /// The whole pixels of a logical one.
    [[nodiscard]] double hairline() const;

    const GraphModel& mModel;
    const GraphLook& mLook;
    const GraphPointer& mPointer;
    GraphSceneCache& mScenes;
    std::unique_ptr<GraphPen> mPen;
    Target mTarget;
    /// Grid and traces, smooth: a cursor that moves costs a copy of them.
    Tessel::OpenGL::FrameCache mPlot{4};
    unsigned int mPlotScene = 0; ///< number of the scene that mPlot shows; 0: none
    // Kept for their memory.
    GraphCurve mCurve;
    std::vector<GraphVertex> mLines;
};

} // namespace VELIX
