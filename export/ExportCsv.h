#pragma once

#include "export/CsvExportOptions.h"

#include <QByteArray>

#include <vector>

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
    /// The text of the table, UTF-8.
    QByteArray table(const RecordData& record, const CsvExportOptions& options);

private:
    Profile& mProfile;
};

} // namespace VELIX
