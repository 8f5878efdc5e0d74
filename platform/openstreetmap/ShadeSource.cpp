#include "platform/openstreetmap/ShadeSource.h"

#include "platform/openstreetmap/TerrainStore.h"

namespace OpenStreet {

ShadeSource::ShadeSource(QObject* parent)
    : QObject(parent), mTerrain(std::make_shared<TerrainStore>(QString()))
{
    mThread.setMaxThreadCount(1);
}

ShadeSource::~ShadeSource()
{
    mThread.clear();
    mThread.waitForDone();
}

void ShadeSource::setFolder(const QString& folder)
{
    restart();
    mTerrain = std::make_shared<TerrainStore>(folder);
}

void ShadeSource::setStyle(const ShadingStyle& style)
{
    if (!(style == mStyle)) {
        mStyle = style;
        restart();
    }
}

void ShadeSource::restart()
{
    ++mGeneration;
    mThread.clear();
    mAsked.clear();
    mArrived.clear();
    mRunning = 0;
}

void ShadeSource::want(const std::vector<TileAddress>& tiles)
{
    for (const TileAddress& tile : tiles) {
        if (!mAsked.insert(tile).second) {
            continue;
        }
        ++mRunning;
        mThread.start([this, tile, style = mStyle, terrain = mTerrain, generation = mGeneration] {
            const QImage shade = shadeTile(*terrain, tile, style);
            QMetaObject::invokeMethod(
                this,
                [this, tile, shade, generation] {
                    if (generation == mGeneration) {
                        --mRunning;
                        mArrived.emplace_back(tile, shade);
                        emit arrived();
                    }
                },
                Qt::QueuedConnection);
        });
    }
}

} // namespace OpenStreet
