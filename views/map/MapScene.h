#pragma once

#include "card/FlightPathPoint.h"
#include "platform/tessel/opengl/GlHandler.h"
#include "platform/tessel/opengl/Texture.h"
#include "views/map/MapOverlay.h"
#include "views/map/MapPathLines.h"
#include "views/map/model/MapColoring.h"
#include "views/map/model/MapPath.h"

#include <QPointF>
#include <QString>

#include <optional>
#include <vector>

namespace VELIX {

class MapCamera;

/// What is drawn over the tiles: the path, the aircraft and the texts. The context rule of
/// Tessel::OpenGL::GlBuffer holds for all that draws, loads and releases.
class MapScene
{
public:
    /// The camera must outlive the scene.
    explicit MapScene(const MapCamera& camera) : mCamera(camera) {}

    /// Takes positions that must be there until the next call; null for none.
    void setFlightPath(const std::vector<FlightPathPoint>* path);
    void setColoring(MapColoring coloring);
    void setAircraft(const FlightPathPoint& position) { mAircraft = position; }
    void setImperial(bool imperial) { mImperial = imperial; }
    [[nodiscard]] const FlightPathPoint& aircraft() const { return mAircraft; }
    /// The flight path on the map, as of the last makeLines().
    [[nodiscard]] const MapPath& path() const { return mPath; }

    /// Loads font and symbol for the camera's pixels per logical pixel.
    void load();
    /// Makes the lines of the path for the camera's pixels per logical pixel.
    void makeLines();
    void release();

    void setViewPort();
    void setViewPortOrtho();
    /// Makes the frame black, and ready for tiles.
    static void clear();
    /// Draws over the tiles, in the frame buffer's pixels.
    /// @param mouse where it reads off the map, in pixels; none: nowhere
    /// @param notice of MapOverlay::Content
    void paint(const std::optional<QPointF>& mouse, const QString& notice);

private:
    void drawPath();
    void drawAircraft();
    [[nodiscard]] MapOverlay::Content content() const;
    void addReadout(MapOverlay::Content& content, const QPointF& mouse) const;

    const MapCamera& mCamera;
    Tessel::OpenGL::GlHandler mGl;
    MapPathLines mLines;
    Tessel::OpenGL::Texture mSymbol;
    MapOverlay mOverlay;

    const std::vector<FlightPathPoint>* mFlightPath = nullptr;
    MapPath mPath; ///< mFlightPath on the map
    MapColoring mColoring;
    FlightPathPoint mAircraft;
    bool mImperial = false;
};

} // namespace VELIX
