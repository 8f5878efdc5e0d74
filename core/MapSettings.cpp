#include "core/MapSettings.h"

#include "core/Property.h"

namespace VELIX {

namespace {

constexpr const char* kTileServer = "TileServer";
constexpr const char* kCacheLimit = "TileCacheLimit";
constexpr const char* kShading = "MapShading";
constexpr const char* kContrast = "MapShadingContrast";
constexpr const char* kBrightness = "MapShadingBrightness";
constexpr const char* kFactor = "MapShadingFactor";

} // namespace

MapSettings MapSettings::read(const Property& settings)
{
    const MapSettings defaults;
    MapSettings map;
    map.tileServer = settings.getString(kTileServer, defaults.tileServer);
    map.cacheLimit = settings.getInt(kCacheLimit, defaults.cacheLimit);
    if (map.cacheLimit < 1) {
        map.cacheLimit = defaults.cacheLimit; // it would empty the folder, prefilled tiles included
    }
    map.shading = settings.getSwitch(kShading, defaults.shading);
    map.contrast = settings.getDouble(kContrast, defaults.contrast);
    map.brightness = settings.getDouble(kBrightness, defaults.brightness);
    map.factor = settings.getDouble(kFactor, defaults.factor);
    return map;
}

void MapSettings::store(Property& settings) const
{
    settings.setString(kTileServer, tileServer);
    settings.setInt(kCacheLimit, cacheLimit);
    settings.setSwitch(kShading, shading);
    settings.setDouble(kContrast, contrast);
    settings.setDouble(kBrightness, brightness);
    settings.setDouble(kFactor, factor);
}

} // namespace VELIX
