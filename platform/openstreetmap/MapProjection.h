#pragma once

#include "platform/tessel/Geodetic.h"

namespace OpenStreet {

/// Degrees; east and north positive.
struct GeoPoint
{
    double latitude = 0.0;
    double longitude = 0.0;

    bool operator==(const GeoPoint&) const = default;
};

/// A place in the window: device pixels, from the upper left corner, y downwards.
struct WindowPoint
{
    double x = 0.0;
    double y = 0.0;
};

/// A place on the Web Mercator map: metres at the equator, from 0 N 0 E, y northwards.
struct MercatorPoint
{
    double x = 0.0;
    double y = 0.0;

    bool operator==(const MercatorPoint&) const = default;
};

using Tessel::Geodetic::kMercatorHalf;

/// Returns the place on the map; latitudes beyond the limit are taken at the limit.
MercatorPoint toMercator(const GeoPoint& place);
/// Returns the place; its longitude is not brought into -180 to 180.
GeoPoint fromMercator(const MercatorPoint& place);
/// Returns the same meridian, at least -180 and below 180; not a number stays as it is.
double normalizedLongitude(double degrees);

/// Where places appear in a window that looks at the Web Mercator map from above, north up.
///
/// Extents are metres on the ground at the centre's latitude, as a scale bar there measures them.
class MapProjection
{
public:
    bool operator==(const MapProjection&) const = default;

    void setCentre(const GeoPoint& centre);
    /// Extent of the window in metres; values that are not positive are ignored.
    void setVisibleRange(double width, double height);
    /// In device pixels; values that are not positive are ignored.
    void setWindowSize(int width, int height);

    [[nodiscard]] const GeoPoint& centre() const { return mCentre; }
    [[nodiscard]] double rangeWidth() const { return mRangeWidth; }
    [[nodiscard]] double rangeHeight() const { return mRangeHeight; }
    [[nodiscard]] int windowWidth() const { return mWindowWidth; }
    [[nodiscard]] int windowHeight() const { return mWindowHeight; }

    /// Returns the place's nearest appearance to the centre: the short way round the globe.
    [[nodiscard]] WindowPoint toWindow(const GeoPoint& place) const;
    /// Longitude from -180 to 180. North and south of the map it is the map's edge.
    [[nodiscard]] GeoPoint toGeo(const WindowPoint& place) const;

    /// Without going round the globe, for what is drawn across it: the map as an endless strip.
    [[nodiscard]] WindowPoint mercatorToWindow(const MercatorPoint& place) const;
    [[nodiscard]] MercatorPoint windowToMercator(const WindowPoint& place) const;

    /// Mercator metres across one device pixel.
    [[nodiscard]] double metresPerPixelX() const { return mPerPixelX; }

private:
    void update();

    GeoPoint mCentre;
    double mRangeWidth = 10000.0;
    double mRangeHeight = 10000.0;
    int mWindowWidth = 100;
    int mWindowHeight = 100;
    MercatorPoint mMercatorCentre;
    double mPerPixelX = 100.0;
    double mPerPixelY = 100.0;
};

} // namespace OpenStreet
