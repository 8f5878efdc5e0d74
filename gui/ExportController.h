#pragma once

#include "export/ExportCsv.h"
#include "gui/AppContext.h"
#include "gui/ExportProgressBox.h"
#include "profile/Profile.h"

#include <QObject>

#include <functional>

class QWidget;

namespace VELIX {

class DialogExportCsv;
class DialogService;

/// What happens from the menu entry of an export to the written file: the wizard, the writing with
/// its progress, and what the user is told of the outcome.
class ExportController : public QObject
{
    Q_OBJECT

public:
    /// window: what boxes and wizards stand before; it outlives this.
    ExportController(const AppContext& context, DialogService& dialogs, QWidget* window);

    void exportCsv();

    /// How long an export may take until its progress is shown, in ms.
    void setPatience(int milliseconds) { mPatience = milliseconds; }

signals:
    /// A result or a failure in words; it replaces the one before.
    void signalNotice(const QString& sentence);

private:
    template <typename Engine, typename Options>
    bool write(Engine& engine, const Options& options, const QString& title);
    void takeProfile();

    AppContext mContext;
    DialogService& mDialogs;
    QWidget* mWindow;
    int mPatience = ExportProgressBox::kPatienceMs;
    /// The profile as it was when the export began. Timers run while progress is shown, and a
    /// replay that goes on decodes positions, whose filter an export must have for itself.
    Profile mProfile;
    ExportCsv mExportCsv{mProfile};
    DialogExportCsv* mDialogExportCsv;
};

} // namespace VELIX
