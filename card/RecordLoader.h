#pragma once

#include "core/Outcome.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace VELIX {

class Progress;
class RecordData;
class RecordFile;

/// What a load has read.
struct LoadedRecord
{
    std::shared_ptr<RecordData> data; ///< null if the load was refused or cancelled
    QDateTime startDateTime;          ///< of the first file, UTC
    double startTime = 0.0;           ///< s: start of the first file
    double stopTime = 0.0;            ///< s: stop of the last file
    bool isLoaded = false;            ///< whether at least one file could be read
};

/// Reads record files into one record.
class RecordLoader
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::CardContainer)

public:
    struct Source
    {
        QString name;                     ///< as the caller gave it, with or without a folder
        const RecordFile* file = nullptr; ///< null if the card does not list it
    };

    /// memoryLimit: bytes that the record may need at most; 0 is any number.
    RecordLoader(std::uint64_t memoryLimit, Progress& progress)
        : mMemoryLimit(memoryLimit), mProgress(progress)
    {}

    /// Reads the files in the order of the list. Succeeds if at least one could be read, with a
    /// reason if another one could not. The record is untouched if the load is cancelled or refused
    /// before anything is read: because of the memory limit, or since no file can be opened.
    Outcome load(const std::vector<Source>& sources, LoadedRecord& record);

private:
    Outcome check(const std::vector<Source>& sources) const;
    bool read(const Source& source, RecordData& data);

    std::uint64_t mMemoryLimit;
    Progress& mProgress;
    QString mProblem; ///< with the file that could not be read last
};

} // namespace VELIX
