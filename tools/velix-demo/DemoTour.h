#pragma once

#include "tools/velix-demo/DemoDialogs.h"

#include <QString>

#include <functional>

class QWidget;

namespace VELIX {

class DialogExportCsv;
class DialogMain;
struct AppContext;

/// One visit to the program: opens the window, loads the first cycle and its first flight, replays
/// a little, exports a table, and saves a picture at each stop.
class DemoTour
{
public:
    /// \param folder for pictures and the table.
    /// \param suffix ends the names of the pictures, so that several tours can share a folder.
    DemoTour(QString folder, QString suffix);

    /// False if something was not as a user would find it; error() then says what.
    [[nodiscard]] bool run(AppContext& context);
    const QString& error() const { return mError; }

private:
    bool loadFlight(DialogMain& window);
    bool replay(DialogMain& window);
    bool exportTable(DialogMain& window);
    bool driveWizard(DialogExportCsv& wizard);
    bool save(QWidget& widget, const QString& name);
    bool waitFor(const std::function<bool()>& condition, const QString& sentence);
    bool fail(const QString& sentence);

    QString mFolder;
    QString mSuffix;
    QString mError;
    DemoDialogs mDialogs;
};

} // namespace VELIX
