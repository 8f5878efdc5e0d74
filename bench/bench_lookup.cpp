// The value of a parameter at a time: what every view asks for at every move of the cursor.

#include "bench/Require.h"
#include "card/CardContainer.h"
#include "core/Diagnostics.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <random>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kSamples = 1'000'000;
constexpr double kStep = 0.01; // s between samples
constexpr int kId = 500;

enum Order : int { kInOrder, kSomeLate, kMostLate };

/// Returns how many samples there are for each that is as late as a buffer of the unit can delay
/// it; 0: none is late.
int lateEvery(int order)
{
    switch (order) {
    case kSomeLate:
        return 1000;
    case kMostLate:
        return 2;
    default:
        return 0;
    }
}

/// A card with one file of samples, loaded as the program does it.
class LoadedCard
{
public:
    explicit LoadedCard(int order) : mCard(mProfile)
    {
        Diagnostics::setStream(stderr);
        ProfileBuilder b;
        b.threshold("Hot", {{0.0, "lime", "OK"}, {90.0, "yellow", "WARNING"}});
        b.device("Lane A").parameter(kId, QStringLiteral("Oil temperature"), "FLOAT");
        b.set("thresholdId", "Hot");
        require(b.load(mProfile), "the profile of the benchmark does not load");
        const QTemporaryDir folder;
        RecordBuilder record;
        record.id(kId);
        const int every = lateEvery(order);
        for (int i = 0; i < kSamples; ++i) {
            const bool late = every != 0 && i % every == every - 1;
            record.at(late ? std::max(0, i - 50) * kStep : i * kStep);
            record.floatValue(static_cast<float>(i % 100));
        }
        require(record.write(folder.filePath(QStringLiteral("R0.CAN"))) &&
                    mCard.readContainer(folder.path()) &&
                    mCard.loadFiles({QStringLiteral("R0.CAN")}) == 1,
                "the card does not load");
    }

    CardContainer& card() { return mCard; }
    const ProfileParameter& parameter() const
    {
        return mProfile.data().devices.front().parameters.at(kId);
    }

private:
    Profile mProfile;
    CardContainer mCard;
};

void getValue(benchmark::State& state)
{
    LoadedCard loaded(static_cast<int>(state.range(0)));
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(0.0, kSamples * kStep);
    std::vector<double> times(1U << 16U);
    for (double& time : times) {
        time = anywhere(random);
    }
    std::size_t i = 0;
    for (auto _ : state) {
        int band = 0;
        QColor color;
        const double time = times[i++ % times.size()];
        benchmark::DoNotOptimize(loaded.card().getValue(loaded.parameter(), time, band, color));
    }
}
BENCHMARK(getValue)->ArgName("order")->Arg(kInOrder)->Arg(kSomeLate)->Arg(kMostLate);

} // namespace

BENCHMARK_MAIN();
