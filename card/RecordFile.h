#pragma once

#include "card/RecordInfo.h"

#include <QString>

#include <cstdint>

namespace VELIX {

class Progress;
class RecordData;
class RecordFieldReader;

/// Reads one record file: a 128-byte header and 28-byte entries in either byte order.
class RecordFile
{
public:
    const RecordInfo& recordInfo() const { return mInfo; }
    void setRecordInfo(const RecordInfo& info) { mInfo = info; }
    void setDateTime(const QDateTime& dateTime) { mInfo.dateTime = dateTime; }
    void setDateInvalid(bool invalid) { mInfo.dateInvalid = invalid; }

    /// Reads the header and the times of the first and last entry. False, with a diagnostic, if
    /// the file cannot be opened; then only the path is kept. Fields past the end are 0 or empty.
    bool readRecordInfo(const QString& path);
    /// Returns whether the file can be opened now; if not, the diagnostics say so.
    bool checkReadable() const;
    /// Appends all entries of the file to `data` and widens its and the file's time span. False if
    /// the file cannot be opened (`data` is unchanged) or memory runs out.
    /// Also false, with the entries so far, once `data` takes more than memoryLimit bytes (0: any)
    /// or the progress, which counts from 0 to 100 for this file, is cancelled.
    bool readRecordData(RecordData& data, std::uint64_t memoryLimit, Progress& progress);
    bool readRecordData(RecordData& data);

private:
    void readInfo(RecordFieldReader& in, bool setTimes);
    void reportUnreadable() const;
    bool readData(RecordFieldReader& in, RecordData& data, std::uint64_t memoryLimit,
                  Progress& progress);

    RecordInfo mInfo;
    std::int64_t mCount = 0; ///< whole entries in the file
};

} // namespace VELIX
