#pragma once

#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewReading.h"

#include <QRectF>

namespace Vista2D {

class ViewSurface;

/// Paints a straight instrument. The surface and the bar must outlive it.
class ViewBarPainter
{
public:
    ViewBarPainter(ViewSurface& surface, const ViewBar& bar) : mSurface(surface), mBar(bar) {}

    /// Paints what depends on the scale alone.
    void paintTrack(const ViewScale& scale);
    /// Paints what moves with the value.
    void paintLevel(const ViewReading& reading);

private:
    [[nodiscard]] bool isUpright() const { return mBar.direction == ViewBar::Direction::Up; }
    [[nodiscard]] QRectF stretch(const QRectF& strip, double from, double to) const;
    [[nodiscard]] QRectF beside(double distance, double width) const;
    void paintTicks(const ViewScale& scale);
    void paintTickText(const QRectF& tick, const QString& text);
    void paintPointer(double part, const QColor& color);

    ViewSurface& mSurface;
    const ViewBar& mBar;
};

} // namespace Vista2D
