#pragma once

#include <QWidget>

namespace VELIX {

/// Shows a window in front of all others, with the keyboard's focus.
inline void bringToFront(QWidget& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace VELIX
