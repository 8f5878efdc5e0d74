// Fault matrices with an hour of error words: what the cursor costs, and how much memory it takes.

#include "bench/Require.h"
#include "bench/WidgetBench.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/fault/DialogDataErrorMatrix.h"
#include "views/fault/FaultTimeline.h"

#include <atomic>
#include <dlfcn.h>
#include <memory>
#include <random>

namespace {

std::atomic<std::size_t> gAllocations{0};

} // namespace

// Hides the C library's own malloc(), so that what Qt allocates counts as well.
extern "C" void* malloc(std::size_t size)
{
    using Function = void* (*)(std::size_t);
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "malloc"));
    ++gAllocations;
    return next(size);
}

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kMatrices = 3;
constexpr int kFirstId = 0x4F0;
constexpr int kBits = 32;
constexpr int kSamples = 36'000; // of each matrix, ten a second

struct Fixture
{
    std::unique_ptr<Profile> profile = std::make_unique<Profile>();
    std::shared_ptr<RecordData> record;
    std::vector<double> times; ///< s: where the cursor jumps to

    Fixture()
    {
        makeProfile();
        makeRecord();
        std::mt19937 random(5);
        std::uniform_real_distribution<double> anywhere(0.0, kSamples / 10.0);
        for (int i = 0; i < 4096; ++i) {
            times.push_back(anywhere(random));
        }
    }

    void makeProfile()
    {
        const char* types[] = {"Info", "Warning", "Fault"};
        ProfileBuilder builder;
        builder.device("Lane A");
        for (int matrix = 0; matrix < kMatrices; ++matrix) {
            builder.matrix(kFirstId + matrix, "Lane");
            for (int bit = 0; bit < kBits; ++bit) {
                builder.parameter(kFirstId + matrix, QStringLiteral("Sensor %1").arg(bit), "BLONG")
                    .set("startBit", QString::number(bit))
                    .set("endBit", QString::number(bit))
                    .set("errorType", types[bit % 3]);
            }
        }
        require(builder.load(*profile), "the profile of the benchmark does not load");
    }

    void makeRecord()
    {
        std::mt19937 random(3);
        RecordBuilder builder;
        for (int i = 0; i < kSamples; ++i) {
            builder.at(i / 10.0);
            for (int matrix = 0; matrix < kMatrices; ++matrix) {
                builder.id(static_cast<std::uint32_t>(kFirstId + matrix));
                builder.blongValue(static_cast<std::uint32_t>(random()));
            }
        }
        record = builder.data();
    }

    static Fixture& instance()
    {
        static Fixture fixture;
        return fixture;
    }
};

/// Moves the cursor to random times; counts what setTime() takes, without the painting after it.
void jump(benchmark::State& state, DialogDataErrorMatrix& view)
{
    const std::vector<double>& times = Fixture::instance().times;
    view.updateRecord(Fixture::instance().record.get());
    QApplication::processEvents();
    std::size_t at = 0;
    std::size_t taken = 0;
    for (auto _ : state) {
        const std::size_t before = gAllocations;
        view.setTime(times[at++ % times.size()]);
        taken += gAllocations - before;
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(taken), benchmark::Counter::kAvgIterations);
}

void moveCursor(benchmark::State& state)
{
    DialogDataErrorMatrix view(*Fixture::instance().profile);
    jump(state, view);
}
BENCHMARK(moveCursor)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// Measures a view on screen, where the time bars are painted within setTime() and the cells later.
void moveCursorOnScreen(benchmark::State& state)
{
    DialogDataErrorMatrix view(*Fixture::instance().profile);
    view.resize(1000, 800);
    view.show();
    QApplication::processEvents();
    jump(state, view);
}
BENCHMARK(moveCursorOnScreen)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// Makes the change lists of one matrix in which every bit changes all the time.
void makeTimeline(benchmark::State& state)
{
    Fixture& fixture = Fixture::instance();
    FaultTimeline timeline;
    timeline.setMatrix(fixture.profile->data().devices[0].errorMatrices[0]);
    for (auto _ : state) {
        timeline.setRecord(fixture.record.get());
        benchmark::DoNotOptimize(timeline.changes(eErrorFault).data());
    }
}
BENCHMARK(makeTimeline)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return runOffscreenBenchmarks(argc, argv);
}
