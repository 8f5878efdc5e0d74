#pragma once

namespace VELIX {

/// What the map shows at the moment, shared by the map view and its widget. The centre and the
/// ranges say what is to be seen; the rest of the measures follow from them with every frame.
struct MapContext
{
    double visibleRange = 2.0e7;   ///< m on the ground across the window, at its centre
    double verticalRange = 2.0e7;  ///< m
    double metresPerPixel = 2.0e4; ///< on the ground at the centre, per pixel of the frame buffer
    double centreLatitude = 30.0;  ///< degrees
    double centreLongitude = 10.0; ///< degrees
    double halfDiagonal = 0.0;     ///< m
    double windowWidth = 0.0;      ///< pixels of the frame buffer
    bool dragging = false;         ///< the user moves the map with the mouse
    bool panning = false;          ///< the user moves the map with a touch pad
    bool shading = true;           ///< the terrain is shaded
    bool animating = false;        ///< a gesture is in progress

    bool centreAircraft = false; ///< the view follows the aircraft
};

} // namespace VELIX
