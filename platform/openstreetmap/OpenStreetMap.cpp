// First, since the toolkit includes the same headers without the functions.
#include "platform/tessel/opengl/Gl.h"

#include "platform/openstreetmap/OpenStreetMap.h"

#include "platform/openstreetmap/MapFrame.h"
#include "platform/openstreetmap/MapPainter.h"
#include "platform/openstreetmap/ShadeSource.h"
#include "platform/openstreetmap/TileSource.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace OpenStreet {

namespace {

/// Of 256 kB each, or four times that from servers of large tiles. The view of an ordinary screen
/// shows a hundred tiles; twice of what a view shows is kept in any case, since its stand-ins are
/// needed, too.
constexpr std::size_t kMostTextures = 256;
/// Taken by one frame: passing them on and drawing them takes half a millisecond each, and a
/// hundred of them can come from the disk at once.
constexpr std::size_t kMostArrivals = 5;
/// Levels above a missing tile that are looked for on disk.
constexpr int kStandInLevels = 5;
constexpr std::int64_t kMegabyte = 1024LL * 1024;

/// Puts the state back that the toolkit and the caller rely on.
struct StateGuard
{
    StateGuard() { glPushAttrib(GL_ALL_ATTRIB_BITS); }
    ~StateGuard() { glPopAttrib(); }
    StateGuard(const StateGuard&) = delete;
    StateGuard& operator=(const StateGuard&) = delete;
};

} // namespace

class OpenStreetMap::Private
{
public:
    std::vector<TileAddress> addresses(const std::vector<PlacedTile>& tiles) const;
    std::vector<TileAddress> standIns(const std::vector<TileAddress>& tiles);
    std::set<TileAddress> takeArrived();
    void renderTiles();
    void dropOld(std::size_t visible);

    MapProjection projection;
    MapPainter painter;
    MapFrame frame{painter};
    TileSource source;
    ShadeSource shades;
    MapType type = Tiles;
    bool shading = false;
    double brightness = 1.0;
    QMetaObject::Connection arrivedTile;
    QMetaObject::Connection arrivedShade;
    QMetaObject::Connection failedTile;
};

std::vector<TileAddress>
OpenStreetMap::Private::addresses(const std::vector<PlacedTile>& tiles) const
{
    std::vector<TileAddress> result;
    std::set<TileAddress> seen;
    for (const PlacedTile& tile : tiles) {
        if (seen.insert(tile.address).second) { // more than one world shows it more than once
            result.push_back(tile.address);
        }
    }
    return result;
}

/// Returns what the disk may have instead of tiles that it has not.
std::vector<TileAddress> OpenStreetMap::Private::standIns(const std::vector<TileAddress>& tiles)
{
    std::set<TileAddress> result;
    for (const TileAddress& tile : tiles) {
        TileAddress ancestor = tile;
        for (int level = 0; level < kStandInLevels && ancestor.zoom > 0; ++level) {
            if (painter.tiles().has(ancestor) || !source.missing(ancestor)) {
                break; // drawn, or not looked for yet
            }
            ancestor = ancestor.parent();
            result.insert(ancestor);
        }
    }
    return {result.begin(), result.end()};
}

/// Returns what looks another way now.
std::set<TileAddress> OpenStreetMap::Private::takeArrived()
{
    std::set<TileAddress> changed;
    for (const auto& [tile, image] : source.takeArrived(kMostArrivals)) {
        painter.tiles().set(tile, image);
        changed.insert(tile);
    }
    for (const auto& [tile, image] : shades.takeArrived()) {
        painter.shades().set(tile, image);
        if (!image.isNull()) {
            changed.insert(tile);
        }
    }
    return changed;
}

void OpenStreetMap::Private::renderTiles()
{
    const std::vector<PlacedTile> placed = visibleTiles(projection);
    const std::vector<TileAddress> wanted = addresses(placed);
    source.want(wanted, standIns(wanted));
    if (shading) {
        shades.want(wanted);
    }
    frame.show({projection, true, shading, brightness}, placed, takeArrived());
    dropOld(wanted.size());
}

void OpenStreetMap::Private::dropOld(std::size_t visible)
{
    const std::size_t kept = std::max(kMostTextures, 2 * visible);
    for (const TileAddress& tile : painter.tiles().dropDownTo(kept)) {
        source.forget(tile);
    }
    for (const TileAddress& tile : painter.shades().dropDownTo(kept)) {
        shades.forget(tile);
    }
}

OpenStreetMap::OpenStreetMap() : d(std::make_unique<Private>()) {}

OpenStreetMap::~OpenStreetMap() = default;

void OpenStreetMap::setTileServer(const char* address)
{
    d->source.setServer(QString::fromUtf8(address));
}

void OpenStreetMap::setUserAgent(const char* agent)
{
    d->source.setUserAgent(agent);
}

void OpenStreetMap::setTileDirectory(const char* folder)
{
    d->source.setFolder(QString::fromUtf8(folder));
}

void OpenStreetMap::setTileCacheLimit(int megabytes)
{
    if (megabytes > 0) {
        d->source.setLimit(megabytes * kMegabyte);
    }
}

void OpenStreetMap::setTerrainPath(const char* folder)
{
    d->shades.setFolder(QString::fromUtf8(folder));
    d->painter.shades().clear();
    d->frame.setStale();
}

bool OpenStreetMap::setCoastLines(const char* file)
{
    d->frame.setStale();
    return d->painter.coast().load(QString::fromUtf8(file));
}

void OpenStreetMap::setLabelFont(const void* data, std::size_t bytes, int pixelSize)
{
    // Without it the labels come in the system's font, at the same size.
    static_cast<void>(d->painter.font().load(data, bytes, "graticule", pixelSize));
    d->frame.setStale();
}

void OpenStreetMap::setLabelTop(int pixels)
{
    if (d->painter.labelTop() != pixels) {
        d->painter.setLabelTop(pixels);
        d->frame.setStale();
    }
}

void OpenStreetMap::setProjection(ProjectionType /*type*/) {} // there is but one

void OpenStreetMap::setMapType(MapType type)
{
    d->type = type;
}

void OpenStreetMap::setShading(bool on)
{
    d->shading = on;
}

void OpenStreetMap::setLightDirection(double x, double y, double z)
{
    ShadingStyle style = d->shades.style();
    style.lightX = x;
    style.lightY = y;
    style.lightZ = z;
    setStyle(style);
}

void OpenStreetMap::setBrightness(double brightness)
{
    d->brightness = brightness;
}

void OpenStreetMap::setShadingContrast(double contrast)
{
    ShadingStyle style = d->shades.style();
    style.contrast = contrast;
    setStyle(style);
}

void OpenStreetMap::setShadingBrightness(double brightness)
{
    ShadingStyle style = d->shades.style();
    style.brightness = brightness;
    setStyle(style);
}

void OpenStreetMap::setShadingFactor(double factor)
{
    ShadingStyle style = d->shades.style();
    style.factor = factor;
    setStyle(style);
}

void OpenStreetMap::setStyle(const ShadingStyle& style)
{
    // What is not a number would differ from itself, and have all computed again for ever.
    const bool isUsable = std::isfinite(style.lightX + style.lightY + style.lightZ +
                                        style.contrast + style.brightness + style.factor);
    if (isUsable && !(style == d->shades.style())) {
        d->shades.setStyle(style);
        d->painter.shades().clear();
        d->frame.setStale();
    }
}

void OpenStreetMap::setPosition(double latitude, double longitude, double /*altitude*/)
{
    d->projection.setCentre({latitude, longitude});
}

void OpenStreetMap::setVisibleRange(double width, double height)
{
    d->projection.setVisibleRange(width, height);
}

void OpenStreetMap::setWindowSize(int width, int height)
{
    d->projection.setWindowSize(width, height);
}

void OpenStreetMap::latLong2Window(double latitude, double longitude, double* x, double* y) const
{
    const WindowPoint place = d->projection.toWindow({latitude, longitude});
    *x = place.x;
    *y = place.y;
}

void OpenStreetMap::window2LatLong(double x, double y, double* latitude, double* longitude) const
{
    const GeoPoint place = d->projection.toGeo({x, y});
    *latitude = place.latitude;
    *longitude = place.longitude;
}

void OpenStreetMap::window2LatLongFromPos(double x, double y, double centreLatitude,
                                          double centreLongitude, double rangeWidth,
                                          double rangeHeight, double* latitude,
                                          double* longitude) const
{
    MapProjection other = d->projection;
    other.setCentre({centreLatitude, centreLongitude});
    other.setVisibleRange(rangeWidth, rangeHeight);
    const GeoPoint place = other.toGeo({x, y});
    *latitude = place.latitude;
    *longitude = place.longitude;
}

int OpenStreetMap::nrLoadingTiles() const
{
    return d->type == Tiles ? d->source.loading() + (d->shading ? d->shades.loading() : 0) : 0;
}

bool OpenStreetMap::hasTiles() const
{
    const std::vector<PlacedTile> placed = visibleTiles(d->projection);
    return std::any_of(placed.begin(), placed.end(),
                       [this](const PlacedTile& tile) { return d->painter.shows(tile); });
}

void OpenStreetMap::setArrivedCallback(const std::function<void()>& callback)
{
    QObject::disconnect(d->arrivedTile);
    QObject::disconnect(d->arrivedShade);
    if (callback) {
        d->arrivedTile = QObject::connect(&d->source, &TileSource::arrived, callback);
        d->arrivedShade = QObject::connect(&d->shades, &ShadeSource::arrived, callback);
    }
}

void OpenStreetMap::setFailureCallback(
    const std::function<void(const char* url, const char* reason)>& callback)
{
    QObject::disconnect(d->failedTile);
    if (callback) {
        d->failedTile = QObject::connect(
            &d->source, &TileSource::failed, [callback](const QString& url, const QString& reason) {
                callback(url.toUtf8().constData(), reason.toUtf8().constData());
            });
    }
}

void OpenStreetMap::retry()
{
    d->source.retry();
}

void OpenStreetMap::render()
{
    const StateGuard guard;
    d->painter.begin(d->projection);
    if (d->type == Outline) {
        d->frame.show({d->projection, false, false, 1.0}, {}, {});
    } else {
        d->renderTiles();
    }
}

void OpenStreetMap::releaseGl()
{
    for (const TileAddress& tile : d->painter.tiles().dropDownTo(0)) {
        d->source.forget(tile);
    }
    for (const TileAddress& tile : d->painter.shades().dropDownTo(0)) {
        d->shades.forget(tile);
    }
    d->painter.release();
    d->frame.release();
}

} // namespace OpenStreet
