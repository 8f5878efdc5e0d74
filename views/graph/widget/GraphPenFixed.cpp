// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "views/graph/widget/GraphPenFixed.h"

namespace VELIX {

void GraphPenFixed::begin(const QSize& pixels)
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, pixels.width(), pixels.height(), 0.0, -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glEnableClientState(GL_VERTEX_ARRAY);
}

void GraphPenFixed::drawLines(const std::vector<GraphVertex>& vertices, const QColor& color,
                              float width)
{
    if (vertices.empty()) {
        return;
    }
    glColor3d(color.redF(), color.greenF(), color.blueF());
    glLineWidth(width);
    glVertexPointer(2, GL_FLOAT, 0, vertices.data());
    glDrawArrays(GL_LINES, 0, static_cast<GLsizei>(vertices.size()));
}

void GraphPenFixed::drawCurve(const GraphCurve& curve, const QColor& color, float width,
                              float pointSize)
{
    if (curve.vertices().empty()) {
        return;
    }
    glColor3d(color.redF(), color.greenF(), color.blueF());
    glLineWidth(width);
    glPointSize(pointSize > 0.0F ? pointSize : width);
    glVertexPointer(2, GL_FLOAT, 0, curve.vertices().data());
    const std::vector<int>& sizes = curve.sizes();
    glMultiDrawArrays(GL_LINE_STRIP, curve.starts().data(), sizes.data(),
                      static_cast<GLsizei>(sizes.size()));
    for (std::size_t strip = 0; strip < sizes.size(); ++strip) {
        if (sizes[strip] == 1) { // a sample between gaps
            glDrawArrays(GL_POINTS, curve.starts()[strip], 1);
        }
    }
    if (pointSize > 0.0F) {
        glDrawArrays(GL_POINTS, 0, static_cast<GLsizei>(curve.vertices().size()));
    }
}

void GraphPenFixed::end()
{
    glDisableClientState(GL_VERTEX_ARRAY);
}

} // namespace VELIX
