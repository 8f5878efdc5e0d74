#include "views/graph/widget/GraphSceneCache.h"

#include "views/graph/model/GraphModel.h"

#include <QWidget>

namespace VELIX {

GraphSceneCache::GraphSceneCache(const QWidget& widget, GraphModel& model, const GraphLook& look)
    : mWidget(widget), mModel(model), mLook(look)
{}

const GraphScene& GraphSceneCache::current()
{
    if (mStale || mRevision != mModel.plotRevision() || mSize != mWidget.size()) {
        mModel.calcFrame(); // the ticks depend on the scales
        mScene = GraphScene::make(mModel, mLook, mWidget.size(), mWidget.font());
        mRevision = mModel.plotRevision();
        mSize = mWidget.size();
        mStale = false;
        ++mCount;
    }
    return mScene;
}

double GraphSceneCache::timeAt(const QPoint& point)
{
    return current().layout.timeAt(point.x(), mModel.xmin(), mModel.xmax());
}

QRect GraphSceneCache::selectedBand()
{
    const GraphScene& scene = current();
    const int position = scene.positionOf(mModel.selectedTrace());
    return position < 0 ? scene.layout.plot() : scene.layout.band(position);
}

} // namespace VELIX
