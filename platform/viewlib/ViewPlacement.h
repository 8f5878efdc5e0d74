#pragma once

#include <QSize>
#include <QTransform>

namespace Vista2D {

/// Where a view lies on the surface that is drawn to.
struct ViewPlacement
{
    QTransform toPixels; ///< view units to pixels; the origin is the surface's upper left corner
    QSize surface;       ///< pixels: all that the viewport can reach

    /// From the matrices of OpenGL, column by column, and its viewport: x, y, width, height.
    [[nodiscard]] static ViewPlacement of(const double modelView[16], const double projection[16],
                                          const int viewport[4]);

    /// Pixels per view unit, by area where the axes differ.
    [[nodiscard]] double scale() const;
    /// Whether the view stands upright with its proportions, so that a picture of it at that scale
    /// fits pixel by pixel.
    [[nodiscard]] bool isUpright() const;
};

} // namespace Vista2D
