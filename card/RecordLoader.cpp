#include "card/RecordLoader.h"

#include "card/RecordData.h"
#include "card/RecordFile.h"
#include "core/Diagnostics.h"
#include "core/Progress.h"

#include <QLocale>

#include <utility>

namespace VELIX {

namespace {

constexpr std::uint64_t kBytesPerEntry = 72; // of memory, an entry with its position in two lists

std::uint64_t entriesOf(const std::vector<RecordLoader::Source>& sources)
{
    std::uint64_t entries = 0;
    for (const RecordLoader::Source& source : sources) {
        entries += source.file == nullptr ? 0 : source.file->recordInfo().sampleCount;
    }
    return entries;
}

// A card that was pulled out must not cost the record that is shown. Names that the card never
// listed are no sign of that: they load nothing.
bool canOpenAny(const std::vector<RecordLoader::Source>& sources)
{
    bool anyListed = false;
    for (const RecordLoader::Source& source : sources) {
        if (source.file != nullptr && source.file->checkReadable()) {
            return true;
        }
        anyListed = anyListed || source.file != nullptr;
    }
    return !anyListed;
}

} // namespace

Outcome RecordLoader::check(const std::vector<Source>& sources) const
{
    const std::uint64_t entries = entriesOf(sources);
    if (mMemoryLimit != 0 && entries * kBytesPerEntry > mMemoryLimit) {
        Diagnostics::print("CardContainer::loadFiles: %llu entries exceed the memory limit\n",
                           static_cast<unsigned long long>(entries));
        return Outcome::failure(tr("The selection holds %1 samples, more than half of "
                                   "the free memory can take. Select fewer files.")
                                    .arg(QLocale().toString(static_cast<qulonglong>(entries))));
    }
    if (!canOpenAny(sources)) {
        return Outcome::failure(
            tr("None of the selected files can be opened. Is the card in its reader?"));
    }
    return Outcome::success();
}

Outcome RecordLoader::load(const std::vector<Source>& sources, LoadedRecord& record)
{
    Outcome start = check(sources);
    if (!start.ok) {
        return start;
    }
    mProblem.clear();
    LoadedRecord loading;
    loading.data = std::make_shared<RecordData>();
    for (const Source& source : sources) {
        loading.isLoaded = read(source, *loading.data) || loading.isLoaded;
        if (mProgress.cancelled()) {
            return Outcome::cancellation();
        }
        // The times of the file as a whole are those that the listing knows.
        const RecordInfo listed = source.file != nullptr ? source.file->recordInfo() : RecordInfo();
        if (&source == &sources.front()) {
            loading.startTime = listed.startTime;
            loading.startDateTime = listed.dateTime;
            Diagnostics::print("date valid %d\n", listed.dateTime.isValid() ? 1 : 0);
        }
        loading.stopTime = listed.stopTime;
    }
    // A file that ended early has still given what it had.
    loading.isLoaded = loading.isLoaded || loading.data->entryCount > 0;
    loading.data->startDateTime = loading.startDateTime;
    record = std::move(loading);
    return record.isLoaded ? Outcome::success(mProblem) : Outcome::failure(mProblem);
}

bool RecordLoader::read(const Source& source, RecordData& data)
{
    const bool known = source.file != nullptr;
    bool complete = false;
    if (known) {
        RecordFile reader = *source.file; // reading changes the times that a file holds
        complete = reader.readRecordData(data, mMemoryLimit, mProgress);
    }
    Diagnostics::print("load Files <%s>\n", source.name.toUtf8().constData());
    if (!complete) {
        const QString text = known ? tr("The file %1 could not be read completely.")
                                   : tr("The card has no file %1.");
        mProblem = text.arg(source.name.section(QLatin1Char('/'), -1));
    }
    return complete;
}

} // namespace VELIX
