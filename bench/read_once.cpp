// Reads one record file in this fresh process and prints what it took, as JSON.
// With --cycle all steps of a load run: files, index, flights, path, a flight's working data.

#include "card/CardContainer.h"
#include "card/RecordData.h"
#include "card/RecordFile.h"
#include "core/Diagnostics.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"

#include <QFileInfo>
#include <QString>

#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

namespace {

using Clock = std::chrono::steady_clock;

double seconds(Clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}

/// Returns the most memory that was resident at a time. The resource usage of a process does not
/// say it: a child starts with the peak of the process that started it.
long peakBytes()
{
    std::ifstream status("/proc/self/status");
    std::string key;
    while (status >> key) {
        if (key == "VmHWM:") {
            long kibibytes = 0;
            status >> kibibytes;
            return kibibytes * 1024;
        }
        std::getline(status, key);
    }
    return 0;
}

/// Prints the entries of each identifier and a sum over them, to be compared with the peer's.
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

/// Makes a profile of the roles in the file that run_reading.py writes.
bool fillProfile(VELIX::Profile& profile)
{
    VELIX::Test::ProfileBuilder b;
    b.device("Lane A");
    int id = 500;
    for (const char* role : {"GroundSpeed", "Latitude", "Longitude", "Altitude"}) {
        b.parameter(id++, QString::fromLatin1(role), "FLOAT").set("velixDataType", role);
    }
    return b.load(profile);
}

int loadCycle(const QString& path)
{
    VELIX::Profile profile;
    VELIX::CardContainer card(profile);
    if (!fillProfile(profile) || !card.readContainer(QFileInfo(path).path())) {
        return 1;
    }
    const long before = peakBytes();
    const auto start = Clock::now();
    const auto& [number, cycle] = *card.recordCycles().begin();
    const bool loaded = card.loadCycle(number, 0) == 1;
    const double taken = seconds(Clock::now() - start);
    std::printf("{\"seconds\": %.6f, \"entries\": %u, \"flights\": %zu, \"flightEntries\": %u, "
                "\"peakBytes\": %ld}\n",
                taken, card.loadedData().entryCount, cycle.flights.size(),
                card.recordData().entryCount, peakBytes() - before);
    return loaded ? 0 : 1;
}

int readFile(const QString& path)
{
    const long before = peakBytes();
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

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: read_once FILE [--cycle]\n", stderr);
        return 2;
    }
    VELIX::Diagnostics::setStream(stderr);
    const QString path = QString::fromLocal8Bit(argv[1]);
    const bool cycle = argc > 2 && std::string_view(argv[2]) == "--cycle";
    return cycle ? loadCycle(path) : readFile(path);
}
