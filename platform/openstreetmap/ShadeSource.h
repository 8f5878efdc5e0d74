#pragma once

#include "platform/openstreetmap/HillShading.h"
#include "platform/openstreetmap/TileAddress.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QThreadPool>

#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace OpenStreet {

/// Computes the shades of tiles on a thread of its own, each once.
class ShadeSource : public QObject
{
    Q_OBJECT

public:
    using Arrival = std::pair<TileAddress, QImage>;

    explicit ShadeSource(QObject* parent = nullptr);
    ~ShadeSource() override;

    /// Both make everything computed so far void: clear what was taken.
    void setFolder(const QString& folder);
    void setStyle(const ShadingStyle& style);
    [[nodiscard]] const ShadingStyle& style() const { return mStyle; }

    /// Takes what the frame needs now, most urgent first. Shades that are wanted no longer and not
    /// yet begun are dropped.
    void want(const std::vector<TileAddress>& tiles);
    void forget(const TileAddress& tile) { mAsked.erase(tile); }
    [[nodiscard]] int loading() const { return mRunning + static_cast<int>(mQueue.size()); }
    /// Null images are for tiles without terrain.
    std::vector<Arrival> takeArrived() { return std::exchange(mArrived, {}); }

signals:
    void arrived();

private:
    void restart();
    void startNext();

    QThreadPool mThread;
    std::shared_ptr<TerrainStore> mTerrain; ///< only used on the thread
    ShadingStyle mStyle;
    std::vector<TileAddress> mQueue; ///< most urgent last
    std::set<TileAddress> mAsked;    ///< being computed, or computed and not forgotten
    std::vector<Arrival> mArrived;
    int mRunning = 0;
    int mGeneration = 0; ///< results of older ones are void
};

} // namespace OpenStreet
