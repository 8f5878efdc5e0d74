#pragma once

#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewReading.h"

namespace Vista2D {

class ViewSurface;

/// Paints a round instrument. The surface and the gauge must outlive it.
class ViewGaugePainter
{
public:
    ViewGaugePainter(ViewSurface& surface, const ViewGauge& gauge)
        : mSurface(surface), mGauge(gauge)
    {}

    /// Paints what depends on the scale alone.
    void paintDial(const ViewScale& scale);
    /// Paints what moves with the value.
    void paintNeedle(const ViewReading& reading);

private:
    [[nodiscard]] double fillRadius() const;
    [[nodiscard]] double tickRadius() const;
    void paintTicks(const ViewScale& scale);

    ViewSurface& mSurface;
    const ViewGauge& mGauge;
};

} // namespace Vista2D
