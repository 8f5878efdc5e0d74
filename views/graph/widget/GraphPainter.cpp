#include "views/graph/widget/GraphPainter.h"

#include "views/graph/model/GraphModel.h"
#include "views/graph/widget/GraphOverlay.h"
#include "views/graph/widget/GraphPointer.h"
#include "views/graph/widget/GraphSceneCache.h"
#include "views/graph/widget/GraphTexts.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLPaintDevice>

#include <GL/gl.h>

#include <cmath>

namespace VELIX {

namespace {

/// Side of the square at a sample (logical pixels).
constexpr double kPointSize = 4.0;

QOpenGLFunctions& functions()
{
    return *QOpenGLContext::currentContext()->functions();
}

void clearTo(QOpenGLFunctions& gl, const QColor& color)
{
    gl.glClearColor(static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                    static_cast<float>(color.blueF()), 1.0F);
    gl.glClear(GL_COLOR_BUFFER_BIT);
}

QColor colorOf(const GraphModel::ParStruct& parameter)
{
    return QColor::fromRgbF(static_cast<double>(parameter.color[0]),
                            static_cast<double>(parameter.color[1]),
                            static_cast<double>(parameter.color[2]));
}

} // namespace

GraphPainter::GraphPainter(const GraphModel& model, const GraphLook& look,
                           const GraphPointer& pointer, GraphSceneCache& scenes,
                           std::unique_ptr<GraphPen> pen)
    : mModel(model), mLook(look), mPointer(pointer), mScenes(scenes), mPen(std::move(pen))
{}

void GraphPainter::paint(const Target& target)
{
    mTarget = target;
    const bool empty = mScenes.current().layout.empty();
    if (!empty && GraphTexts::hint(mModel).isEmpty()) {
        showPlot();
        drawOverlayLines();
    } else {
        drawBackground();
    }
    if (!empty) {
        drawTexts();
    }
}

void GraphPainter::release()
{
    mPlotScene = 0;
    mPlot.release();
    mPen->release();
}

// --- what is kept

void GraphPainter::showPlot()
{
    if (!Tessel::OpenGL::FrameCache::isSupported()) {
        drawPlot();
        return;
    }
    if (mPlotScene != mScenes.count() || !mPlot.holds(mTarget.pixels)) {
        const bool kept = mPlot.begin(mTarget.pixels);
        mPlotScene = kept ? mScenes.count() : 0;
        drawPlot();
        if (!kept) {
            return; // drawn to the target itself
        }
        mPlot.end();
    }
    mPlot.copyTo(mTarget.frameBuffer);
}

void GraphPainter::drawPlot()
{
    drawBackground();
    functions().glEnable(GL_SCISSOR_TEST);
    mPen->begin(mTarget.pixels);
    drawGrid();
    drawTraces();
    mPen->end();
    functions().glDisable(GL_SCISSOR_TEST);
}

void GraphPainter::drawBackground()
{
    QOpenGLFunctions& gl = functions();
    gl.glViewport(0, 0, mTarget.pixels.width(), mTarget.pixels.height());
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_SCISSOR_TEST);
    gl.glEnable(GL_MULTISAMPLE); // the painter of the texts leaves it off
    clearTo(gl, mLook.labelBack);
    const GraphLayout& parts = mScenes.current().layout;
    if (!parts.empty()) {
        gl.glEnable(GL_SCISSOR_TEST);
        scissor(parts.plot());
        clearTo(gl, mLook.back);
        gl.glDisable(GL_SCISSOR_TEST);
    }
}

void GraphPainter::drawGrid()
{
    const GraphLayout& parts = mScenes.current().layout;
    scissor(parts.plot());
    if (mLook.gridOn) {
        drawTicks(false);
        drawTicks(true);
    }
    for (int band = 1; band < parts.bandCount(); ++band) {
        addHorizontal(parts.band(band).top(), parts.plot());
    }
    drawLines(mLook.separator(), hairline());
}

void GraphPainter::drawTicks(bool major)
{
    const GraphScene& scene = mScenes.current();
    const QRect plot = scene.layout.plot();
    for (const GraphTick& tick : scene.timeTicks) {
        if (tick.major == major) {
            addVertical(plot.left() + tick.position, plot);
        }
    }
    for (std::size_t i = 0; i < scene.valueTicks.size(); ++i) {
        const QRect band = scene.bandOf(i);
        for (const GraphTick& tick : scene.valueTicks[i]) {
            if (tick.major == major) {
                addHorizontal(band.top() + band.height() - tick.position, band);
            }
        }
    }
    drawLines(major ? mLook.majorGrid() : mLook.minorGrid(), hairline());
}

void GraphPainter::drawTraces()
{
    const GraphScene& scene = mScenes.current();
    for (std::size_t i = 0; i < scene.shown.size(); ++i) {
        const unsigned int trace = scene.shown[i];
        const GraphModel::ParStruct& parameter = mModel.parameter(trace);
        const QRect band = scene.bandOf(i);
        const GraphCurve::Target target{QRectF(pixelOf(band.left()), pixelOf(band.top()),
                                               pixelOf(band.width()), pixelOf(band.height())),
                                        mModel.xmin(), mModel.xmax(), mModel.scaleOf(trace)};
        mCurve.build(parameter.trace.frames(), target);
        scissor(band);
        mPen->drawCurve(mCurve, colorOf(parameter), static_cast<float>(pixelOf(1.0)),
                        parameter.samples ? static_cast<float>(pixelOf(kPointSize)) : 0.0F);
    }
}

// --- what moves over it

void GraphPainter::drawOverlayLines()
{
    const GraphLayout& parts = mScenes.current().layout;
    functions().glEnable(GL_SCISSOR_TEST);
    scissor(parts.plot());
    mPen->begin(mTarget.pixels);
    const auto xOf = [&](double time) { return parts.xOf(time, mModel.xmin(), mModel.xmax()); };
    if (mPointer.markersOn) {
        addVertical(xOf(mModel.marker1()), parts.plot());
        addVertical(xOf(mModel.marker2()), parts.plot());
        drawLines(mLook.plotText(), pixelOf(1.0));
    }
    if (mPointer.hovering) {
        addVertical(mPointer.mouse.x(), parts.plot());
        drawLines(mLook.plotMutedText(), pixelOf(1.0));
    }
    if (mLook.cursorOn) {
        addVertical(xOf(mModel.cursorTime()), parts.plot());
        drawLines(mLook.cursor(), pixelOf(mPointer.cursorActive ? 2.0 : 1.0));
        drawCursorValue();
    }
    mPen->end();
    functions().glDisable(GL_SCISSOR_TEST);
}

void GraphPainter::drawCursorValue()
{
    // Only a small cross: a line across the plot would look like a trace.
    constexpr int kArm = 7;
    const GraphLayout& parts = mScenes.current().layout;
    const unsigned int trace = mModel.selectedTrace();
    const QRect band = mScenes.selectedBand();
    const GraphYScale& scale = mModel.scaleOf(trace);
    const double y = GraphLayout::yOf(mModel.cursorValue(), band, scale.minimum, scale.maximum);
    const double x = parts.xOf(mModel.cursorTime(), mModel.xmin(), mModel.xmax());
    if (trace == GraphModel::kNoTrace || x < parts.plot().left() ||
        x > parts.plot().right() + 1.0 || y < band.top() || y > band.bottom() + 1.0) {
        return;
    }
    const QRect cross(static_cast<int>(x) - kArm, band.top(), 2 * kArm + 1, 1);
    addHorizontal(y, mPointer.cursorActive ? band : cross);
    drawLines(mLook.cursor(), pixelOf(1.0));
}

void GraphPainter::drawTexts()
{
    // Painted through a device of its own: what a painter on the widget draws is lost when the
    // widget is grabbed for a snapshot.
    QOpenGLPaintDevice device(mTarget.pixels);
    device.setDevicePixelRatio(mTarget.ratio);
    QPainter painter(&device);
    GraphOverlay(painter, mModel, mScenes.current(), mLook, mPointer).paint();
}

// --- pixels

void GraphPainter::scissor(const QRect& area) const
{
    const int left = qRound(pixelOf(area.left()));
    const int right = qRound(pixelOf(area.left() + area.width()));
    const int top = qRound(pixelOf(area.top()));
    const int bottom = qRound(pixelOf(area.top() + area.height()));
    functions().glScissor(left, mTarget.pixels.height() - bottom, right - left, bottom - top);
}

void GraphPainter::addVertical(double x, const QRect& area)
{
    // Through the middle of a pixel column, so that the line is one column wide.
    const auto column = static_cast<float>(std::floor(pixelOf(x)) + 0.5);
    mLines.push_back({column, static_cast<float>(pixelOf(area.top()))});
    mLines.push_back({column, static_cast<float>(pixelOf(area.top() + area.height()))});
}

void GraphPainter::addHorizontal(double y, const QRect& area)
{
    const auto row = static_cast<float>(std::floor(pixelOf(y)) + 0.5);
    mLines.push_back({static_cast<float>(pixelOf(area.left())), row});
    mLines.push_back({static_cast<float>(pixelOf(area.left() + area.width())), row});
}

double GraphPainter::hairline() const
{
    return std::floor(pixelOf(1.0));
}

void GraphPainter::drawLines(const QColor& color, double width)
{
    mPen->drawLines(mLines, color, static_cast<float>(width));
    mLines.clear();
}

} // namespace VELIX
