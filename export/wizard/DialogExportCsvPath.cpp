#include "export/wizard/DialogExportCsvPath.h"

#include "export/CsvExportOptions.h"

namespace VELIX {

DialogExportCsvPath::DialogExportCsvPath(DialogService& dialogs, CsvExportOptions& options,
                                         QWidget* parent)
    : ExportPathPage(dialogs, options.directory, options.fileName, parent)
{
    setTitle(tr("CSV Export"));
}

QString DialogExportCsvPath::chooserTitle() const
{
    return tr("Save CSV Export");
}

} // namespace VELIX
