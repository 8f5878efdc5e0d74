#pragma once

#include "export/CsvExportOptions.h"

#include <QString>

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

    /// Writes the file of the options; 0 if it could not be written (an old file is then kept).
    int exportData(const RecordData& record, const CsvExportOptions& options);
    /// The system's reason for the last failure, in its own words.
    const QString& lastError() const { return mLastError; }
    /// Writes the table to an open device, UTF-8; false if the device does not take it all.
    bool writeTable(const RecordData& record, const CsvExportOptions& options, QIODevice& out);

private:
    Profile& mProfile;
    QString mLastError;
};

} // namespace VELIX
