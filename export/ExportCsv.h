#pragma once

#include "export/CsvExportOptions.h"
#include "export/ExportProgress.h"

#include <QString>

#include <cstddef>
#include <vector>

class QIODevice;

namespace VELIX {

class Profile;
class RecordData;
struct ProfileParameter;

/// Writes the decoded parameters of a record as a delimited text table, one row per time tick.
class ExportCsv
{
public:
    explicit ExportCsv(Profile& profile);

    void setProgress(ExportProgress progress);
    /// Writes the file of the options; 0 if it was not written (an old file is then kept).
    int exportData(const RecordData& record, const CsvExportOptions& options);
    /// The system's reason for the last failure, in its own words; none after a cancellation.
    const QString& lastError() const { return mLastError; }
    /// Whether the last export was cancelled.
    bool cancelled() const { return mCancelled; }
    /// Writes the table to an open device, UTF-8.
    /// False if it was cancelled or the device does not take it all.
    bool writeTable(const RecordData& record, const CsvExportOptions& options, QIODevice& out);
    /// The rows that exportData() would write, heading left out; decodes nothing.
    std::size_t rows(const RecordData& record, const CsvExportOptions& options) const;

private:
    std::vector<const ProfileParameter*> columns(const CsvExportOptions& options) const;

    Profile& mProfile;
    ExportProgress mProgress;
    QString mLastError;
    bool mCancelled = false;
};

} // namespace VELIX
