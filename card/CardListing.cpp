#include "card/CardListing.h"

#include "core/Diagnostics.h"
#include "core/Progress.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <iterator>

namespace VELIX {

namespace {

using Files = std::map<QString, RecordFile>;

bool isRecordFile(const QString& name)
{
    const QString extension = QFileInfo(name).suffix();
    return extension == QLatin1String("CAN") || extension == QLatin1String("can") ||
           extension == QLatin1String("xcb");
}

// Forward only: of a run of invalid dates just the last one finds a valid neighbour.
void repairDates(Files& files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        const auto next = std::next(file);
        const RecordInfo& info = file->second.recordInfo();
        if (next != files.end() && !info.dateTime.isValid()) {
            const auto stop = static_cast<qint64>(-(info.stopTime * 1000.0));
            file->second.setDateTime(next->second.recordInfo().dateTime.addMSecs(stop));
        }
    }
}

} // namespace

Files listRecordFiles(const QString& folder, Progress& progress)
{
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Unsorted);
    Diagnostics::print("CardContainer::readContainer: Path <%s> NrFiles %d\n",
                       folder.toUtf8().constData(), static_cast<int>(names.size()));
    Files files;
    for (const QString& name : names) {
        if (isRecordFile(name)) {
            RecordFile& file = files[name];
            file.readRecordInfo(QStringLiteral("%1/%2").arg(folder, name));
            file.setDateInvalid(!file.recordInfo().dateTime.isValid());
        }
        if (!progress.restart()) { // 0 for each file, kept for compatibility
            return files;
        }
    }
    repairDates(files);
    (void)progress.reach(100.0); // the caller sees whether that was cancelled
    return files;
}

std::map<std::uint32_t, RecordCycle> groupIntoCycles(const Files& files)
{
    std::map<std::uint32_t, RecordCycle> cycles;
    std::uint32_t number = 0;
    for (const auto& [name, file] : files) {
        const RecordInfo& info = file.recordInfo();
        if (info.dateInvalid) {
            RecordCycle& opened = cycles[++number];
            opened.name =
                QCoreApplication::translate("VELIX::CardContainer", "Cycle %1").arg(number);
            opened.dateTime = info.dateTime;
        }
        RecordCycle& cycle = cycles[number];
        cycle.files.push_back(file);
        cycle.stopTime = info.stopTime;
    }
    return cycles;
}

} // namespace VELIX
