#include "views/panel/ViewFit.h"

#include <algorithm>

namespace VELIX {

ViewFit ViewFit::of(double width, double height, double viewWidth, double viewHeight)
{
    ViewFit fit;
    if (!(viewWidth > 0.0) || !(viewHeight > 0.0)) {
        return fit;
    }
    const double wide = width / viewWidth;
    const double high = height / viewHeight;
    fit.scale = std::min(wide, high);
    // Only the axis with spare space gets an offset, or rounding would shift the other one.
    if (wide > high) {
        fit.offsetX = (width - fit.scale * viewWidth) / 2.0;
    } else if (high > wide) {
        fit.offsetY = (height - fit.scale * viewHeight) / 2.0;
    }
    return fit;
}

} // namespace VELIX
