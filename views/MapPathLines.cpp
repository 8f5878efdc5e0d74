#include "views/MapPathLines.h"

#include "platform/tessel/GlHandler.h"
#include "views/MapPathOutline.h"

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

/// Of a part, in metres of the map: there a vertex is some 4 mm off, a tenth of the smallest pixel.
constexpr double kFarthest = 5.0e4;
/// Of the outline, as a fraction of the path's extent: half a pixel of a large window.
constexpr double kOutline = 1.0 / 5000.0;
constexpr double kPixelPart = 0.5;
constexpr QRgb kPlain = qRgb(112, 40, 190);

Tessel::OpenGL::Color colorOf(QRgb color)
{
    constexpr float kFull = 255.0F;
    return {static_cast<float>(qRed(color)) / kFull, static_cast<float>(qGreen(color)) / kFull,
            static_cast<float>(qBlue(color)) / kFull, 1.0F};
}

} // namespace

class MapPathLines::Writer
{
public:
    Writer(Parts& parts, double width, std::size_t points)
        : mParts(parts), mWidth(static_cast<float>(width)), mPoints(points)
    {}

    void add(const MapPath::Point& point, QRgb color)
    {
        if (mParts.empty()) {
            addPart(point);
            mParts.back().lines.reserve(mPoints);
        }
        append(point, color);
        const MapPath::Point& origin = mParts.back().origin;
        if (std::hypot(point.x - origin.x, point.y - origin.y) > kFarthest) {
            addPart(point); // begins where the last one ends
            append(point, color);
        }
    }

private:
    void addPart(const MapPath::Point& origin)
    {
        mParts.emplace_back().origin = origin;
        mParts.back().lines.setVertexColors(true);
        mParts.back().lines.setLineWidth(mWidth);
    }
    void append(const MapPath::Point& point, QRgb color)
    {
        Part& part = mParts.back();
        part.lines.setColor(colorOf(color));
        part.lines.addVertex(static_cast<float>(point.x - part.origin.x),
                             static_cast<float>(point.y - part.origin.y));
    }

    Parts& mParts;
    float mWidth;
    std::size_t mPoints;
};

void MapPathLines::clear()
{
    mWhole.clear();
    mOutline.clear();
}

void MapPathLines::build(const MapPath& path, const std::vector<QRgb>& colors, double width)
{
    clear();
    const std::vector<MapPath::Point>& points = path.points();
    const auto colorAt = [&colors](std::size_t i) {
        return i < colors.size() ? colors[i] : kPlain;
    };
    Writer whole(mWhole, width, points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        whole.add(points[i], colorAt(i));
    }
    mTolerance = kOutline * std::max(path.halfWidth(), path.halfHeight()) * 2.0;
    const std::vector<std::size_t> kept = mapPathOutline(points, colors, mTolerance);
    Writer outline(mOutline, width, kept.size());
    for (const std::size_t i : kept) {
        outline.add(points[i], colorAt(i));
    }
}

void MapPathLines::render(Tessel::OpenGL::GlHandler& gl, const MapPath& path, double x, double y,
                          double metresPerPixel)
{
    Tessel::OpenGL::MatrixSet& matrices = gl.matrices();
    for (Part& part : mTolerance <= kPixelPart * metresPerPixel ? mOutline : mWhole) {
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
    for (Parts* parts : {&mWhole, &mOutline}) {
        for (Part& part : *parts) {
            part.lines.release();
        }
    }
}

} // namespace VELIX
