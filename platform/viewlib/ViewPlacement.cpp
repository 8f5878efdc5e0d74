#include "platform/viewlib/ViewPlacement.h"

#include <cmath>

namespace Vista2D {

ViewPlacement ViewPlacement::of(const double modelView[16], const double projection[16],
                                const int viewport[4])
{
    double product[16] = {};
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 4; ++row) {
            for (int i = 0; i < 4; ++i) {
                product[4 * column + row] += projection[4 * i + row] * modelView[4 * column + i];
            }
        }
    }
    ViewPlacement placement;
    placement.surface = QSize(viewport[0] + viewport[2], viewport[1] + viewport[3]);

    // From clip space, where y runs upwards, to pixels that run downwards.
    const double halfWidth = viewport[2] / 2.0;
    const double halfHeight = viewport[3] / 2.0;
    const double middleX = viewport[0] + halfWidth;
    const double middleY = halfHeight; // the viewport's upper edge is the surface's
    double x[3];
    double y[3];
    double w[3];
    const int columns[3] = {0, 1, 3}; // x, y and the constant part; z is 0
    for (int i = 0; i < 3; ++i) {
        const double* column = product + 4 * columns[i];
        w[i] = column[3];
        x[i] = halfWidth * column[0] + middleX * w[i];
        y[i] = middleY * w[i] - halfHeight * column[1];
    }
    placement.toPixels = QTransform(x[0], y[0], w[0], x[1], y[1], w[1], x[2], y[2], w[2]);
    return placement;
}

double ViewPlacement::scale() const
{
    return std::sqrt(std::fabs(toPixels.m11() * toPixels.m22() - toPixels.m12() * toPixels.m21())) /
           std::fabs(toPixels.m33());
}

bool ViewPlacement::isUpright() const
{
    constexpr double kSlack = 1e-5; // OpenGL keeps its matrices in single precision
    const double size = std::fabs(toPixels.m33());
    const auto isNothing = [&](double number) { return std::fabs(number) <= kSlack * size; };
    return size > 0.0 && isNothing(toPixels.m12()) && isNothing(toPixels.m21()) &&
           isNothing(toPixels.m13()) && isNothing(toPixels.m23()) && toPixels.m11() > 0.0 &&
           isNothing(toPixels.m11() - toPixels.m22());
}

} // namespace Vista2D
