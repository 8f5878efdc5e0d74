#pragma once

#include "export/wizard/ExportPathPage.h"

namespace VELIX {

struct CsvExportOptions;

/// Folder and file of the CSV export.
class DialogExportCsvPath : public ExportPathPage
{
    Q_OBJECT

public:
    DialogExportCsvPath(DialogService& dialogs, CsvExportOptions& options,
                        QWidget* parent = nullptr);

protected:
    QString chooserTitle() const override;
};

} // namespace VELIX
