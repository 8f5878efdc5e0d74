#pragma once

#include <QColor>

namespace VELIX {

/// Returns the translucent tint on which an event is written, for the colour that says how grave
/// it is; invalid for an invalid colour.
QColor eventTint(const QColor& color);

/// Returns the opaque colour that a translucent one gives on an opaque background.
QColor blended(const QColor& color, const QColor& background);

} // namespace VELIX
