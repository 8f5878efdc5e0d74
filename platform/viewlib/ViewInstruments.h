#pragma once

#include "platform/viewlib/ViewModel.h"

namespace Vista2D {

class ViewSurface;

/// What an instrument shows at the moment.
struct ViewReading
{
    const ViewScale* scale = nullptr; ///< never null
    double shown = 0.0;               ///< NaN: no value
    int state = 0;                    ///< 0 normal, 1 warning, 2 limit
    const ViewCase* inCase = nullptr; ///< the case that holds; null if none does
};

/// What stands still, that is all but the second function of each pair, depends on the scale alone.
void paintDial(ViewSurface& surface, const ViewGauge& gauge, const ViewScale& scale);
void paintNeedle(ViewSurface& surface, const ViewGauge& gauge, const ViewReading& reading);

void paintTrack(ViewSurface& surface, const ViewBar& bar, const ViewScale& scale);
void paintLevel(ViewSurface& surface, const ViewBar& bar, const ViewReading& reading);

void paintUnits(ViewSurface& surface, const ViewBinding& binding, const ViewScale& scale);
void paintNumbers(ViewSurface& surface, const ViewBinding& binding, const ViewReading& reading);

/// Lamps move as a whole.
void paintLamp(ViewSurface& surface, const ViewLamp& lamp, const ViewReading& reading);

} // namespace Vista2D
