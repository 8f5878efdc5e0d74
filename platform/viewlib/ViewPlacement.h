#pragma once

#include <QSize>
#include <QTransform>

namespace Vista2D {

/// Where a view is on the surface that is drawn to.
struct ViewPlacement
{
    QTransform toPixels; ///< view units to pixels; the origin is the surface's upper left corner
    QSize surface;       ///< pixels: all that the viewport can reach

    /// Returns the placement by the matrices of OpenGL, column by column, and its viewport: x, y,
    /// width, height.
    [[nodiscard]] static ViewPlacement of(const double modelView[16], const double projection[16],
                                          const int viewport[4]);

    /// Returns the pixels per view unit, by area where the axes differ.
    [[nodiscard]] double scale() const;
    /// Whether the view is upright with its proportions, so that an image of it at that scale
    /// fits pixel by pixel.
    [[nodiscard]] bool isUpright() const;
};

} // namespace Vista2D
