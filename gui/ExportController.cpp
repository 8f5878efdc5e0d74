#include "gui/ExportController.h"

#include "card/CardContainer.h"
#include "core/Progress.h"
#include "core/Property.h"
#include "export/OutputFile.h"
#include "export/wizard/DialogExportCsv.h"
#include "export/wizard/DialogExportKml.h"
#include "gui/dialogs/DialogService.h"
#include "profile/Profile.h"

#include <QDir>
#include <QScopedValueRollback>

namespace VELIX {

ExportController::ExportController(const AppContext& context, DialogService& dialogs,
                                   QWidget* window)
    : QObject(window),
      mContext(context),
      mDialogs(dialogs),
      mWindow(window),
      mExportKml(context.profile),
      mExportCsv(context.profile),
      mDialogExportKml(new DialogExportKml(
          context.settings, dialogs,
          [this](const KmlExportOptions& options) {
              return mExportKml.summary(mContext.card.recordData(), options);
          },
          window)),
      mDialogExportCsv(new DialogExportCsv(
          context.settings, dialogs,
          [this](const CsvExportOptions& options) {
              return mExportCsv.rows(mContext.card.recordData(), options);
          },
          window))
{}

/// False for a failure, which the user has to know of; a cancelled export is none.
template <typename Engine, typename Options>
bool ExportController::write(Engine& engine, const Options& options, const QString& title)
{
    const QString file = absoluteOutputPath(options.directory, options.fileName);
    Outcome outcome;
    {
        const QScopedValueRollback<bool> writing(mWriting, true);
        ExportProgressBox box(mWindow, title, tr("Writing %1").arg(file), mPatience);
        Progress progress([&box](int percent) { return box.report(percent); });
        outcome = engine.exportData(mContext.card.recordData(), options, progress);
    }
    if (outcome.cancelled) {
        emit signalNotice(tr("The export was cancelled. Nothing was written."));
        return true;
    }
    if (!outcome.ok) {
        emit signalNotice(tr("The file %1 could not be written: %2").arg(file, outcome.reason));
        return false;
    }
    emit signalNotice(tr("Written to %1").arg(file));
    return true;
}

QString ExportController::kmlFileName(const QString& cardPath)
{
    const QString folder = QDir::cleanPath(cardPath).section(QLatin1Char('/'), -1);
    const QString name = folder.section(QLatin1Char('.'), 0, 0);
    return (name.isEmpty() ? QStringLiteral("ExportVelix") : name) + QStringLiteral(".kml");
}

void ExportController::exportKml()
{
    KmlExportOptions options;
    options.fileName =
        kmlFileName(QString::fromStdString(mContext.settings.getString("LastPath", {})))
            .toStdString();
    options.parameters = mContext.profile.selectedParameters();
    if (mDialogExportKml->getOptions(options) && !write(mExportKml, options, tr("KML Export"))) {
        mDialogs.critical(mWindow, tr("VELIX Warning"), tr("Exporting KML file failed !"));
    }
}

void ExportController::exportCsv()
{
    CsvExportOptions options;
    if (mDialogExportCsv->getOptions(options) && !write(mExportCsv, options, tr("CSV Export"))) {
        mDialogs.critical(mWindow, tr("VELIX Viewer Warning"), tr("Exporting CSV file failed !"));
    }
}

} // namespace VELIX
