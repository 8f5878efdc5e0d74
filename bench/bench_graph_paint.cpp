// One frame of the graph: 30 traces at 1600 x 900 with four samples per pixel; and what it costs to
// move the cursor over it. Needs a display.

#include "views/graph/widget/WidgetGraph.h"
#include "views/graph/widget/WidgetGraphES.h"

#include <QApplication>
#include <QSurfaceFormat>

#include <benchmark/benchmark.h>

#include <GL/gl.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <random>

namespace {

constexpr unsigned int kTraces = 30;
constexpr int kSamples = 36'000;
constexpr double kRate = 10.0; ///< samples per second
constexpr double kDuration = kSamples / kRate;

enum class Content { Engine, Noise };

/// Paints and nothing else: no layers above, no exchange of buffers.
template <class Widget>
class PaintedGraph : public Widget
{
public:
    void paintOnce()
    {
        this->makeCurrent();
        this->paintGL();
        glFinish();
        this->doneCurrent();
    }
};

/// Returns a value of an engine in start, climb, cruise and descent, with the noise of its sensors.
double engineValue(unsigned int trace, double time, double noise)
{
    const double part = time / kDuration;
    const double power = part < 0.05 ? 0.1 : part < 0.3 ? 1.0 : part < 0.8 ? 0.7 : 0.35;
    const double swing = 0.05 * std::sin(time / (20.0 + 3.0 * trace));
    return 50.0 + 10.0 * trace * (power + swing) + noise * (0.1 + 0.05 * (trace % 4));
}

void fill(WidgetGraphBase& graph, Content content)
{
    std::mt19937 random(7);
    std::normal_distribution<double> normal;
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    graph.setMaxParameters(kTraces);
    for (unsigned int trace = 0; trace < kTraces; ++trace) {
        graph.setActive(trace, true);
        graph.setParameterName(trace, "Parameter " + std::to_string(trace));
    }
    for (int sample = 0; sample < kSamples; ++sample) {
        const double time = sample / kRate;
        graph.setTime(time);
        for (unsigned int trace = 0; trace < kTraces; ++trace) {
            graph.putValue(trace,
                           content == Content::Engine ? engineValue(trace, time, normal(random))
                                                      : uniform(random),
                           false);
        }
    }
    graph.setDisplayMode(content == Content::Engine ? VELIX::GraphModel::DisplaySplit
                                                    : VELIX::GraphModel::DisplaySingle);
    graph.setVisibleRange(0.0, kDuration);
    graph.setCursorPosition(kDuration / 3.0);
}

template <class Widget>
void show(PaintedGraph<Widget>& graph, Content content)
{
    fill(graph, content);
    graph.resize(1600, 900);
    graph.show();
    QApplication::processEvents();
    graph.paintOnce();
}

template <class Widget>
void paint(benchmark::State& state)
{
    const auto content = static_cast<Content>(state.range(0));
    PaintedGraph<Widget> graph;
    show(graph, content);
    for (auto step : state) {
        (void)step;
        graph.activateGrid(true); // any setting of the look makes the graph draw everything again
        graph.paintOnce();
    }
    state.SetLabel(content == Content::Engine ? "split, limit 45 ms" : "noise, limit 600 ms");
}

void moveCursor(benchmark::State& state)
{
    PaintedGraph<WidgetGraph> graph;
    show(graph, static_cast<Content>(state.range(0)));
    double time = 0.0;
    for (auto step : state) {
        (void)step;
        graph.setCursorPosition(time += 1.0);
        graph.paintOnce();
    }
}

} // namespace

BENCHMARK_TEMPLATE(paint, WidgetGraph)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
BENCHMARK(moveCursor)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
BENCHMARK_TEMPLATE(paint, WidgetGraphES)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    QSurfaceFormat::setDefaultFormat(format);
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
