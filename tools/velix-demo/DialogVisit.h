#pragma once

#include "tools/velix-demo/DemoScenes.h"

#include <QTimer>

class QWizard;

namespace VELIX {

class DemoStage;
class PictureBook;

/// One visit to a window or dialog: has it opened, pictures its pages and leaves it again. A
/// message box that comes up meanwhile is a failure, and is closed.
class DialogVisit
{
public:
    /// exports: existing folder for what wizards write.
    DialogVisit(DemoStage& stage, PictureBook& book, QString exports);

    [[nodiscard]] bool run(const DemoDialog& dialog);

private:
    void look();
    void visit(QWidget& window);
    QWidget* newWindow() const;
    bool picturePages(QWidget& window);
    bool pictureWizard(QWizard& wizard);
    bool picture(QWidget& window, int page, int pages);
    void leave(QWidget& window);
    bool isWritten() const;

    DemoStage& mStage;
    PictureBook& mBook;
    QString mExports;
    const DemoDialog* mDialog = nullptr;
    bool mVisited = false;
    QTimer mTimer; ///< runs in the dialogs' own event loops too
};

} // namespace VELIX
