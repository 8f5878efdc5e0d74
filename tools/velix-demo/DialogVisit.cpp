#include "tools/velix-demo/DialogVisit.h"

#include "gui/DialogMain.h"
#include "tools/velix-demo/DemoStage.h"
#include "tools/velix-demo/ScreenshotFolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWizard>

#include <algorithm>
#include <utility>

namespace VELIX {

namespace {

constexpr int kLookMs = 50;
constexpr int kSettleMs = 200; ///< a window has its final layout

} // namespace

DialogVisit::DialogVisit(DemoStage& stage, ScreenshotFolder& screenshots, QString exports)
    : mStage(stage), mScreenshots(screenshots), mExports(std::move(exports))
{
    mTimer.setInterval(kLookMs);
    QObject::connect(&mTimer, &QTimer::timeout, [this] { look(); });
}

bool DialogVisit::run(const DemoDialog& dialog)
{
    mDialog = &dialog;
    mVisited = false;
    mTimer.start();
    const QString name = QLatin1String(dialog.name);
    const bool done =
        dialog.open(mStage) &&
        mStage.waitFor([this] { return mVisited; }, QStringLiteral("%1 did not open.").arg(name));
    mTimer.stop();
    if (done && dialog.writes != nullptr && !isWritten()) {
        return mStage.fail(QStringLiteral("%1 wrote nothing.").arg(name));
    }
    return done && mStage.error().isEmpty();
}

void DialogVisit::look()
{
    QWidget* window = newWindow();
    if (window == nullptr) {
        return;
    }
    if (!mVisited) {
        mTimer.stop(); // screenshots run the event loop
        visit(*window);
        mTimer.start();
    } else if (auto* box = qobject_cast<QMessageBox*>(window)) {
        mStage.fail(box->text());
        box->reject();
    }
}

QWidget* DialogVisit::newWindow() const
{
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const Qt::WindowType type = window->windowType();
        if (window != &mStage.window() && window->isVisible() &&
            (type == Qt::Dialog || type == Qt::Window)) {
            return window;
        }
    }
    return nullptr;
}

void DialogVisit::visit(QWidget& window)
{
    QApplication::setActiveWindow(&window); // a virtual display has no window manager to do it
    DemoStage::runEventsFor(kSettleMs);
    if (auto* path = window.findChild<QLineEdit*>(QStringLiteral("exportPath"))) {
        path->setText(mExports);
    }
    auto* wizard = qobject_cast<QWizard*>(&window);
    const bool done = wizard != nullptr ? captureWizard(*wizard) : capturePages(window);
    mVisited = true;
    if (done && wizard != nullptr && mDialog->end == DemoDialog::End::Accept) {
        wizard->button(QWizard::FinishButton)->click();
    } else {
        leave(window);
    }
}

bool DialogVisit::captureWizard(QWizard& wizard)
{
    const int pages = wizard.pageIds().size();
    for (int page = 1;; ++page) {
        if (!capture(wizard, page, pages)) {
            return false;
        }
        if (wizard.nextId() == -1) {
            return true;
        }
        const int before = wizard.currentId();
        wizard.next();
        if (wizard.currentId() == before) {
            return mStage.fail(QStringLiteral("%1 refuses what is on page %2.")
                                   .arg(QLatin1String(mDialog->name))
                                   .arg(page));
        }
    }
}

/// Saves the pages of a list or a row of tabs in turn.
bool DialogVisit::capturePages(QWidget& window)
{
    auto* tabs = window.findChild<QTabWidget*>();
    auto* list = window.findChild<QListWidget*>();
    int pages = 1;
    if (tabs != nullptr) {
        pages = tabs->count();
    } else if (list != nullptr && window.findChild<QStackedWidget*>() != nullptr) {
        pages = list->count();
    }
    pages = std::clamp(pages, 1, mDialog->pages); // the list may be empty
    for (int page = 1; page <= pages; ++page) {
        if (tabs != nullptr && pages > 1) {
            tabs->setCurrentIndex(page - 1);
        } else if (pages > 1) {
            list->setCurrentRow(page - 1);
        }
        if (!capture(window, page, pages)) {
            return false;
        }
    }
    return true;
}

/// Saves a screenshot of a page, counted from 1.
bool DialogVisit::capture(QWidget& window, int page, int pages)
{
    DemoStage::runEventsFor(kSettleMs);
    const bool forManual = mScreenshots.kind() == ScreenshotFolder::Kind::Manual;
    if (forManual && page != mDialog->manualPage) {
        return true;
    }
    QString name = QLatin1String(mDialog->name);
    QString caption = QLatin1String(mDialog->caption);
    if (pages > 1 && !forManual) {
        name += QStringLiteral("-%1").arg(page);
        caption += QStringLiteral(", page %1").arg(page);
    }
    return mScreenshots.add(window, name, caption) ||
           mStage.fail(QStringLiteral("The picture %1 could not be written.").arg(name));
}

void DialogVisit::leave(QWidget& window)
{
    if (auto* dialog = qobject_cast<QDialog*>(&window)) {
        dialog->reject();
    } else {
        window.close();
    }
}

bool DialogVisit::isWritten() const
{
    const QString pattern = QStringLiteral("*.") + QLatin1String(mDialog->writes);
    const QFileInfoList files = QDir(mExports).entryInfoList({pattern}, QDir::Files);
    return !files.isEmpty() && files.first().size() > 0;
}

} // namespace VELIX
