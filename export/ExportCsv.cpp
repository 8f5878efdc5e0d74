#include "export/ExportCsv.h"

#include "card/SampleWalk.h"
#include "core/Progress.h"
#include "export/CsvField.h"
#include "export/OutputFile.h"
#include "profile/Profile.h"

#include <QIODevice>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace VELIX {

namespace {

constexpr double kColumnsRead = 60.0; // per cents of an export at which the rows begin

/// The samples of one column: at most one text a tick, texts end to end in one buffer.
struct Column
{
    struct Cell
    {
        std::uint64_t tick;
        std::size_t begin;
        std::size_t end;
    };
    std::string header;
    std::string texts;
    std::vector<Cell> cells; ///< by tick
};

/// A settings file can ask for any number; what is no whole part of a second counts as 100 ms.
int validResolution(int milliseconds)
{
    const bool valid = milliseconds > 0 && milliseconds <= 1000 && 1000 % milliseconds == 0;
    return valid ? milliseconds : CsvExportOptions().resolution;
}

std::uint64_t tickOf(double time, int resolution)
{
    const double tick = time * 1000.0 / resolution + 0.5;
    if (!(tick > 0.0)) {
        return 0;
    }
    constexpr double kBeyond = 18446744073709551616.0;
    return tick < kBeyond ? static_cast<std::uint64_t>(tick)
                          : std::numeric_limits<std::uint64_t>::max();
}

/// The ticks that have a sample, rising.
std::vector<std::uint64_t> ticksOf(const EntryList& entries, int resolution)
{
    std::vector<std::uint64_t> ticks;
    ticks.reserve(entries.size());
    for (const RecordEntry& entry : entries) {
        ticks.push_back(tickOf(entry.time, resolution));
    }
    if (!entries.isSorted()) {
        std::sort(ticks.begin(), ticks.end());
    }
    ticks.erase(std::unique(ticks.begin(), ticks.end()), ticks.end());
    return ticks;
}

Column fillColumn(const RecordData& record, const ProfileParameter& p, int resolution,
                  const Profile& profile)
{
    const ProfileDecoder decoder = profile.decoder();
    Column column;
    column.header = profile.format(p).label(NumberFormat::EUnitOf::Text).toStdString();
    column.cells.reserve(record.entries(p).size());
    forEachSample(record, p, profile, [&](const ParameterSample& sample) {
        const std::size_t begin = column.texts.size();
        decoder.appendText(sample, column.texts);
        column.cells.push_back(
            {tickOf(sample.entry().time, resolution), begin, column.texts.size()});
    });
    const auto earlier = [](const Column::Cell& a, const Column::Cell& b) {
        return a.tick < b.tick;
    };
    if (!std::is_sorted(column.cells.begin(), column.cells.end(), earlier)) {
        std::stable_sort(column.cells.begin(), column.cells.end(), earlier);
    }
    // Of several samples in one tick the last one counts.
    std::size_t kept = 0;
    for (std::size_t i = 0; i < column.cells.size(); ++i) {
        if (i + 1 == column.cells.size() || column.cells[i + 1].tick != column.cells[i].tick) {
            column.cells[kept++] = column.cells[i];
        }
    }
    column.cells.resize(kept);
    return column;
}

/// Merges columns into rows and writes them.
class TableWriter
{
public:
    TableWriter(const std::vector<Column>& columns, const CsvExportOptions& options,
                Progress& progress)
        : mColumns(columns), mOptions(options), mProgress(progress), mNext(columns.size(), 0)
    {
        for (const Column& column : columns) {
            mCells += column.cells.size();
        }
    }

    bool write(QIODevice& out)
    {
        writeHeader();
        for (std::uint64_t tick = 0; nextTick(tick);) {
            writeTime(tick);
            for (std::size_t column = 0; column < mColumns.size(); ++column) {
                writeCell(column, tick);
            }
            mBuffer.push_back('\n');
            if (mBuffer.size() >= kFlushSize && !flush(out)) {
                return false;
            }
        }
        return flush(out);
    }

private:
    static constexpr std::size_t kFlushSize = std::size_t{1} << 20U;

    bool flush(QIODevice& out)
    {
        const auto size = static_cast<qint64>(mBuffer.size());
        const bool written = out.write(mBuffer.data(), size) == size;
        mBuffer.clear();
        return written && mProgress.reach(kColumnsRead, 100.0, mWritten, mCells);
    }

    /// Only the aligned form quotes; the other one is kept for compatibility.
    void appendField(std::string_view text)
    {
        if (mOptions.aligned) {
            appendCsvField(text, mOptions.delimiter, mBuffer);
        } else {
            mBuffer += text;
        }
    }

    void writeHeader()
    {
        mBuffer += "Time";
        for (const Column& column : mColumns) {
            mBuffer.push_back(mOptions.delimiter);
            appendField(column.header);
        }
        mBuffer.push_back('\n');
    }

    /// The earliest tick that no row has yet.
    bool nextTick(std::uint64_t& tick) const
    {
        bool found = false;
        for (std::size_t i = 0; i < mColumns.size(); ++i) {
            const std::vector<Column::Cell>& cells = mColumns[i].cells;
            if (mNext[i] < cells.size() && (!found || cells[mNext[i]].tick < tick)) {
                tick = cells[mNext[i]].tick;
                found = true;
            }
        }
        return found;
    }

    void writeTime(std::uint64_t tick)
    {
        const auto perSecond = static_cast<std::uint64_t>(1000 / mOptions.resolution);
        const std::uint64_t seconds = tick / perSecond;
        const std::uint64_t milliseconds =
            tick % perSecond * static_cast<std::uint64_t>(mOptions.resolution);
        char text[48];
        const int length =
            std::snprintf(text, sizeof(text), "%llu:%02u:%02u.%03u",
                          static_cast<unsigned long long>(seconds / 3600),
                          static_cast<unsigned>(seconds / 60 % 60),
                          static_cast<unsigned>(seconds % 60), static_cast<unsigned>(milliseconds));
        mBuffer.append(text, static_cast<std::size_t>(length));
    }

    void writeCell(std::size_t index, std::uint64_t tick)
    {
        const Column& column = mColumns[index];
        std::size_t& next = mNext[index];
        const bool present = next < column.cells.size() && column.cells[next].tick == tick;
        if (present || mOptions.aligned) {
            mBuffer.push_back(mOptions.delimiter);
        }
        if (present) {
            const Column::Cell& cell = column.cells[next++];
            ++mWritten;
            appendField(std::string_view(column.texts).substr(cell.begin, cell.end - cell.begin));
        }
    }

    const std::vector<Column>& mColumns;
    const CsvExportOptions& mOptions;
    Progress& mProgress;
    std::size_t mCells = 0;
    std::size_t mWritten = 0;       ///< of the cells
    std::vector<std::size_t> mNext; ///< per column: its first cell that is not written yet
    std::string mBuffer;
};

} // namespace

ExportCsv::ExportCsv(const Profile& profile) : mProfile(profile) {}

std::vector<const ProfileParameter*> ExportCsv::columns(const CsvExportOptions& options) const
{
    std::vector<const ProfileParameter*> columns;
    for (const ProfileDevice& device : mProfile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            if (options.allParameters || p.selected) {
                columns.push_back(&p);
            }
        }
    }
    return columns;
}

bool ExportCsv::writeTable(const RecordData& record, const CsvExportOptions& options,
                           QIODevice& out, Progress& progress)
{
    CsvExportOptions valid = options;
    valid.resolution = validResolution(options.resolution);
    const std::vector<const ProfileParameter*> parameters = columns(options);
    std::vector<Column> filled;
    filled.reserve(parameters.size());
    bool written = true;
    for (const ProfileParameter* p : parameters) {
        written = written && progress.reach(0.0, kColumnsRead, filled.size(), parameters.size());
        if (written) {
            filled.push_back(fillColumn(record, *p, valid.resolution, mProfile));
        }
    }
    written = written && TableWriter(filled, valid, progress).write(out);
    return written;
}

int ExportCsv::exportData(const RecordData& record, const CsvExportOptions& options)
{
    Progress nobody;
    return exportData(record, options, nobody).ok ? 1 : 0;
}

Outcome ExportCsv::exportData(const RecordData& record, const CsvExportOptions& options,
                              Progress& progress)
{
    return writeExport(
        outputPath(options.directory, options.fileName),
        [&](QIODevice& out) { return writeTable(record, options, out, progress); }, progress);
}

std::size_t ExportCsv::rows(const RecordData& record, const CsvExportOptions& options) const
{
    const int resolution = validResolution(options.resolution);
    std::set<int> counted; // lanes share identifiers
    std::vector<std::uint64_t> all;
    for (const ProfileParameter* p : columns(options)) {
        if (!counted.insert(p->id).second) {
            continue;
        }
        const std::vector<std::uint64_t> own = ticksOf(record.entries(*p), resolution);
        std::vector<std::uint64_t> both;
        both.reserve(all.size() + own.size());
        std::set_union(all.begin(), all.end(), own.begin(), own.end(), std::back_inserter(both));
        all = std::move(both);
    }
    return all.size();
}

} // namespace VELIX
