#pragma once

#include "views/map/model/MapContext.h"
#include "views/map/model/MapFollower.h"

#include <QPointF>
#include <QSize>

#include <optional>

namespace OpenStreet {
class OpenStreetMap;
}

namespace VELIX {

struct FlightPathPoint;
struct MapExtent;

/// Moves the view of the map, which a context holds, and passes it on to the tile map.
///
/// Pixels are those of the frame buffer, from the upper left corner of the window, y downwards.
class MapCamera
{
public:
    /// Degrees.
    struct Place
    {
        double latitude = 0.0;
        double longitude = 0.0;
    };

    /// Both must outlive the camera.
    MapCamera(MapContext& context, OpenStreet::OpenStreetMap& map) : mContext(context), mMap(map) {}

    [[nodiscard]] const MapContext& context() const { return mContext; }
    [[nodiscard]] MapContext& context() { return mContext; }

    /// Takes the size of the window, in logical pixels, and the pixels for each of them.
    void setWindow(const QSize& logical, double ratio);
    [[nodiscard]] const QSize& pixels() const { return mPixels; }
    [[nodiscard]] double ratio() const { return mRatio; }
    [[nodiscard]] QPointF fromLogical(const QPointF& logical) const { return logical * mRatio; }

    /// Brings the tile map and the measures of the context up to date with its centre and range.
    void apply();
    [[nodiscard]] Place placeAt(const QPointF& pixel) const;
    [[nodiscard]] QPointF pixelOf(const Place& place) const;
    /// Metres of the map (as at the equator) per pixel.
    [[nodiscard]] double mapMetresPerPixel() const;

    /// Shifts the centre until a place is at a pixel.
    void keepUnder(const Place& place, const QPointF& pixel);
    /// Sets the range (m) so that the place at a pixel stays there: the mouse's, or the middle of
    /// the window if there is none or the aircraft is followed.
    void zoom(double range, const std::optional<QPointF>& mouse);
    /// Sets the range (m, clamped) about the centre; gliding to another range goes on.
    void setRange(double range);
    /// Moves by one frame with keys held: 1 zooms in and goes north and east, -1 the other way.
    void moveByKeys(int zoom, int north, int east);

    /// Has the window show all of the extent; while the aircraft is followed, the view glides
    /// there.
    void fit(const MapExtent& extent);
    /// Whether fit() was called since the last forgetFit().
    [[nodiscard]] bool isFitted() const { return mFit.has_value(); }
    /// Whether the view is still that of the last fit().
    [[nodiscard]] bool showsFit() const;
    void forgetFit() { mFit.reset(); }

    /// Moves by one frame towards the aircraft, if it is followed; false when there is no more to
    /// move.
    bool follow(const FlightPathPoint& aircraft);

private:
    MapContext& mContext;
    OpenStreet::OpenStreetMap& mMap;
    MapFollower mFollower;
    QSize mPixels{0, 0};
    double mRatio = 0.0;            ///< pixels per logical pixel; 0: not known yet
    std::optional<MapContext> mFit; ///< the view after the last fit()
};

} // namespace VELIX
