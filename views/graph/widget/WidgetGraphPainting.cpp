#include "views/graph/widget/GraphOverlay.h"
#include "views/graph/widget/GraphTexts.h"
#include "views/graph/widget/WidgetGraphBase.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLPaintDevice>

#include <GL/gl.h>

#include <cmath>

using VELIX::GraphLayout;
using VELIX::GraphTick;
using VELIX::GraphVertex;

namespace {

/// Vertices of a sample shown as a square (logical pixels).
constexpr double kPointSize = 4.0;

void clearTo(QOpenGLFunctions& gl, const QColor& colour)
{
    gl.glClearColor(static_cast<float>(colour.redF()), static_cast<float>(colour.greenF()),
                    static_cast<float>(colour.blueF()), 1.0F);
    gl.glClear(GL_COLOR_BUFFER_BIT);
}

QColor colourOf(const VELIX::GraphModel::ParStruct& parameter)
{
    return QColor::fromRgbF(static_cast<double>(parameter.colour[0]),
                            static_cast<double>(parameter.colour[1]),
                            static_cast<double>(parameter.colour[2]));
}

} // namespace

void WidgetGraphBase::initializeGL()
{
    // A widget that moves to another window gets a new context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &WidgetGraphBase::releasePlot);
}

void WidgetGraphBase::releasePlot()
{
    mPlotStale = true;
    if (context() != nullptr) {
        makeCurrent();
        mPlot.release();
        doneCurrent();
    }
}

void WidgetGraphBase::resizeGL(int width, int height)
{
    Q_UNUSED(width)
    Q_UNUSED(height)
    updateScene();
    adoptPlotWidth();
}

void WidgetGraphBase::paintGL()
{
    ++mPaintCount;
    updateScene();
    adoptPlotWidth();
    const QSize pixels(qRound(width() * devicePixelRatioF()),
                       qRound(height() * devicePixelRatioF()));
    const bool lines = !mScene.layout.empty() && VELIX::GraphTexts::hint(mModel).isEmpty();
    if (lines) {
        showPlot(pixels);
        drawOverlayLines(pixels);
    } else {
        drawGround(pixels);
    }
    if (!mScene.layout.empty()) {
        drawTexts(pixels);
    }
    mPaintedRevision = mModel.revision();
    mSinceRepaint.restart();
}

void WidgetGraphBase::showPlot(const QSize& pixels)
{
    if (!Tessel::OpenGL::FrameCache::isSupported()) {
        drawPlot(pixels);
        return;
    }
    if (mPlotStale || !mPlot.holds(pixels)) {
        mPlotStale = !mPlot.begin(pixels);
        drawPlot(pixels);
        if (mPlotStale) {
            return; // drawn to the widget itself
        }
        mPlot.end();
    }
    mPlot.copyTo(defaultFramebufferObject());
}

void WidgetGraphBase::drawPlot(const QSize& pixels)
{
    drawGround(pixels);
    context()->functions()->glEnable(GL_SCISSOR_TEST);
    beginDrawing(pixels);
    drawGrid();
    drawTraces();
    endDrawing();
    context()->functions()->glDisable(GL_SCISSOR_TEST);
}

double WidgetGraphBase::pixelOf(double logical) const
{
    return logical * devicePixelRatioF();
}

void WidgetGraphBase::scissor(const QRect& area) const
{
    const int left = qRound(pixelOf(area.left()));
    const int right = qRound(pixelOf(area.left() + area.width()));
    const int top = qRound(pixelOf(area.top()));
    const int bottom = qRound(pixelOf(area.top() + area.height()));
    const int height = qRound(pixelOf(this->height()));
    context()->functions()->glScissor(left, height - bottom, right - left, bottom - top);
}

void WidgetGraphBase::drawGround(const QSize& pixels)
{
    QOpenGLFunctions& gl = *context()->functions();
    gl.glViewport(0, 0, pixels.width(), pixels.height());
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_SCISSOR_TEST);
    gl.glEnable(GL_MULTISAMPLE); // the painter of the texts leaves it off
    clearTo(gl, mLook.labelBack);
    if (!mScene.layout.empty()) {
        gl.glEnable(GL_SCISSOR_TEST);
        scissor(mScene.layout.plot());
        clearTo(gl, mLook.back);
        gl.glDisable(GL_SCISSOR_TEST);
    }
}

void WidgetGraphBase::addVertical(std::vector<GraphVertex>& lines, double x,
                                  const QRect& area) const
{
    // Through the middle of a pixel column, so that the line is one column wide.
    const auto column = static_cast<float>(std::floor(pixelOf(x)) + 0.5);
    lines.push_back({column, static_cast<float>(pixelOf(area.top()))});
    lines.push_back({column, static_cast<float>(pixelOf(area.top() + area.height()))});
}

void WidgetGraphBase::addHorizontal(std::vector<GraphVertex>& lines, double y,
                                    const QRect& area) const
{
    const auto row = static_cast<float>(std::floor(pixelOf(y)) + 0.5);
    lines.push_back({static_cast<float>(pixelOf(area.left())), row});
    lines.push_back({static_cast<float>(pixelOf(area.left() + area.width())), row});
}

void WidgetGraphBase::drawGrid()
{
    const QRect plot = mScene.layout.plot();
    const auto hairline = static_cast<float>(std::floor(pixelOf(1.0)));
    scissor(plot);
    for (const bool major : {false, true}) {
        mLines.clear();
        for (const GraphTick& tick : mScene.timeTicks) {
            if (mLook.gridOn && tick.major == major) {
                addVertical(mLines, plot.left() + tick.position, plot);
            }
        }
        for (std::size_t band = 0; band < mScene.valueTicks.size(); ++band) {
            const QRect place = mScene.bandOf(band);
            for (const GraphTick& tick : mScene.valueTicks[band]) {
                if (mLook.gridOn && tick.major == major) {
                    addHorizontal(mLines, place.top() + place.height() - tick.position, place);
                }
            }
        }
        drawLines(mLines, major ? mLook.majorGrid() : mLook.minorGrid(), hairline);
    }
    mLines.clear();
    for (int band = 1; band < mScene.layout.bandCount(); ++band) {
        addHorizontal(mLines, mScene.layout.band(band).top(), plot);
    }
    drawLines(mLines, mLook.separator(), hairline);
}

void WidgetGraphBase::drawTraces()
{
    for (std::size_t place = 0; place < mScene.shown.size(); ++place) {
        const unsigned int trace = mScene.shown[place];
        const VELIX::GraphModel::ParStruct& parameter = mModel.parameter(trace);
        const QRect band = mScene.bandOf(place);
        const VELIX::GraphCurve::Target target{QRectF(pixelOf(band.left()), pixelOf(band.top()),
                                                      pixelOf(band.width()),
                                                      pixelOf(band.height())),
                                               mModel.xmin(), mModel.xmax(), mModel.scaleOf(trace)};
        mCurve.build(parameter.trace.frames(), target);
        scissor(band);
        drawCurve(mCurve, colourOf(parameter), static_cast<float>(pixelOf(1.0)),
                  parameter.samples ? static_cast<float>(pixelOf(kPointSize)) : 0.0F);
    }
}

void WidgetGraphBase::drawOverlayLines(const QSize& pixels)
{
    const QRect plot = mScene.layout.plot();
    context()->functions()->glEnable(GL_SCISSOR_TEST);
    scissor(plot);
    beginDrawing(pixels);
    const auto xOf = [this](double time) {
        return mScene.layout.xOf(time, mModel.xmin(), mModel.xmax());
    };
    if (mPointer.markersOn) {
        mLines.clear();
        addVertical(mLines, xOf(mModel.marker1()), plot);
        addVertical(mLines, xOf(mModel.marker2()), plot);
        drawLines(mLines, mLook.plotText(), static_cast<float>(pixelOf(1.0)));
    }
    if (mPointer.hovering) {
        mLines.clear();
        addVertical(mLines, mPointer.mouse.x(), plot);
        drawLines(mLines, mLook.plotMutedText(), static_cast<float>(pixelOf(1.0)));
    }
    if (mLook.cursorOn) {
        mLines.clear();
        addVertical(mLines, xOf(mModel.cursorTime()), plot);
        drawLines(mLines, mLook.cursor(),
                  static_cast<float>(pixelOf(mPointer.cursorActive ? 2.0 : 1.0)));
        drawCursorValue();
    }
    endDrawing();
    context()->functions()->glDisable(GL_SCISSOR_TEST);
}

void WidgetGraphBase::drawCursorValue()
{
    // Only a small cross: a line across the plot would look like a trace.
    constexpr int kArm = 7;
    const unsigned int trace = mModel.selectedTrace();
    const QRect band = selectedBand();
    const VELIX::GraphYScale& scale = mModel.scaleOf(trace);
    const double y = GraphLayout::yOf(mModel.cursorValue(), band, scale.minimum, scale.maximum);
    const double x = mScene.layout.xOf(mModel.cursorTime(), mModel.xmin(), mModel.xmax());
    const QRect plot = mScene.layout.plot();
    if (trace == VELIX::GraphModel::kNoTrace || x < plot.left() || x > plot.right() + 1.0 ||
        y < band.top() || y > band.bottom() + 1.0) {
        return;
    }
    mLines.clear();
    addHorizontal(mLines, y,
                  mPointer.cursorActive
                      ? band
                      : QRect(static_cast<int>(x) - kArm, band.top(), 2 * kArm + 1, 1));
    drawLines(mLines, mLook.cursor(), static_cast<float>(pixelOf(1.0)));
}

void WidgetGraphBase::drawTexts(const QSize& pixels)
{
    // Painted through a device of its own: what a painter on the widget draws is lost when the
    // widget is grabbed for a snapshot.
    QOpenGLPaintDevice device(pixels);
    device.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&device);
    VELIX::GraphOverlay(painter, mModel, mScene, mLook, mPointer).paint();
}
