#include "views/events/EventTint.h"

namespace VELIX {

QColor eventTint(const QColor& color)
{
    constexpr int kOpacity = 60; // of 255
    QColor tint = color;
    if (tint.isValid()) {
        tint.setAlpha(kOpacity);
    }
    return tint;
}

QColor blended(const QColor& color, const QColor& background)
{
    const double share = color.alphaF();
    const auto mix = [share](double above, double below) {
        return above * share + below * (1.0 - share);
    };
    return QColor::fromRgbF(mix(color.redF(), background.redF()),
                            mix(color.greenF(), background.greenF()),
                            mix(color.blueF(), background.blueF()));
}

} // namespace VELIX
