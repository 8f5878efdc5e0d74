// A card of up to three damaged record files: listed, loaded, searched for flights and events,
// looked up by time, exported.
//
// The last byte of the input says how many files it is spread over and how much memory a load may
// take; all before it is the record file itself, so that any real file is an input too.

#include "card/CardContainer.h"
#include "card/FaultWord.h"
#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "core/Progress.h"
#include "export/ExportCsv.h"
#include "fuzz/FuzzFolder.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>
#include <list>

namespace {

using namespace VELIX;
using namespace VELIX::Fuzz;

constexpr const char* kNames[] = {"R0.CAN", "R1.can", "R2.xcb"};
constexpr std::size_t kHeader = 128;
constexpr std::size_t kMatrixId = 509;

/// Makes a profile of the identifiers and types that make_corpus.py writes.
void fillProfile(Profile& profile)
{
    Test::ProfileBuilder b;
    b.conversion("m", "ft", 3.28084, 0.0);
    b.enumeration("WarningLamp", {{0, "dark"}, {1, "amber"}, {2, "red"}});
    b.threshold("Hot", {{0.0, "lime", "OK"}, {90.0, "yellow", "WARNING"}, {99.0, "red", "LIMIT"}});
    b.device("Lane A");
    int id = 500;
    for (const char* role :
         {"GroundSpeed", "Latitude", "Longitude", "Altitude", "ThrottleA", "FuelA", "FuelB"}) {
        b.parameter(id++, QString::fromLatin1(role), "FLOAT")
            .set("velixDataType", role)
            .set("unitMetric", "m")
            .set("unitImperial", "ft")
            .set("thresholdId", "Hot")
            .set("precision", "2");
    }
    b.parameter(507, QStringLiteral("Pressure"), "USHORT").set("thresholdId", "Hot");
    b.parameter(508, QStringLiteral("Lamp; \"left\""), "BSHORT")
        .set("enumId", "WarningLamp")
        .set("startBit", "0")
        .set("endBit", "1");
    b.matrix(static_cast<int>(kMatrixId), "Faults");
    b.parameter(static_cast<int>(kMatrixId), QStringLiteral("Sensor"), "BLONG");
    require(b.load(profile), "the profile of the target does not load");
}

/// Returns what a binary search must also find, even over entries that are out of order.
std::size_t scan(const EntryList& entries, double time)
{
    std::size_t i = 0;
    for (const RecordEntry& entry : entries) {
        if (entry.time >= time) {
            return i;
        }
        ++i;
    }
    return i;
}

void checkLists(const RecordData& data)
{
    std::size_t filed = 0;
    for (const auto& [id, list] : data.ids()) {
        const EntryList& entries = list.entries;
        std::size_t walked = 0;
        for (const RecordEntry& entry : entries) {
            require(&entries[walked] == &entry, "an entry is not where its position says");
            ++walked;
        }
        require(walked == entries.size(), "a walk misses entries");
        for (std::size_t i = 0; i < entries.size(); i += 1 + entries.size() / 5) {
            const double time = entries[i].time;
            for (const double at : {time, std::nextafter(time, 1e300), time - 1.0}) {
                require(entries.firstAtOrAfter(at) == scan(entries, at),
                        "a search by time differs from a scan");
            }
        }
        filed += id < RecordData::kSource1Id ? entries.size() : 0;
    }
    require(filed <= data.entryCount, "more entries filed than read");
}

/// Checks that the table is readable: in the aligned form every row has every column.
void checkTable(const QByteArray& table, char delimiter)
{
    int columns = 0;
    int fields = 1;
    bool quoted = false;
    for (const char c : table) {
        if (c == '"') {
            quoted = !quoted;
        } else if (!quoted && c == delimiter) {
            ++fields;
        } else if (!quoted && c == '\n') {
            columns = columns == 0 ? fields : columns;
            require(fields == columns, "a row of the table has another number of fields");
            fields = 1;
        }
    }
    require(!quoted && fields == 1, "the table ends within a row");
}

void useRecord(CardContainer& card, Profile& profile)
{
    const RecordData& record = card.recordData();
    checkLists(record);
    findLimits(record, profile);
    findWarnings(record, profile);

    const double middle = (record.startTime + record.stopTime) / 2.0;
    for (const double time : {-1.0, 0.0, record.startTime, middle, record.stopTime, 1e12}) {
        for (const ProfileDevice& device : profile.data().devices) {
            for (const auto& [id, p] : device.parameters) {
                card.getValue(p, time);
            }
        }
        faultWordAt(record.entries(kMatrixId), time);
    }

    CsvExportOptions options;
    options.aligned = true;
    options.resolution = 10;
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    Progress nobody;
    require(ExportCsv(profile).writeTable(record, options, out, nobody),
            "a table in memory failed");
    checkTable(out.data(), options.delimiter);
}

std::list<QString> writeFiles(const FuzzFolder& folder, const std::uint8_t* bytes, std::size_t size,
                              std::size_t count)
{
    std::list<QString> names;
    for (std::size_t i = 0; i < 3; ++i) {
        folder.remove(kNames[i]);
    }
    // Each further file repeats the header and starts half a file later, at any byte.
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t skipped = size > kHeader ? (size - kHeader) / 2 * i / count : 0;
        std::vector<std::uint8_t> file(bytes, bytes + std::min(size, kHeader));
        file.insert(file.end(), bytes + std::min(size, kHeader + skipped), bytes + size);
        names.push_back(folder.write(kNames[i], file.data(), file.size()));
    }
    return names;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const FuzzFolder folder;
    static Profile profile;
    if (profile.isEmpty()) {
        silenceDiagnostics();
        fillProfile(profile);
    }
    const std::uint8_t choice = size > 0 ? bytes[--size] : 0;
    const std::list<QString> names = writeFiles(folder, bytes, size, 1 + choice % 3U);
    profile.setCurrentUnit((choice & 0x40U) != 0 ? eUnitImperial : eUnitMetric);

    CardContainer card(profile);
    card.setMemoryLimit((choice & 0x80U) != 0 ? 4096 : 1U << 20U);
    require(card.readContainer(folder.path()), "the folder was not listed");
    require(card.recordFiles().size() == names.size(), "not every file was listed");
    for (const auto& [number, cycle] : card.recordCycles()) {
        card.loadCycle(number, -1);
        useRecord(card, profile);
        const auto flights = static_cast<int>(cycle.flights.size());
        for (int flight = 0; flight < std::min(flights, 2); ++flight) {
            card.loadCycle(number, flight);
            useRecord(card, profile);
        }
    }
    card.loadFiles(names);
    useRecord(card, profile);
    return 0;
}
