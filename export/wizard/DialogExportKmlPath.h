#pragma once

#include "export/wizard/ExportPathPage.h"
#include "export/wizard/KmlSummarizer.h"

namespace VELIX {

/// Folder and file of the KML export; says at once if there is no path to be drawn.
class DialogExportKmlPath : public ExportPathPage
{
    Q_OBJECT

public:
    /// The options and the summarizer belong to the wizard.
    DialogExportKmlPath(DialogService& dialogs, KmlExportOptions& options,
                        const KmlSummarizer& summarizer, QWidget* parent = nullptr);

    void initializePage() override;

protected:
    QString chooserTitle() const override;

private:
    const KmlExportOptions& mOptions;
    const KmlSummarizer& mSummarizer;
};

} // namespace VELIX
