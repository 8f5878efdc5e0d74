#pragma once

namespace VELIX {

/// Where a panel is in a widget: as large as it fits, with its proportions, in the middle.
struct ViewFit
{
    double scale = 0.0;   ///< pixels per view unit; 0: there is nothing to show
    double offsetX = 0.0; ///< pixels left of the panel
    double offsetY = 0.0; ///< pixels above it

    /// Returns the position of a view; sizes of the widget in pixels, of the view in its units.
    [[nodiscard]] static ViewFit of(double width, double height, double viewWidth,
                                    double viewHeight);
};

} // namespace VELIX
