// The value table with an hour of data: 36,000 rows of 30 parameters.

#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/DialogDataTable.h"

#include <QApplication>
#include <QTableWidget>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <unistd.h>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kRows = 36'000;
constexpr int kParameters = 30;
constexpr int kFirstId = 500;

std::unique_ptr<Profile> makeProfile()
{
    ProfileBuilder builder;
    builder.threshold("Hot", {{0.0, "lime", "OK"}, {90.0, "yellow", "WARNING"}});
    builder.device("Lane A");
    for (int i = 0; i < kParameters; ++i) {
        const QString name = QStringLiteral("Parameter %1").arg(i);
        builder.parameter(kFirstId + i, name, i % 5 == 4 ? "USHORT" : "FLOAT")
            .set("precision", "2")
            .set("unitMetric", "C");
        if (i % 3 == 0) {
            builder.set("thresholdId", "Hot");
        }
        if (i < 2) {
            builder.set("velixDataType", i == 0 ? "Latitude" : "Longitude");
        }
    }
    auto profile = std::make_unique<Profile>();
    if (!builder.load(*profile)) {
        std::fprintf(stderr, "the profile of the benchmark does not load\n");
        std::abort();
    }
    ProfileBuilder::selectAll(*profile);
    return profile;
}

std::shared_ptr<RecordData> makeRecord()
{
    RecordBuilder builder;
    for (int row = 0; row < kRows; ++row) {
        builder.at(row / 10.0);
        for (int i = 0; i < kParameters; ++i) {
            builder.id(static_cast<std::uint32_t>(kFirstId + i));
            if (i < 2) {
                builder.floatValue(static_cast<float>(4800.0 + row * 1e-3));
            } else if (i % 5 == 4) {
                builder.ushortValue(static_cast<std::uint16_t>(row + i));
            } else {
                builder.floatValue(static_cast<float>(60.0 + 40.0 * std::sin(row * 0.01 + i)));
            }
        }
    }
    return builder.data();
}

struct Fixture
{
    std::unique_ptr<Profile> profile = makeProfile();
    std::shared_ptr<RecordData> record = makeRecord();

    static Fixture& instance()
    {
        static Fixture fixture;
        return fixture;
    }
};

std::unique_ptr<DialogDataTable> shownTable()
{
    auto table = std::make_unique<DialogDataTable>(*Fixture::instance().profile);
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
    RecordData* record = Fixture::instance().record.get();
    malloc_trim(0);
    const double before = residentMb();
    double additional = 0.0;
    for (auto _ : state) {
        table->updateRecord(record);
        QApplication::processEvents(); // the first picture belongs to it
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
    table->updateRecord(Fixture::instance().record.get());
    const double step = static_cast<double>(state.range(0)) / 10.0;
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + step, kRows / 10.0);
        table->setTime(time);
    }
}
BENCHMARK(moveCursor)->Arg(1)->Arg(7919)->Unit(benchmark::kMicrosecond)->UseRealTime();

void moveCursorAndPaint(benchmark::State& state)
{
    const auto table = shownTable();
    table->updateRecord(Fixture::instance().record.get());
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + 0.1, kRows / 10.0);
        table->setTime(time);
        QApplication::processEvents();
    }
}
BENCHMARK(moveCursorAndPaint)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
