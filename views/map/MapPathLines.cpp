#include "views/map/MapPathLines.h"

#include "platform/tessel/opengl/GlHandler.h"
#include "views/map/model/MapPathOutline.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace VELIX {

namespace {

/// Of a part, in metres of the map: there a vertex is some 4 mm off, a tenth of the smallest pixel.
constexpr double kFarthest = 5.0e4;
constexpr std::size_t kPartPoints = 2048;
/// Of the outline of the whole path, as a fraction of its extent: half a pixel of a large window.
constexpr double kWhole = 1.0 / 5000.0;
constexpr double kPixelPart = 0.5;
constexpr double kLeastTolerance = 0.01; // m: what positions are stored with is coarser
constexpr double kDot = 1.0;             // m: the extent of a path that never left its place
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
    Writer(std::deque<Part>& parts, double width) : mParts(parts), mWidth(static_cast<float>(width))
    {}

    void add(const MapPath::Point& point, QRgb color)
    {
        if (mParts.empty()) {
            addPart(point);
        }
        append(point, color);
        const Part& part = mParts.back();
        if (part.lines.size() >= kPartPoints ||
            std::hypot(point.x - part.origin.x, point.y - part.origin.y) > kFarthest) {
            addPart(point); // begins where the last one ends
            append(point, color);
        }
    }

private:
    void addPart(const MapPath::Point& origin)
    {
        Part& part = mParts.emplace_back();
        part.origin = origin;
        part.lines.setVertexColors(true);
        part.lines.setAntiAliasing(true);
        part.lines.setLineWidth(mWidth);
    }
    void append(const MapPath::Point& point, QRgb color)
    {
        Part& part = mParts.back();
        const double x = point.x - part.origin.x;
        const double y = point.y - part.origin.y;
        part.box.setLeft(std::min(part.box.left(), x));
        part.box.setRight(std::max(part.box.right(), x));
        part.box.setTop(std::min(part.box.top(), y));
        part.box.setBottom(std::max(part.box.bottom(), y));
        part.lines.setColor(colorOf(color));
        part.lines.addVertex(static_cast<float>(x), static_cast<float>(y));
    }

    std::deque<Part>& mParts;
    float mWidth;
};

void MapPathLines::clear()
{
    mColors.clear();
    mWhole = {};
    mNear = {};
}

void MapPathLines::build(const MapPath& path, std::vector<QRgb> colors, double width)
{
    clear();
    mColors = std::move(colors);
    mWidth = width;
    const double extent = 2.0 * std::max(path.halfWidth(), path.halfHeight());
    make(mWhole, path, kWhole * std::max(extent, kDot));
}

void MapPathLines::make(Outline& outline, const MapPath& path, double tolerance)
{
    outline.parts.clear();
    outline.tolerance = tolerance;
    Writer writer(outline.parts, mWidth);
    for (const std::size_t i : mapPathOutline(path.points(), mColors, tolerance)) {
        writer.add(path.points()[i], i < mColors.size() ? mColors[i] : kPlain);
    }
}

MapPathLines::Outline& MapPathLines::outlineFor(const MapPath& path, double metresPerPixel)
{
    const double most = kPixelPart * metresPerPixel;
    if (mWhole.tolerance <= most) {
        return mWhole;
    }
    if (mNear.tolerance > most || mNear.tolerance * 2.0 < most) {
        const double halvings = std::ceil(std::log2(mWhole.tolerance / most));
        const double tolerance = mWhole.tolerance * std::exp2(-halvings);
        const double possible = std::max(tolerance, kLeastTolerance);
        if (possible != mNear.tolerance) {
            make(mNear, path, possible);
        }
    }
    return mNear;
}

void MapPathLines::render(Tessel::OpenGL::GlHandler& gl, const MapPath& path, const QSize& window,
                          double x, double y, double metresPerPixel)
{
    Tessel::OpenGL::MatrixSet& matrices = gl.matrices();
    for (Part& part : outlineFor(path, metresPerPixel).parts) {
        const double left = x + (part.origin.x - path.middle().x) / metresPerPixel;
        const double top = y - (part.origin.y - path.middle().y) / metresPerPixel;
        if (left + part.box.right() / metresPerPixel < -mWidth ||
            left + part.box.left() / metresPerPixel > window.width() + mWidth ||
            top - part.box.top() / metresPerPixel < -mWidth ||
            top - part.box.bottom() / metresPerPixel > window.height() + mWidth) {
            continue;
        }
        matrices.push();
        matrices.translate(left, top);
        matrices.scale(1.0 / metresPerPixel, -1.0 / metresPerPixel);
        part.lines.render(gl);
        matrices.pop();
    }
}

void MapPathLines::release()
{
    for (Outline* outline : {&mWhole, &mNear}) {
        for (Part& part : outline->parts) {
            part.lines.release();
        }
    }
}

} // namespace VELIX
