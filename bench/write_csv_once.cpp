// Writes the CSV table of a record in memory to a file, a number of times, and prints the seconds
// of each as JSON: write_csv_once FILE ROUNDS
// The record is the one that run_csv.py makes for the peer: 30 FLOAT parameters x 36,000 samples.

#include "core/Diagnostics.h"
#include "export/ExportCsv.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <QFileInfo>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace VELIX;
using namespace VELIX::Test;

constexpr int kParameters = 30;
constexpr int kRows = 36'000;
constexpr int kFirstId = 500;

bool fillProfile(Profile& profile)
{
    ProfileBuilder b;
    b.device("Lane A");
    for (int i = 0; i < kParameters; ++i) {
        b.parameter(kFirstId + i, QStringLiteral("P%1").arg(i), "FLOAT").set("precision", "2");
    }
    return b.load(profile);
}

/// Returns the value of a parameter in a row: hundredths from 0 to 2000, the same in both programs.
float value(int row, int parameter)
{
    const int hundredths = static_cast<int>(
        (static_cast<std::int64_t>(row) * 7919 + static_cast<std::int64_t>(parameter) * 104729) %
        200'000);
    return static_cast<float>(hundredths / 100.0);
}

std::shared_ptr<RecordData> makeRecord()
{
    RecordBuilder b;
    for (int row = 0; row < kRows; ++row) {
        b.at(row / 10.0);
        for (int i = 0; i < kParameters; ++i) {
            b.id(static_cast<std::uint32_t>(kFirstId + i)).floatValue(value(row, i));
        }
    }
    return b.data();
}

} // namespace

int main(int argc, char** argv)
{
    using Clock = std::chrono::steady_clock;
    const int rounds = argc == 3 ? std::atoi(argv[2]) : 0;
    if (rounds < 1) {
        std::fputs("usage: write_csv_once FILE ROUNDS\n", stderr);
        return 2;
    }
    Diagnostics::setStream(stderr);
    Profile profile;
    if (!fillProfile(profile)) {
        return 1;
    }
    const auto record = makeRecord();
    const QFileInfo target(QString::fromLocal8Bit(argv[1]));
    CsvExportOptions options;
    options.directory = target.absolutePath().toStdString();
    options.fileName = target.fileName().toStdString();
    options.delimiter = ',';

    std::printf("{\"seconds\": [");
    for (int i = 0; i < rounds; ++i) {
        const auto start = Clock::now();
        if (ExportCsv(profile).exportData(*record, options) == 0) {
            return 1;
        }
        const std::chrono::duration<double> taken = Clock::now() - start;
        std::printf("%s%.6f", i == 0 ? "" : ", ", taken.count());
    }
    std::printf("]}\n");
    return 0;
}
