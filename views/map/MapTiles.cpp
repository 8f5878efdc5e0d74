#include "views/map/MapTiles.h"

#include "core/Revision.h"
#include "views/map/model/MapContext.h"

#include <QFile>

#include <cmath>
#include <cstddef>
#include <utility>

namespace VELIX {

namespace {

constexpr int kLabelPixels = 11;
constexpr double kPlain = 1.0; // brightness of the tiles

} // namespace

MapTiles::MapTiles(Property& settings, std::string dataPath)
    : mSettings(settings), mDataPath(std::move(dataPath))
{}

void MapTiles::setUp(const std::function<void()>& arrived, const std::function<void()>& failed)
{
    if (mIsSetUp) {
        return;
    }
    mIsSetUp = true;
    mMap.setUserAgent(Revision::getRevisionString().c_str());
    mTaken = MapSettings::read(mSettings);
    mMap.setTileCacheLimit(mTaken.cacheLimit);
    if (!mDataPath.empty()) {
        mMap.setTileDirectory((mDataPath + "/tiles/").c_str());
        mMap.setTerrainPath((mDataPath + "/terrain/").c_str());
    }
    mMap.setProjection(OpenStreet::WebMercator);
    mMap.setTileServer(mTaken.tileServer.c_str());
    static_cast<void>(mMap.setCoastLines(":/map/coast.bin")); // without them there is the grid
    mMap.setArrivedCallback(arrived);
    mMap.setFailureCallback([this, failed](const char* url, const char* reason) {
        mNotice.fail(url, reason);
        failed();
    });
}

void MapTiles::loadFont(double ratio)
{
    QFile font(QStringLiteral(":monofont.ttf"));
    if (font.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = font.readAll();
        mMap.setLabelFont(bytes.constData(), static_cast<std::size_t>(bytes.size()),
                          static_cast<int>(std::lround(kLabelPixels * ratio)));
    }
}

bool MapTiles::takeSettings(MapContext& context)
{
    const MapSettings settings = MapSettings::read(mSettings);
    mMap.setShadingContrast(settings.contrast);
    mMap.setShadingBrightness(settings.brightness);
    mMap.setShadingFactor(settings.factor);
    if (settings.tileServer != mTaken.tileServer) {
        mNotice.reset();
        mMap.setTileServer(settings.tileServer.c_str());
    }
    if (settings.cacheLimit != mTaken.cacheLimit) {
        mMap.setTileCacheLimit(settings.cacheLimit);
    }
    const bool isOther = settings.shading != mTaken.shading;
    if (isOther) {
        context.shading = settings.shading; // until then it is as the key left it
    }
    mTaken = settings;
    return isOther;
}

void MapTiles::render(const MapContext& context)
{
    if (std::exchange(mRetry, false)) {
        mMap.retry();
    }
    mMap.setBrightness(kPlain);
    mMap.setLightDirection(-1.0, 1.0, 1.0); // from the north-west, as on paper maps
    mMap.setShading(context.shading);
    mMap.setMapType(OpenStreet::Tiles);
    mMap.render();
}

QString MapTiles::notice()
{
    return mNotice.hasReason() ? mNotice.update(mMap.hasTiles(), mMap.nrLoadingTiles() != 0)
                               : QString();
}

} // namespace VELIX
