// Reads one record file in this fresh process and prints what it took, as JSON.
// With --cycle the whole road of a load runs: files, index, flights, working data.

#include "card/CardContainer.h"
#include "card/RecordData.h"
#include "card/RecordFile.h"
#include "core/Diagnostics.h"
#include "profile/Profile.h"

#include <QFileInfo>
#include <QString>

#include <sys/resource.h>

#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <string_view>

namespace {

double seconds(std::chrono::steady_clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}

long peakBytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024;
}

/// The entries of each identifier and a sum over them, to be compared with the peer's.
void printLists(const VELIX::RecordData& data)
{
    std::printf("\"lists\": {");
    const char* comma = "";
    for (const auto& [id, list] : data.ids()) {
        if (id >= VELIX::RecordData::kSource1Id) {
            continue;
        }
        std::uint64_t sum = 0;
        std::uint64_t position = 1;
        for (const VELIX::RecordEntry& entry : list.entries) {
            sum += entry.timeLow * position++;
        }
        std::printf("%s\"%u\": [%zu, %" PRIu64 "]", comma, id, list.entries.size(), sum);
        comma = ", ";
    }
    std::printf("}");
}

} // namespace

int main(int argc, char** argv)
{
    using Clock = std::chrono::steady_clock;
    if (argc < 2) {
        std::fputs("usage: read_once FILE [--cycle]\n", stderr);
        return 2;
    }
    VELIX::Diagnostics::setStream(stderr);
    const QString path = QString::fromLocal8Bit(argv[1]);
    const long before = peakBytes();

    if (argc > 2 && std::string_view(argv[2]) == "--cycle") {
        VELIX::Profile profile;
        VELIX::CardContainer card(profile);
        card.readContainer(QFileInfo(path).path());
        const auto start = Clock::now();
        const bool loaded = card.loadCycle(card.recordCycles().begin()->first, -1) == 1;
        std::printf("{\"seconds\": %.6f, \"entries\": %u, \"peakBytes\": %ld}\n",
                    seconds(Clock::now() - start), card.recordData().entryCount,
                    peakBytes() - before);
        return loaded ? 0 : 1;
    }

    VELIX::RecordFile file;
    file.readRecordInfo(path);
    VELIX::RecordData data;
    const auto start = Clock::now();
    const bool read = file.readRecordData(data);
    const double taken = seconds(Clock::now() - start);
    std::printf("{\"seconds\": %.6f, \"entries\": %u, \"peakBytes\": %ld, ", taken, data.entryCount,
                peakBytes() - before);
    printLists(data);
    std::printf("}\n");
    return read ? 0 : 1;
}
