#pragma once

#include "views/graph/widget/GraphScene.h"

#include <QSize>

#include <cstdint>

class QWidget;

namespace VELIX {

class GraphModel;

/// Keeps the scene of a widget's graph until something that it depends on changes.
class GraphSceneCache
{
public:
    /// All three outlive the cache. The widget gives size and font.
    GraphSceneCache(const QWidget& widget, GraphModel& model, const GraphLook& look);

    /// Returns the scene, made again if it is out of date.
    [[nodiscard]] const GraphScene& current();
    /// Counts the scenes made, so that what is drawn of one can be kept as long.
    [[nodiscard]] unsigned int count() const { return mCount; }
    /// To be called after changes of font, language or look, which nothing else reveals.
    void invalidate() { mStale = true; }

    // --- what mouse and keys need of the current scene

    /// The time at a point of the widget.
    [[nodiscard]] double timeAt(const QPoint& point);
    /// The band of the selected trace; the whole plot in single display.
    [[nodiscard]] QRect selectedBand();

private:
    const QWidget& mWidget;
    GraphModel& mModel;
    const GraphLook& mLook;
    GraphScene mScene;
    QSize mSize;
    std::uint64_t mRevision = 0;
    unsigned int mCount = 0;
    bool mStale = true;
};

} // namespace VELIX
