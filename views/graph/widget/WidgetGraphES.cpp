#include "views/graph/widget/WidgetGraphES.h"

#include <QOpenGLContext>

namespace {

Tessel::OpenGL::Color toColor(const QColor& colour)
{
    return {static_cast<float>(colour.redF()), static_cast<float>(colour.greenF()),
            static_cast<float>(colour.blueF()), 1.0F};
}

} // namespace

WidgetGraphES::WidgetGraphES(QWidget* parent) : WidgetGraphBase(parent) {}

WidgetGraphES::~WidgetGraphES()
{
    if (context() != nullptr) {
        disconnect(context(), nullptr, this, nullptr);
    }
    release();
}

void WidgetGraphES::initializeGL()
{
    WidgetGraphBase::initializeGL();
    // A widget that moves to another window gets a new context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &WidgetGraphES::release);
}

void WidgetGraphES::beginDrawing(const QSize& pixels)
{
    mMatrices.reset();
    (void)mMatrices.setOrtho(0.0, pixels.width(), pixels.height(), 0.0);
}

void WidgetGraphES::drawLines(const std::vector<VELIX::GraphVertex>& vertices, const QColor& colour,
                              float width)
{
    mGridLines.clear();
    for (std::size_t i = 0; i + 1 < vertices.size(); i += 2) {
        mGridLines.addLine(vertices[i].x, vertices[i].y, vertices[i + 1].x, vertices[i + 1].y);
    }
    mGridLines.setColor(toColor(colour));
    mGridLines.setWidth(width);
    mGridLines.render(mProgram, mMatrices);
}

void WidgetGraphES::drawCurve(const VELIX::GraphCurve& curve, const QColor& colour, float width,
                              float pointSize)
{
    mStrips.clear();
    for (std::size_t strip = 0; strip < curve.starts().size(); ++strip) {
        mStrips.beginStrip();
        const int end = curve.starts()[strip] + curve.sizes()[strip];
        for (int i = curve.starts()[strip]; i < end; ++i) {
            const VELIX::GraphVertex& vertex = curve.vertices()[static_cast<std::size_t>(i)];
            mStrips.addVertex(vertex.x, vertex.y);
        }
    }
    mStrips.setColor(toColor(colour));
    mStrips.setWidth(width);
    mStrips.setPointSize(pointSize);
    mStrips.render(mProgram, mMatrices);
}

void WidgetGraphES::endDrawing() {}

void WidgetGraphES::release()
{
    if (context() == nullptr) {
        return;
    }
    makeCurrent();
    mGridLines.release();
    mStrips.release();
    mProgram.release();
    doneCurrent();
}
