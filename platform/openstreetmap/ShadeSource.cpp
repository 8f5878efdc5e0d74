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
    mQueue.clear();
    mAsked.clear();
    mArrived.clear();
    mRunning = 0;
}

void ShadeSource::want(const std::vector<TileAddress>& tiles)
{
    mQueue.clear(); // what has left the view is not computed
    for (auto tile = tiles.rbegin(); tile != tiles.rend(); ++tile) {
        if (mAsked.count(*tile) == 0) {
            mQueue.push_back(*tile);
        }
    }
    startNext();
}

/// One at a time, so that a tile that comes into view waits for one at most.
void ShadeSource::startNext()
{
    if (mRunning > 0 || mQueue.empty()) {
        return;
    }
    const TileAddress tile = mQueue.back();
    mQueue.pop_back();
    mAsked.insert(tile);
    ++mRunning;
    mThread.start([this, tile, style = mStyle, terrain = mTerrain, generation = mGeneration] {
        const QImage shade = shadeTile(*terrain, tile, style);
        QMetaObject::invokeMethod(
            this,
            [this, tile, shade, generation] {
                if (generation == mGeneration) {
                    --mRunning;
                    mArrived.emplace_back(tile, shade);
                    startNext();
                    emit arrived();
                }
            },
            Qt::QueuedConnection);
    });
}

} // namespace OpenStreet
