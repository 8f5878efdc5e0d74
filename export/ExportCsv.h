#pragma once

#include "export/CsvExportOptions.h"

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
    /// Writes the table to an open device, UTF-8; false if the device does not take it all.
    bool writeTable(const RecordData& record, const CsvExportOptions& options, QIODevice& out);

private:
    Profile& mProfile;
};

} // namespace VELIX
