// The graph view with an hour of data: 30 traces of 36,000 samples.

#include "core/Property.h"
#include "gui/StandardDialogs.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/DialogDataGraph.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kSamples = 36'000;
constexpr int kTraces = 30;
constexpr int kFirstId = 500;

std::unique_ptr<Profile> makeProfile()
{
    ProfileBuilder builder;
    builder.device("Lane A");
    for (int i = 0; i < kTraces; ++i) {
        builder
            .parameter(kFirstId + i, QStringLiteral("Parameter %1").arg(i),
                       i % 5 == 4 ? "USHORT" : "FLOAT")
            .set("precision", "2");
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
    for (int row = 0; row < kSamples; ++row) {
        builder.at(row / 10.0);
        for (int i = 0; i < kTraces; ++i) {
            builder.id(static_cast<std::uint32_t>(kFirstId + i));
            if (i % 5 == 4) {
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
    Property settings;
    DialogDataGraph view{*profile, settings, StandardDialogs::instance()};

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
        fixture.view.updateRecord(fixture.record.get());
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
    fixture.view.updateRecord(fixture.record.get());
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + 791.9, kSamples / 10.0);
        fixture.view.setTime(time);
    }
}
BENCHMARK(moveGraphCursor)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
