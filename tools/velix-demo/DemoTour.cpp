#include "tools/velix-demo/DemoTour.h"

#include "export/DialogExportCsv.h"
#include "gui/AppContext.h"
#include "gui/DialogMain.h"
#include "gui/DialogStatusBar.h"
#include "gui/MainActions.h"
#include "views/DialogData.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLineEdit>
#include <QTableWidget>
#include <QThread>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <utility>

namespace VELIX {

namespace {

constexpr int kPatienceMs = 30000;
constexpr unsigned long kPollMs = 10;
constexpr int kSettleMs = 1200; ///< start-up sizes its panes one second after the window came up
constexpr double kReplaySeconds = 1.5;

void runEventsFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) {
        QApplication::processEvents();
        QThread::msleep(kPollMs);
    }
}

} // namespace

DemoTour::DemoTour(QString folder, QString suffix)
    : mFolder(std::move(folder)), mSuffix(std::move(suffix))
{}

bool DemoTour::run(AppContext& context)
{
    DialogMain window(context, mDialogs);
    QApplication::setActiveWindow(&window); // a virtual display has no window manager to do it
    runEventsFor(kSettleMs);
    return save(window, QStringLiteral("start")) && loadFlight(window) && replay(window) &&
           exportTable(window);
}

bool DemoTour::loadFlight(DialogMain& window)
{
    const auto* status = window.findChild<DialogStatusBar*>();
    auto* cycles = window.findChild<QTreeWidget*>(QStringLiteral("treeCycles"));
    if (!waitFor([&] { return cycles->topLevelItemCount() > 0; },
                 QStringLiteral("No cycle is listed; is there a card in \"LastPath\"?"))) {
        return false;
    }
    QTreeWidgetItem* cycle = cycles->topLevelItem(0);
    cycles->setCurrentItem(cycle);
    if (!waitFor([&] { return cycle->childCount() > 0; },
                 QStringLiteral("No flight was found in the first cycle."))) {
        return false;
    }
    const QString whole = status->loaded();
    cycles->setCurrentItem(cycle->child(0));
    if (!waitFor([&] { return status->loaded() != whole; },
                 QStringLiteral("The first flight was not loaded."))) {
        return false;
    }
    const auto* view = window.findChild<QWidget*>(QStringLiteral("viewTable"));
    const auto* table = view != nullptr ? view->findChild<QTableWidget*>() : nullptr;
    if (table == nullptr || table->rowCount() == 0 || table->columnCount() < 2) {
        return fail(QStringLiteral("The table is empty; does the project select parameters?"));
    }
    return true;
}

bool DemoTour::replay(DialogMain& window)
{
    const auto* data = window.findChild<DialogData*>();
    auto* button = window.findChild<QToolButton*>(QStringLiteral("buttonReplay"));
    const double start = data->cursorTime();
    button->click();
    if (!waitFor([&] { return data->cursorTime() > start + kReplaySeconds; },
                 QStringLiteral("The replay does not move the cursor."))) {
        return false;
    }
    button->click();
    return save(window, QStringLiteral("main"));
}

bool DemoTour::exportTable(DialogMain& window)
{
    auto* wizard = window.findChild<DialogExportCsv*>();
    bool driven = false;
    QTimer::singleShot(0, wizard, [&] {
        driven = driveWizard(*wizard);
        if (!driven) {
            wizard->reject(); // ends its event loop
        }
    });
    window.findChild<MainActions*>()->action(eActionExportCsv)->trigger();
    if (!driven) {
        return false;
    }
    if (!mDialogs.complaint().isEmpty()) {
        return fail(mDialogs.complaint());
    }
    const QFileInfo table(QDir(mFolder), QString::fromStdString(wizard->options().fileName));
    return table.size() > 0 || fail(QStringLiteral("The table was not exported."));
}

bool DemoTour::driveWizard(DialogExportCsv& wizard)
{
    wizard.findChild<QLineEdit*>(QStringLiteral("exportPath"))->setText(mFolder);
    if (!save(wizard, QStringLiteral("csv-path"))) {
        return false;
    }
    wizard.next();
    if (wizard.nextId() != -1) {
        return fail(QStringLiteral("The CSV wizard refuses the folder %1.").arg(mFolder));
    }
    if (!save(wizard, QStringLiteral("csv-options"))) {
        return false;
    }
    wizard.accept();
    return true;
}

bool DemoTour::save(QWidget& widget, const QString& name)
{
    QApplication::processEvents(); // what was just changed is painted
    const QString file =
        QDir(mFolder).filePath(QStringLiteral("velix-%1%2.png").arg(name, mSuffix));
    return widget.grab().save(file) ||
           fail(QStringLiteral("The picture %1 could not be written.").arg(file));
}

bool DemoTour::waitFor(const std::function<bool()>& condition, const QString& sentence)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > kPatienceMs) {
            return fail(sentence);
        }
        QApplication::processEvents();
        QThread::msleep(kPollMs);
    }
    return true;
}

bool DemoTour::fail(const QString& sentence)
{
    if (mError.isEmpty()) {
        mError = sentence;
    }
    return false;
}

} // namespace VELIX
