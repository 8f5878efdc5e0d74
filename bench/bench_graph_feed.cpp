// The graph view with an hour of data: 30 traces of 36,000 samples.

#include "bench/EngineHour.h"
#include "bench/WidgetBench.h"
#include "core/Property.h"
#include "gui/dialogs/StandardDialogs.h"
#include "views/graph/DialogDataGraph.h"

#include <cmath>

namespace {

using namespace VELIX;

struct Fixture
{
    EngineHour hour;
    Property settings;
    DialogDataGraph view{*hour.profile, settings, StandardDialogs::instance()};

    Fixture()
    {
        view.resize(1600, 900);
        view.show();
        QApplication::processEvents();
    }
};

void feedGraph(benchmark::State& state)
{
    Fixture fixture;
    for (auto _ : state) {
        fixture.view.updateRecord(fixture.hour.record.get());
        state.PauseTiming();
        QApplication::processEvents();
        fixture.view.updateRecord(nullptr);
        state.ResumeTiming();
    }
}
BENCHMARK(feedGraph)->Iterations(7)->Unit(benchmark::kMillisecond)->UseRealTime();

void moveGraphCursor(benchmark::State& state)
{
    Fixture fixture;
    fixture.view.updateRecord(fixture.hour.record.get());
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + 791.9, EngineHour::kRows / 10.0);
        fixture.view.setTime(time);
    }
}
BENCHMARK(moveGraphCursor)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return runWidgetBenchmarks(argc, argv);
}
