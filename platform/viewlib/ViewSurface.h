#pragma once

#include "platform/viewlib/ViewModel.h"

#include <QPainter>

namespace Vista2D {

/// What instruments are painted with: shapes and texts in view units, texts sharp at any scale.
class ViewSurface
{
public:
    /// The painter's device must count 72 dots per inch, so that a point of a font is a pixel.
    ViewSurface(QPainter& painter, double scale, const ViewColors& colors);

    [[nodiscard]] const ViewColors& colors() const { return mColors; }
    /// Returns the colour of a state: 0 the given one, 1 warning, 2 limit.
    [[nodiscard]] QColor stateColor(int state, const QColor& normal) const;

    /// Returns the painter, in view units and without pen and brush.
    [[nodiscard]] QPainter& shapes();
    /// Draws a part of a ring around a centre, angles clockwise from twelve o'clock.
    void ring(const QPointF& center, double radius, double width, double from, double to,
              const QColor& color);
    void box(const QRectF& box, double corner, const QColor& fill, const QColor& line = {},
             double width = 1.0);

    void text(const ViewText& style, const QString& text, const QColor& color);
    /// Draws a text centred on a point in both directions, as capitals and digits are.
    void centered(const QPointF& center, double size, bool bold, const QString& text,
                  const QColor& color);

private:
    [[nodiscard]] QFont font(double size, bool bold) const;

    QPainter& mPainter;
    double mScale;
    const ViewColors& mColors;
};

} // namespace Vista2D
