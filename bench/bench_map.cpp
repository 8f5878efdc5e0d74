// The map: a frame with all tiles loaded, the preparation of a path, and tiles from a server to the
// screen. Needs a display.

#include "bench/WidgetBench.h"
#include "card/RecordData.h"
#include "core/Property.h"
#include "gui/look/Resources.h"
#include "platform/tessel/Timer.h"
#include "tests/support/TileServer.h"
#include "views/map/MapPathLines.h"
#include "views/map/WidgetMap.h"
#include "views/map/model/MapContext.h"

#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QVBoxLayout>

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace {

using namespace VELIX;

/// Returns circles over the Alps, ten positions a second.
std::vector<FlightPathPoint> circles(int count)
{
    std::vector<FlightPathPoint> path(static_cast<std::size_t>(count));
    double time = 0.0;
    for (FlightPathPoint& point : path) {
        point.time = time;
        point.latitude = 47.0 + 0.2 * std::sin(time / 700.0) + 0.01 * std::sin(time / 9.0);
        point.longitude = 8.0 + 0.3 * std::cos(time / 900.0) + 0.01 * std::cos(time / 9.0);
        point.altitude = 900.0 + 600.0 * std::sin(time / 300.0);
        time += 0.1;
    }
    return path;
}

/// Paints and nothing else: no layers above, no exchange of buffers.
class PaintedMap : public WidgetMap
{
public:
    using WidgetMap::WidgetMap;
    void paintOnce()
    {
        makeCurrent();
        paintGL();
        glFinish();
        doneCurrent();
    }
};

/// A tile server on a thread of its own, so that its work does not count as that of the map.
class ServerThread
{
public:
    ServerThread()
    {
        mWorker.moveToThread(&mThread);
        mThread.start();
        onThread([this] {
            mServer = std::make_unique<Test::TileServer>();
            mUrl = mServer->url();
        });
    }
    ~ServerThread()
    {
        onThread([this] { mServer.reset(); });
        mThread.quit();
        mThread.wait();
    }
    ServerThread(const ServerThread&) = delete;
    ServerThread& operator=(const ServerThread&) = delete;

    const QString& url() const { return mUrl; }
    int requests()
    {
        int count = 0;
        onThread([this, &count] { count = mServer->requests(); });
        return count;
    }

private:
    void onThread(const std::function<void()>& work)
    {
        QMetaObject::invokeMethod(&mWorker, work, Qt::BlockingQueuedConnection);
    }

    QThread mThread;
    QObject mWorker; ///< belongs to the thread
    std::unique_ptr<Test::TileServer> mServer;
    QString mUrl;
};

/// A map with a folder of its own, so that every tile comes from the server.
struct MapWindow
{
    MapWindow(int width, int height, const std::vector<FlightPathPoint>& path)
    {
        initResources();
        settings.setString("TileServer", "");
        context.visibleRange = 60000.0;
        context.centreLatitude = 47.0;
        context.centreLongitude = 8.0;
        map = std::make_unique<PaintedMap>(&frame, context, settings, folder.path().toStdString());
        frame.setLayout(new QVBoxLayout);
        frame.layout()->setContentsMargins(0, 0, 0, 0);
        frame.layout()->addWidget(map.get());
        frame.resize(width, height);
        map->setFlightPath(&path);
        map->setColoring(MapColoring::byAltitude(path, false));
        if (!path.empty()) {
            map->setRecordData(&record);
        }
    }
    /// Shows the map without a server yet: what the drivers prepare does not belong to the tiles.
    bool show()
    {
        frame.show();
        QTest::qWait(300); // a map changes its size a moment after it is shown
        return QTest::qWaitFor([this] { return map->paintCount() > 2; }, 20000);
    }
    bool load()
    {
        settings.setString("TileServer", server.url().toStdString());
        map->update();
        const auto wait = [](auto ready) {
            const Tessel::Misc::Timer watch;
            while (!ready() && watch.elapsed() < 20.0) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
            return ready();
        };
        return wait([this] { return map->loadingTiles() > 0; }) &&
               wait([this] { return map->loadingTiles() == 0; });
    }

    ServerThread server;
    QTemporaryDir folder;
    Property settings;
    MapContext context;
    RecordData record;
    QWidget frame; ///< as in the program: the window is composed of it and the map
    std::unique_ptr<PaintedMap> map;
};

/// Paints a map that does not move (only the aircraft does) or that is dragged.
void frame(benchmark::State& state, double step)
{
    const std::vector<FlightPathPoint> path = circles(static_cast<int>(state.range(0)));
    MapWindow window(1200, 800, path);
    if (!window.show() || !window.load()) {
        state.SkipWithError("the tiles did not come");
        return;
    }
    window.map->setAcPosition(path.back());
    for (auto _ : state) {
        window.context.centreLongitude += step; // degrees
        step = -step;
        window.map->paintOnce();
    }
}

void pathToVertices(benchmark::State& state)
{
    const std::vector<FlightPathPoint> path = circles(static_cast<int>(state.range(0)));
    const MapColoring coloring = MapColoring::byAltitude(path, false);
    MapPathLines lines;
    for (auto _ : state) {
        lines.build(MapPath(path), coloring.colors, 3.0);
    }
}

/// Measures until all tiles of the view are on screen; blockedMs is the longest time without the
/// event loop, which includes a frame drawn by software.
void tilesToScreen(benchmark::State& state)
{
    const std::vector<FlightPathPoint> nowhere;
    double blocked = 0.0;
    int tiles = 0;
    {
        MapWindow first(1600, 1000, nowhere); // drivers and the server prepare what they keep
        if (!first.show() || !first.load()) {
            state.SkipWithError("the tiles did not come");
            return;
        }
    }
    for (auto _ : state) {
        MapWindow window(1600, 1000, nowhere);
        Tessel::Misc::Timer between;
        QTimer ticks;
        QObject::connect(&ticks, &QTimer::timeout, [&] {
            blocked = std::max(blocked, between.elapsed());
            between.restart();
        });
        if (!window.show()) {
            state.SkipWithError("no frame was drawn");
            break;
        }
        const Tessel::Misc::Timer watch;
        between.restart();
        ticks.start(1);
        if (!window.load()) {
            state.SkipWithError("the tiles did not come");
            break;
        }
        window.map->grabFramebuffer();
        state.SetIterationTime(watch.elapsed());
        tiles = window.server.requests();
    }
    state.counters["tiles"] = tiles;
    state.counters["blockedMs"] = blocked * 1000.0;
}

BENCHMARK_CAPTURE(frame, still, 0.0)
    ->Arg(2)
    ->Arg(150000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(frame, dragged, 0.0005)
    ->Arg(150000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(pathToVertices)->Arg(500000)->Unit(benchmark::kMillisecond);
BENCHMARK(tilesToScreen)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return VELIX::runWidgetBenchmarks(argc, argv);
}
