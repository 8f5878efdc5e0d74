#pragma once

#include <QPoint>

namespace VELIX {

/// What mouse and keyboard show in a graph for the moment. Positions are counted among the traces
/// shown, from the top.
struct GraphPointer
{
    QPoint mouse;              ///< logical pixels of the widget
    bool hovering = false;     ///< the mouse is over the plot, with no button down
    bool cursorActive = false; ///< the cursor was just moved by a key
    bool focused = false;      ///< keys move the cursor
    bool markersOn = false;
    bool distance = false; ///< the distance of the markers is shown
    int draggedTrace = -1; ///< position of the trace that is being moved; -1: none
    int dropPosition = -1; ///< where it would go
};

} // namespace VELIX
