#pragma once

namespace VELIX {

struct MapContext;

/// Degrees; a path across the antimeridian goes on beyond 180.
struct MapExtent
{
    double south = 0.0;
    double north = 0.0;
    double west = 0.0;
    double east = 0.0;
};

/// How the user's hand moves the map.
namespace MapNavigation {

inline constexpr double kLeastRange = 50.0;    // m
inline constexpr double kLargestRange = 7.0e7; // m

double clampedRange(double range);
/// Returns the range (m) after one frame with a zoom key held; steps: 1 zooms in, -1 out, 0 leaves
/// it.
double keyZoomed(double range, int steps);
/// Returns the range (m) after a step of the wheel; positive turns zoom in.
double wheelZoomed(double range, int angleDelta);

/// Sets the range (m, clamped) with all that follows from it.
void setRange(MapContext& context, double range, int windowWidth, int windowHeight);
/// Moves the centre; latitudes end where the map does, longitudes are brought into -180 to 180.
void setCentre(MapContext& context, double latitude, double longitude);
/// Moves by one frame with arrow keys held; 1 is north or east, -1 south or west.
void keyPan(MapContext& context, int north, int east);

/// Has all of the extent shown, in a window of this width over height.
void fit(MapContext& context, const MapExtent& extent, double aspect);

} // namespace MapNavigation
} // namespace VELIX
