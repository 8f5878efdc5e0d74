#include "views/graph/widget/GraphPenES.h"

namespace VELIX {

namespace {

Tessel::OpenGL::Color toColor(const QColor& color)
{
    return {static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
            static_cast<float>(color.blueF()), 1.0F};
}

} // namespace

void GraphPenES::begin(const QSize& pixels)
{
    mMatrices.reset();
    (void)mMatrices.setOrtho(0.0, pixels.width(), pixels.height(), 0.0);
}

void GraphPenES::drawLines(const std::vector<GraphVertex>& vertices, const QColor& color,
                           float width)
{
    mLines.clear();
    for (std::size_t i = 0; i + 1 < vertices.size(); i += 2) {
        mLines.addLine(vertices[i].x, vertices[i].y, vertices[i + 1].x, vertices[i + 1].y);
    }
    mLines.setColor(toColor(color));
    mLines.setWidth(width);
    mLines.render(mProgram, mMatrices);
}

void GraphPenES::drawCurve(const GraphCurve& curve, const QColor& color, float width,
                           float pointSize)
{
    mStrips.clear();
    for (std::size_t strip = 0; strip < curve.starts().size(); ++strip) {
        mStrips.beginStrip();
        const int end = curve.starts()[strip] + curve.sizes()[strip];
        for (int i = curve.starts()[strip]; i < end; ++i) {
            const GraphVertex& vertex = curve.vertices()[static_cast<std::size_t>(i)];
            mStrips.addVertex(vertex.x, vertex.y);
        }
    }
    mStrips.setColor(toColor(color));
    mStrips.setWidth(width);
    mStrips.setPointSize(pointSize);
    mStrips.render(mProgram, mMatrices);
}

void GraphPenES::release()
{
    mLines.release();
    mStrips.release();
    mProgram.release();
}

} // namespace VELIX
