#include "export/wizard/DialogExportKmlPath.h"

namespace VELIX {

DialogExportKmlPath::DialogExportKmlPath(DialogService& dialogs, KmlExportOptions& options,
                                         const KmlSummarizer& summarizer, QWidget* parent)
    : ExportPathPage(dialogs, options.directory, options.fileName, parent),
      mOptions(options),
      mSummarizer(summarizer)
{
    setTitle(tr("KML Export"));
    setFileHint(tr("A name that ends in \".kmz\" makes a compressed file."));
}

void DialogExportKmlPath::initializePage()
{
    ExportPathPage::initializePage();
    setRemark(mSummarizer(mOptions).hasPositions
                  ? QString()
                  : tr("This record has no positions. The file will have no flight path."));
}

QString DialogExportKmlPath::chooserTitle() const
{
    return tr("Save KML Export");
}

} // namespace VELIX
