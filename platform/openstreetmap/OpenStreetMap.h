#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace OpenStreet {

struct ShadingStyle;

enum ProjectionType : int {
    WebMercator = 1 ///< the one that tile servers use
};

enum MapType : int {
    Tiles = 0,  ///< the tiles of the server, over the outline where they lack
    Outline = 1 ///< coast lines and graticule alone
};

/// A map of tiles from a server or from disk, with hill shading, drawn into the current OpenGL
/// context.
///
/// Coordinates are degrees, window coordinates device pixels from the upper left corner, y
/// downwards. All calls, destruction included, are made on one thread, which has an event loop and
/// the context of the first render() current; texts are UTF-8.
class OpenStreetMap
{
public:
    OpenStreetMap();
    ~OpenStreetMap();
    OpenStreetMap(const OpenStreetMap&) = delete;
    OpenStreetMap& operator=(const OpenStreetMap&) = delete;

    /// A base address, to which "/{z}/{x}/{y}.png" is added, or a pattern with {z}, {x}, {y} and
    /// perhaps {s}. Empty: only what is on disk is shown.
    void setTileServer(const char* address);
    /// Name and version of the program, as servers ask for it.
    void setUserAgent(const char* agent);
    /// Folder of the tiles on disk, Z/X/Y.png; made when the first tile is written.
    void setTileDirectory(const char* folder);
    /// Of the tiles on disk; what was not used for longest makes way. Default: 500; what is not
    /// positive is ignored.
    void setTileCacheLimit(int megabytes);
    /// Folder of .hgt files.
    void setTerrainPath(const char* folder);
    /// File of coast lines, also one of the program's resources; false if it is none.
    [[nodiscard]] bool setCoastLines(const char* file);
    /// The font of the graticule's labels, a TrueType file in memory, its size in device pixels.
    void setLabelFont(const void* data, std::size_t bytes, int pixelSize);
    /// The upper end of the labels, in device pixels: above it something may cover the map.
    void setLabelTop(int pixels);

    void setProjection(ProjectionType type);
    void setMapType(MapType type);

    void setShading(bool on);
    /// Towards the light: east, north, up.
    void setLightDirection(double x, double y, double z);
    /// Of the tiles; 1 shows them as they are, less darkens.
    void setBrightness(double brightness);
    /// 0: no difference between slopes; default 1.
    void setShadingContrast(double contrast);
    /// Of the shaded ground; default 1.
    void setShadingBrightness(double brightness);
    /// How much of the shading is laid over the map, 0 to 1; default 0.5.
    void setShadingFactor(double factor);

    /// Centre of the view; the altitude has no effect on a map seen from straight above.
    void setPosition(double latitude, double longitude, double altitude);
    /// Extent of the view in metres on the ground at its centre.
    void setVisibleRange(double width, double height);
    /// In device pixels.
    void setWindowSize(int width, int height);

    void latLong2Window(double latitude, double longitude, double* x, double* y) const;
    void window2LatLong(double x, double y, double* latitude, double* longitude) const;
    /// The same for a view with another centre and extent.
    void window2LatLongFromPos(double x, double y, double centreLatitude, double centreLongitude,
                               double rangeWidth, double rangeHeight, double* latitude,
                               double* longitude) const;

    /// Returns the number of tiles being read or fetched and of shades being computed; while not 0,
    /// another render() shows more.
    [[nodiscard]] int nrLoadingTiles() const;
    /// Whether some place of the window has a tile, or a part of a larger one instead.
    [[nodiscard]] bool hasTiles() const;
    /// Called whenever something has arrived that the next render() would show.
    void setArrivedCallback(const std::function<void()>& callback);
    /// Called with the reason why there is no tile, and the address that was asked; also from
    /// within render(). A reason is not given again for each tile that fails: only for another
    /// server, after retry() or, where it concerns the server as a whole, when that has sent a tile
    /// since.
    void
    setFailureCallback(const std::function<void(const char* url, const char* reason)>& callback);
    /// Has tiles that failed asked for again with the next render(), instead of after a pause that
    /// grows with each failure up to five minutes.
    void retry();

    /// Draws over the whole view port, which the caller has set to the window.
    void render();
    /// Releases everything of the graphics system; it is made again when needed.
    void releaseGl();

private:
    void setStyle(const ShadingStyle& style);

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace OpenStreet
