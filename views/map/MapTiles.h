#pragma once

#include "core/MapSettings.h"
#include "platform/openstreetmap/OpenStreetMap.h"
#include "views/map/model/MapTileNotice.h"

#include <QString>

#include <functional>
#include <string>

namespace VELIX {

struct MapContext;
class Property;

/// The tile map as the settings of the program have it. The context rule of
/// OpenStreet::OpenStreetMap holds.
class MapTiles
{
public:
    /// dataPath: the folder for tiles and terrain; empty: none is kept.
    MapTiles(Property& settings, std::string dataPath);

    [[nodiscard]] OpenStreet::OpenStreetMap& map() { return mMap; }

    /// Makes the map ready, once. Not before the first frame: what is never shown needs neither
    /// folders nor a network.
    /// @param arrived called whenever there is more to show
    /// @param failed called when there is another reason for a notice
    void setUp(const std::function<void()>& arrived, const std::function<void()>& failed);
    /// Loads the font of the labels for so many pixels of the frame buffer per logical pixel.
    void loadFont(double ratio);
    /// Has tiles that failed asked for again with the next frame.
    void retry() { mRetry = mIsSetUp; }
    /// Takes settings that have changed; true if the context is to be shaded another way now.
    bool takeSettings(MapContext& context);
    void render(const MapContext& context);
    /// Returns why there are no tiles; empty: there is nothing to say.
    QString notice();

private:
    Property& mSettings;
    std::string mDataPath;
    OpenStreet::OpenStreetMap mMap;
    MapSettings mTaken; ///< those that the map has
    bool mIsSetUp = false;
    bool mRetry = false;
    MapTileNotice mNotice;
};

} // namespace VELIX
