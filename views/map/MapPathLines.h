#pragma once

#include "platform/tessel/opengl/LineStrips.h"
#include "views/map/model/MapPath.h"

#include <QRectF>
#include <QRgb>
#include <QSize>

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
/// Drawn are only the points that make the path's outline at the zoom in use: steps of less than a
/// pixel would give a line with a ragged edge. One outline serves all views of the whole path, and
/// another, made when it is needed, all zooms within a factor of 2.
///
/// Vertices are single precision, so each part of the path has an origin of its own nearby: far
/// from the origin a vertex would be pixels off where the map shows 50 m. Parts out of sight are
/// not drawn.
class MapPathLines
{
public:
    /// One colour for each point, or none for a path in one colour; width in pixels.
    void build(const MapPath& path, std::vector<QRgb> colors, double width);
    void clear();
    /// Draws the path that they were built of with its middle at x, y (pixels, y downwards) of a
    /// window of this size; metres of the map per pixel.
    void render(Tessel::OpenGL::GlHandler& gl, const MapPath& path, const QSize& window, double x,
                double y, double metresPerPixel);
    void release();

private:
    struct Part
    {
        MapPath::Point origin;
        QRectF box; ///< of all points, metres from the origin, y northwards
        Tessel::OpenGL::LineStrips lines;
    };
    /// The parts of an outline. Strips stay where they are made.
    struct Outline
    {
        double tolerance = 0.0; ///< m of the map; 0: none is made
        std::deque<Part> parts;
    };

    /// Appends points one by one, with a new part where the last one has grown too large.
    class Writer;

    void make(Outline& outline, const MapPath& path, double tolerance);
    Outline& outlineFor(const MapPath& path, double metresPerPixel);

    std::vector<QRgb> mColors;
    double mWidth = 1.0;
    Outline mWhole;
    Outline mNear;
};

} // namespace VELIX
