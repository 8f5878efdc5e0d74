#pragma once

#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "gui/ExportProgressBox.h"
#include "gui/project/AppContext.h"

#include <QObject>

class QWidget;

namespace VELIX {

class DialogExportCsv;
class DialogExportKml;
class DialogService;

/// Takes an export from its menu entry to the written file: the wizard, the writing with its
/// progress, and the report of the outcome to the user.
class ExportController : public QObject
{
    Q_OBJECT

public:
    /// window: the parent of boxes and wizards; it outlives this.
    ExportController(const AppContext& context, DialogService& dialogs, QWidget* window);

    void exportKml();
    void exportCsv();
    /// Whether a file is being written. What is loaded must stay as it is until that ends.
    bool isWriting() const { return mWriting; }

    /// The file name that is offered for a card: that of its folder, up to the first dot.
    static QString kmlFileName(const QString& cardPath);

    /// Sets how long an export may take until its progress is shown, in ms.
    void setPatience(int milliseconds) { mPatience = milliseconds; }

signals:
    /// A result or a failure in words; it replaces the one before.
    void signalNotice(const QString& sentence);

private:
    template <typename Engine, typename Options>
    bool write(Engine& engine, const Options& options, const QString& title);

    AppContext mContext;
    DialogService& mDialogs;
    QWidget* mWindow;
    int mPatience = ExportProgressBox::kPatienceMs;
    ExportKml mExportKml;
    ExportCsv mExportCsv;
    DialogExportKml* mDialogExportKml;
    DialogExportCsv* mDialogExportCsv;
    bool mWriting = false;
};

} // namespace VELIX
