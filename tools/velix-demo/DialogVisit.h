#pragma once

#include "tools/velix-demo/DemoScenes.h"

#include <QTimer>

class QWizard;

namespace VELIX {

class DemoStage;
class ScreenshotFolder;

/// One visit to a window or dialog: opens it, saves a screenshot of each page and closes it again.
/// A message box that comes up meanwhile is a failure, and is closed.
class DialogVisit
{
public:
    /// exports: existing folder for what wizards write
    DialogVisit(DemoStage& stage, ScreenshotFolder& screenshots, QString exports);

    /// Visits a dialog; false if something was not as a user would find it.
    [[nodiscard]] bool run(const DemoDialog& dialog);

private:
    void look();
    void visit(QWidget& window);
    QWidget* newWindow() const;
    bool capturePages(QWidget& window);
    bool captureWizard(QWizard& wizard);
    bool capture(QWidget& window, int page, int pages);
    void leave(QWidget& window);
    bool isWritten() const;

    DemoStage& mStage;
    ScreenshotFolder& mScreenshots;
    QString mExports;
    const DemoDialog* mDialog = nullptr;
    bool mVisited = false;
    QTimer mTimer; ///< runs in the dialogs' own event loops too
};

} // namespace VELIX
