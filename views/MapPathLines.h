#pragma once

#include "platform/tessel/LineStrips.h"
#include "views/MapPath.h"

#include <QRgb>

#include <cstddef>
#include <deque>
#include <vector>

namespace Tessel::OpenGL {
class GlHandler;
}

namespace VELIX {

/// A path as line strips in the graphics system. The context rule of Tessel::OpenGL::GlBuffer
/// holds, for build() too.
///
/// Vertices are single precision, so each part of the path lies near an origin of its own: far
/// from the origin a vertex would be pixels off where the map shows 50 m. Where the whole path fits
/// into a window, only the points that make its outline are drawn.
class MapPathLines
{
public:
    /// One colour for each point, or none for a path in one colour; width in pixels.
    void build(const MapPath& path, const std::vector<QRgb>& colors, double width);
    void clear();
    /// Draws the path with its middle at x, y (pixels, y downwards); metres of the map per pixel.
    void render(Tessel::OpenGL::GlHandler& gl, const MapPath& path, double x, double y,
                double metresPerPixel);
    void release();

private:
    struct Part
    {
        MapPath::Point origin;
        Tessel::OpenGL::LineStrips lines;
    };
    using Parts = std::deque<Part>; ///< strips stay where they are made

    /// Appends points one by one, with a new part where they are far from the last one's origin.
    class Writer;

    Parts mWhole;
    Parts mOutline;
    double mTolerance = 0.0; ///< m of the map: of the outline
};

} // namespace VELIX
