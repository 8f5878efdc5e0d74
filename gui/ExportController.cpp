#include "gui/ExportController.h"

#include "card/CardContainer.h"
#include "export/DialogExportCsv.h"
#include "gui/DialogService.h"

#include <QDir>

namespace VELIX {

ExportController::ExportController(const AppContext& context, DialogService& dialogs,
                                   QWidget* window)
    : QObject(window),
      mContext(context),
      mDialogs(dialogs),
      mWindow(window),
      mDialogExportCsv(new DialogExportCsv(context.settings, dialogs, window))
{}

void ExportController::takeProfile()
{
    mProfile = mContext.profile;
}

/// False for a failure that the user has to be told; a cancelled export is none.
template <typename Engine, typename Options>
bool ExportController::write(Engine& engine, const Options& options, const QString& title)
{
    const QDir folder(QString::fromStdString(options.directory));
    const QString file = folder.absoluteFilePath(QString::fromStdString(options.fileName));
    int written = 0;
    {
        ExportProgressBox box(mWindow, title, tr("Writing %1").arg(file), mPatience);
        written = engine.exportData(mContext.card.recordData(), options);
    }
    if (written == 0) {
        emit signalNotice(engine.lastError());
        return false;
    }
    emit signalNotice(tr("Written to %1").arg(file));
    return true;
}

void ExportController::exportCsv()
{
    takeProfile();
    CsvExportOptions options;
    if (mDialogExportCsv->getOptions(options) && !write(mExportCsv, options, tr("CSV Export"))) {
        mDialogs.critical(mWindow, tr("VELIX Viewer Warning"), tr("Exporting CSV file failed !"));
    }
}

} // namespace VELIX
