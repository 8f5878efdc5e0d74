#include "views/MapPathLines.h"

#include "platform/tessel/GlHandler.h"

#include <cmath>

namespace VELIX {

namespace {

/// Of a part, in metres of the map: there a vertex is some 4 mm off, a tenth of the smallest pixel.
constexpr double kFarthest = 5.0e4;
constexpr QRgb kPlain = qRgb(112, 40, 190);

Tessel::OpenGL::Color colorOf(QRgb color)
{
    constexpr float kFull = 255.0F;
    return {static_cast<float>(qRed(color)) / kFull, static_cast<float>(qGreen(color)) / kFull,
            static_cast<float>(qBlue(color)) / kFull, 1.0F};
}

} // namespace

void MapPathLines::addPart(const MapPath::Point& origin, double width)
{
    mParts.emplace_back().origin = origin;
    mParts.back().lines.setVertexColors(true);
    mParts.back().lines.setLineWidth(static_cast<float>(width));
}

void MapPathLines::build(const MapPath& path, const std::vector<QRgb>& colors, double width)
{
    mParts.clear();
    const std::vector<MapPath::Point>& points = path.points();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const MapPath::Point& point = points[i];
        const auto add = [&] {
            Part& part = mParts.back();
            part.lines.addVertex(static_cast<float>(point.x - part.origin.x),
                                 static_cast<float>(point.y - part.origin.y));
        };
        if (mParts.empty()) {
            addPart(point, width);
            mParts.back().lines.reserve(points.size());
        }
        mParts.back().lines.setColor(colorOf(i < colors.size() ? colors[i] : kPlain));
        add();
        if (std::hypot(point.x - mParts.back().origin.x, point.y - mParts.back().origin.y) >
            kFarthest) {
            addPart(point, width); // begins where the last one ends
            mParts.back().lines.setColor(colorOf(i < colors.size() ? colors[i] : kPlain));
            add();
        }
    }
}

void MapPathLines::render(Tessel::OpenGL::GlHandler& gl, const MapPath& path, double x, double y,
                          double metresPerPixel)
{
    Tessel::OpenGL::MatrixSet& matrices = gl.matrices();
    for (Part& part : mParts) {
        matrices.push();
        matrices.translate(x + (part.origin.x - path.middle().x) / metresPerPixel,
                           y - (part.origin.y - path.middle().y) / metresPerPixel);
        matrices.scale(1.0 / metresPerPixel, -1.0 / metresPerPixel);
        part.lines.render(gl);
        matrices.pop();
    }
}

void MapPathLines::release()
{
    for (Part& part : mParts) {
        part.lines.release();
    }
}

} // namespace VELIX
