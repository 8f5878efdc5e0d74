// The value table with an hour of data: 36,000 rows of 30 parameters.

#include "bench/EngineHour.h"
#include "bench/WidgetBench.h"
#include "views/table/DialogDataTable.h"

#include <cmath>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <unistd.h>

namespace {

using namespace VELIX;

const EngineHour& hour()
{
    static const EngineHour made;
    return made;
}

std::unique_ptr<DialogDataTable> shownTable()
{
    auto table = std::make_unique<DialogDataTable>(*hour().profile);
    table->resize(1000, 600);
    table->show();
    QApplication::processEvents();
    return table;
}

double residentMb()
{
    std::ifstream statm("/proc/self/statm");
    double total = 0.0;
    double resident = 0.0;
    statm >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

void fillTable(benchmark::State& state)
{
    const auto table = shownTable();
    RecordData* record = hour().record.get();
    malloc_trim(0);
    const double before = residentMb();
    double additional = 0.0;
    for (auto _ : state) {
        table->updateRecord(record);
        QApplication::processEvents(); // the first frame is part of it
        state.PauseTiming();
        additional = std::max(additional, residentMb() - before);
        table->updateRecord(nullptr);
        malloc_trim(0);
        state.ResumeTiming();
    }
    state.counters["additional_MB"] = additional;
}
BENCHMARK(fillTable)->Iterations(5)->Unit(benchmark::kMillisecond)->UseRealTime();

void moveCursor(benchmark::State& state)
{
    const auto table = shownTable();
    table->updateRecord(hour().record.get());
    const double step = static_cast<double>(state.range(0)) / 10.0;
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + step, EngineHour::kRows / 10.0);
        table->setTime(time);
    }
}
BENCHMARK(moveCursor)->Arg(1)->Arg(7919)->Unit(benchmark::kMicrosecond)->UseRealTime();

void moveCursorAndPaint(benchmark::State& state)
{
    const auto table = shownTable();
    table->updateRecord(hour().record.get());
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + 0.1, EngineHour::kRows / 10.0);
        table->setTime(time);
        QApplication::processEvents();
    }
}
BENCHMARK(moveCursorAndPaint)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return runOffscreenBenchmarks(argc, argv);
}
