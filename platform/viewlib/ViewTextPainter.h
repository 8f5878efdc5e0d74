#pragma once

#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewReading.h"

namespace Vista2D {

class ViewSurface;

/// Paints the texts of instruments, and lamps, which are texts in a box. The surface must outlive
/// it.
class ViewTextPainter
{
public:
    explicit ViewTextPainter(ViewSurface& surface) : mSurface(surface) {}

    /// Paints what depends on the scale alone.
    void paintUnits(const ViewBinding& binding, const ViewScale& scale);
    /// Paints what moves with the value.
    void paintNumbers(const ViewBinding& binding, const ViewReading& reading);
    void paintLamp(const ViewLamp& lamp, const ViewReading& reading);

private:
    ViewSurface& mSurface;
};

} // namespace Vista2D
