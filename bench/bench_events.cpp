// Finding and listing the events of a record with 1,000,000 samples.

#include "bench/Require.h"
#include "bench/WidgetBench.h"
#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "gui/dialogs/StandardDialogs.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/events/DialogDataLimit.h"

#include <cmath>
#include <memory>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kRows = 40'000;
constexpr int kParameters = 25; // 20 with thresholds, 5 lamps
constexpr int kLamps = 5;
constexpr int kFirstId = 500;

struct Fixture
{
    Profile profile;
    std::shared_ptr<RecordData> record;

    static Fixture& instance()
    {
        static Fixture fixture;
        return fixture;
    }

private:
    Fixture()
    {
        ProfileBuilder builder;
        builder.threshold(
            "Hot", {{0.0, "lime", "OK"}, {85.0, "yellow", "WARNING"}, {98.0, "red", "LIMIT"}});
        builder.enumeration("WarningLamp", {{0, "off"}, {1, "amber"}, {2, "red"}});
        builder.device("Lane A");
        for (int i = 0; i < kParameters; ++i) {
            const QString name = QStringLiteral("Parameter %1").arg(i);
            if (i < kLamps) {
                builder.parameter(kFirstId + i, name, "BSHORT").set("enumId", "WarningLamp");
                builder.set("endBit", "7");
            } else {
                builder.parameter(kFirstId + i, name, i % 3 == 0 ? "USHORT" : "FLOAT");
                builder.set("thresholdId", "Hot").set("precision", "1");
            }
        }
        require(builder.load(profile), "the profile of the benchmark does not load");
        record = samples().data();
    }

    static RecordBuilder samples()
    {
        RecordBuilder builder;
        for (int row = 0; row < kRows; ++row) {
            builder.at(row / 10.0);
            for (int i = 0; i < kParameters; ++i) {
                builder.id(static_cast<std::uint32_t>(kFirstId + i));
                const double value = 60.0 + 40.0 * std::sin(row * 0.01 + i);
                if (i < kLamps) {
                    builder.bshortValue(static_cast<std::uint16_t>(row / 500 % 3));
                } else if (i % 3 == 0) {
                    builder.ushortValue(static_cast<std::uint16_t>(value));
                } else {
                    builder.floatValue(static_cast<float>(value));
                }
            }
        }
        return builder;
    }
};

void findEvents(benchmark::State& state)
{
    Fixture& fixture = Fixture::instance();
    std::size_t events = 0;
    for (auto _ : state) {
        events = findLimits(*fixture.record, fixture.profile).size() +
                 findWarnings(*fixture.record, fixture.profile).size();
    }
    state.counters["events"] = static_cast<double>(events);
    state.counters["samples"] = kRows * kParameters;
}
BENCHMARK(findEvents)->Unit(benchmark::kMillisecond)->UseRealTime();

void followCursor(benchmark::State& state)
{
    Fixture& fixture = Fixture::instance();
    DialogDataLimit list(fixture.profile, StandardDialogs::instance());
    list.resize(600, 600);
    list.show();
    list.updateRecord(fixture.record.get());
    double time = 0.0;
    for (auto _ : state) {
        time = std::fmod(time + 791.9, kRows / 10.0);
        list.setTime(time);
    }
}
BENCHMARK(followCursor)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return runOffscreenBenchmarks(argc, argv);
}
