#pragma once

#include "core/Outcome.h"
#include "export/CsvExportOptions.h"

#include <cstddef>
#include <vector>

class QIODevice;

namespace VELIX {

class Profile;
class Progress;
class RecordData;
struct ProfileParameter;

/// Writes the decoded parameters of a record as a delimited text table, one row per time tick.
class ExportCsv
{
public:
    explicit ExportCsv(const Profile& profile);

    /// Writes the file of the options. An export that fails, for the system's reason in its own
    /// words, or is cancelled keeps an old file.
    Outcome exportData(const RecordData& record, const CsvExportOptions& options,
                       Progress& progress);
    /// 1 for a success, else 0.
    int exportData(const RecordData& record, const CsvExportOptions& options);
    /// Writes the table to an open device, UTF-8.
    /// False if it was cancelled or the device does not take it all.
    bool writeTable(const RecordData& record, const CsvExportOptions& options, QIODevice& out,
                    Progress& progress);
    /// Counts the rows that exportData() would write, heading left out; decodes nothing.
    std::size_t rows(const RecordData& record, const CsvExportOptions& options) const;

private:
    std::vector<const ProfileParameter*> columns(const CsvExportOptions& options) const;

    const Profile& mProfile;
};

} // namespace VELIX
