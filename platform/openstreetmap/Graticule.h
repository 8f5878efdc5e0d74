#pragma once

#include "platform/openstreetmap/MapProjection.h"

#include <QString>

#include <vector>

namespace OpenStreet {

/// A line of the net of meridians and parallels, and what it is called.
struct GraticuleLine
{
    bool meridian = false;
    double position = 0.0; ///< device pixels from the left (meridian) or from the top (parallel)
    QString label;
};

/// The distance of neighbouring meridians and parallels in degrees: the finest of the usual steps
/// (from 30 degrees to one second) that keeps them so many device pixels apart.
double graticuleStep(const MapProjection& projection, double pixels);

/// All that the window shows, at multiples of the step.
std::vector<GraticuleLine> graticule(const MapProjection& projection, double step);

/// As "48° 07' N", with as many parts as the step needs.
QString graticuleLabel(double degrees, double step, bool meridian);

} // namespace OpenStreet
