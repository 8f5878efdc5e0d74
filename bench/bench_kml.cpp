// Writing the KML document of a four-hour flight: positions and 30 chosen parameters at 10 Hz.

#include "bench/Require.h"
#include "card/LimitFinder.h"
#include "card/RecordData.h"
#include "core/Diagnostics.h"
#include "export/ExportKml.h"
#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <memory>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kSamples = 4 * 3600 * 10;
constexpr int kParameters = 30;
constexpr int kFirstId = 500;
constexpr int kLatitude = 1036;
constexpr int kLongitude = 1037;
constexpr int kAltitude = 1038;

class Flight
{
public:
    Flight()
    {
        require(describe().load(profile), "the profile of the benchmark does not load");
        fly();
        record->limits = findLimits(*record, profile);
        options.directory = folder.path().toStdString();
        for (const ProfileDevice& device : profile.data().devices) {
            for (const auto& [id, p] : device.parameters) {
                if (id < kLatitude) {
                    options.parameters.push_back(&p);
                }
            }
        }
    }

    Profile profile{eUnitMetric};
    std::shared_ptr<RecordData> record = std::make_shared<RecordData>();
    QTemporaryDir folder;
    KmlExportOptions options;

private:
    static ProfileBuilder describe()
    {
        ProfileBuilder builder;
        builder.threshold("Hot", {{0.0, "lime", "OK"}, {98.0, "red", "LIMIT"}});
        builder.device("EMU");
        builder.parameter(kLatitude, QStringLiteral("Lat"), "FLOAT")
            .set("velixDataType", "Latitude");
        builder.parameter(kLongitude, QStringLiteral("Lon"), "FLOAT")
            .set("velixDataType", "Longitude");
        builder.parameter(kAltitude, QStringLiteral("Alt"), "FLOAT").set("unitMetric", "m");
        builder.device("Lane A");
        for (int i = 0; i < kParameters; ++i) {
            builder.parameter(kFirstId + i, QStringLiteral("Parameter %1").arg(i), "FLOAT");
            builder.set("precision", "1").set("unitMetric", "C").set("thresholdId", "Hot");
        }
        return builder;
    }
    void append(int id, double time, double value)
    {
        RecordEntry entry;
        const auto word = std::bit_cast<std::uint32_t>(static_cast<float>(value));
        entry.data = {1,
                      static_cast<std::uint8_t>(eFloat),
                      0,
                      0,
                      static_cast<std::uint8_t>(word >> 24U),
                      static_cast<std::uint8_t>(word >> 16U),
                      static_cast<std::uint8_t>(word >> 8U),
                      static_cast<std::uint8_t>(word)};
        entry.id = static_cast<std::uint32_t>(id);
        entry.source = 2;
        entry.time = time;
        record->append(entry);
    }
    void fly()
    {
        for (int row = 0; row < kSamples; ++row) {
            const double time = row / 10.0;
            append(kLatitude, time, 4800.0 + 20.0 * std::sin(time * 0.001));
            append(kLongitude, time, 1100.0 + 20.0 * std::cos(time * 0.001));
            append(kAltitude, time, 500.0 + 400.0 * std::sin(time * 0.005));
            for (int i = 0; i < kParameters; ++i) {
                append(kFirstId + i, time, 60.0 + 40.0 * std::sin(time * 0.01 + i));
            }
        }
        record->stopTime = kSamples / 10.0;
        record->finish(record->stopTime);
    }
};

void exportKml(benchmark::State& state)
{
    Flight flight;
    flight.options.standard = state.range(0) != 0;
    flight.options.fileName = state.range(0) != 0 ? "flight.kmz" : "flight.kml";
    ExportKml writer(flight.profile);
    for (auto _ : state) {
        if (writer.exportData(*flight.record, flight.options) == 0) {
            state.SkipWithError("not written");
        }
    }
    const KmlSummary summary = writer.summary(*flight.record, flight.options);
    state.counters["points"] = static_cast<double>(summary.pathPoints);
    state.counters["marks"] = static_cast<double>(summary.parameterMarks);
    state.counters["events"] = static_cast<double>(summary.eventMarks);
}
BENCHMARK(exportKml)->ArgName("kmz")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

void summariseKml(benchmark::State& state)
{
    Flight flight;
    ExportKml writer(flight.profile);
    for (auto _ : state) {
        benchmark::DoNotOptimize(writer.summary(*flight.record, flight.options));
    }
}
BENCHMARK(summariseKml)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> log(std::fopen("/dev/null", "w"),
                                                              &std::fclose);
    VELIX::Diagnostics::setStream(log.get());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    VELIX::Diagnostics::setStream(nullptr);
    return 0;
}
