// Listing a card of a thousand record files, of which only headers and a few times are read.

#include "card/CardContainer.h"
#include "core/Diagnostics.h"
#include "profile/Profile.h"
#include "tests/support/RecordBuilder.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kFiles = 1000;
constexpr int kSamples = 2000; // in a file: the header and the last entry are on different pages

bool writeCard(const QString& folder)
{
    for (int file = 0; file < kFiles; ++file) {
        RecordBuilder record;
        if (file % 10 != 0) { // the first file of each power cycle has no date
            record.date(RecordBuilder::utc(2024, 5, 1 + file / 100, 8, file / 10 % 60, file % 60));
        }
        record.id(500);
        for (int i = 0; i < kSamples; ++i) {
            record.at(i * 0.1).floatValue(1.0F);
        }
        const QString name = QStringLiteral("R%1.CAN").arg(file, 5, 10, QLatin1Char('0'));
        if (!record.write(folder + QLatin1Char('/') + name)) {
            return false;
        }
    }
    return true;
}

void readContainer(benchmark::State& state)
{
    Diagnostics::setStream(stderr);
    const QTemporaryDir folder;
    if (!writeCard(folder.path())) {
        state.SkipWithError("the card cannot be written");
        return;
    }
    Profile profile;
    for (auto _ : state) {
        CardContainer card(profile);
        card.readContainer(folder.path());
        if (card.recordFiles().size() != kFiles) {
            state.SkipWithError("the listing is not complete");
        }
    }
}
BENCHMARK(readContainer)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
