// What a graph computes without a window: storing samples, decimating them, looking values up.

#include "views/graph/model/GraphModel.h"
#include "views/graph/model/GraphTrace.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <random>

namespace {

using namespace VELIX;

constexpr std::size_t kSamples = 10'000'000;
constexpr int kColumns = 1'600;
constexpr int kTraces = 30;
constexpr int kRows = 36'000;

/// Returns a value as a sensor of an engine gives it: slow swings with some noise, sometimes a gap.
double engineValue(std::size_t i, std::minstd_rand& random)
{
    if (i % 200 == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return 600.0 + 80.0 * std::sin(static_cast<double>(i) * 1e-5) +
           static_cast<double>(random() % 1000) * 0.01;
}

/// Fills one trace with kSamples samples, spread evenly over some seconds.
void fill(GraphModel& model, double seconds)
{
    std::minstd_rand random(1);
    model.setMaxParameters(1);
    model.setActive(0, true);
    model.setPlotWidth(kColumns);
    for (std::size_t i = 0; i < kSamples; ++i) {
        model.setTime(seconds * static_cast<double>(i) / kSamples);
        model.putValue(0, engineValue(i, random), false);
    }
    model.setRange({0.0, seconds});
    model.calcFrame();
}

/// Returns such a trace of a whole day, made once.
GraphModel& longModel()
{
    static GraphModel model;
    if (model.count() == 0) {
        fill(model, GraphModel::kSecondsPerDay);
    }
    return model;
}

void feedThirtyTraces(benchmark::State& state)
{
    for (auto _ : state) {
        GraphModel model;
        model.setMaxParameters(kTraces);
        model.setPlotWidth(kColumns);
        for (unsigned int trace = 0; trace < kTraces; ++trace) {
            model.setActive(trace, true);
            for (int row = 0; row < kRows; ++row) {
                model.setTime(row * 0.1);
                model.putValue(trace, row % 977 * 0.5, false);
            }
        }
        model.setRange({0.0, kRows * 0.1});
        model.calcFrame();
        benchmark::DoNotOptimize(model.parameter(0).trace.frames().size());
    }
}

/// Measures for recalcWholeRecord() the least that a walk over the samples costs.
void sumSamples(benchmark::State& state)
{
    const auto& entries = longModel().parameter(0).trace.entries();
    for (auto _ : state) {
        double sum = 0.0;
        for (const GraphTrace::EntryType& entry : entries) {
            sum += entry.value;
        }
        benchmark::DoNotOptimize(sum);
    }
}

void recalcWholeRecord(benchmark::State& state)
{
    GraphModel& model = longModel();
    model.setRange({0.0, GraphModel::kSecondsPerDay});
    for (auto _ : state) {
        model.recalcFrameBuffer();
        benchmark::DoNotOptimize(model.parameter(0).trace.frames().size());
    }
}

/// Pans through a record of which a thousandth is visible by one pixel, and zooms in and out in
/// between.
void panAndZoom(benchmark::State& state, GraphModel& model, double seconds)
{
    const double width = seconds / 1000.0;
    double start = 0.0;
    bool in = true;
    for (auto _ : state) {
        start = std::fmod(start + seconds * 0.37, seconds - width);
        model.pan({start, start + width}, width / kColumns);
        model.zoomStep(start, in);
        in = !in;
        model.calcFrame();
        benchmark::DoNotOptimize(model.parameter(0).trace.frames().size());
    }
}

void panAndZoomInADay(benchmark::State& state)
{
    panAndZoom(state, longModel(), GraphModel::kSecondsPerDay);
}

/// Measures the same samples in ten seconds: a million in each element of the index.
void panAndZoomInTenSeconds(benchmark::State& state)
{
    constexpr double kSeconds = 10.0;
    GraphModel model;
    fill(model, kSeconds);
    panAndZoom(state, model, kSeconds);
}

void markerStatistics(benchmark::State& state)
{
    GraphModel& model = longModel();
    std::minstd_rand random(2);
    std::uniform_real_distribution<double> time(0.0, GraphModel::kSecondsPerDay);
    for (auto _ : state) {
        model.setMarker(time(random), time(random));
        benchmark::DoNotOptimize(model.markerStatistics(0).average);
    }
}

void valueAtRandomTime(benchmark::State& state)
{
    const GraphModel& model = longModel();
    std::minstd_rand random(3);
    std::uniform_real_distribution<double> time(0.0, GraphModel::kSecondsPerDay - 1.0);
    double value = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(model.getValue(0, time(random), value));
    }
}

BENCHMARK(feedThirtyTraces)->Unit(benchmark::kMillisecond);
BENCHMARK(sumSamples)->Unit(benchmark::kMillisecond);
BENCHMARK(recalcWholeRecord)->Unit(benchmark::kMillisecond);
BENCHMARK(panAndZoomInADay)->Unit(benchmark::kMicrosecond);
BENCHMARK(panAndZoomInTenSeconds)->Unit(benchmark::kMicrosecond);
BENCHMARK(markerStatistics)->Unit(benchmark::kMicrosecond);
BENCHMARK(valueAtRandomTime);

} // namespace

BENCHMARK_MAIN();
