#pragma once

#include "gui/dialogs/ApplicationControl.h"
#include "gui/project/AppContext.h"

class QApplication;

namespace VELIX {

class DialogMain;

/// Holds the application object and the main window for what concerns the program as a whole.
class Kernel final : public ApplicationControl
{
public:
    static Kernel& instance();

    void setApplication(QApplication* application) { mApplication = application; }
    QApplication* application() const { return mApplication; }
    /// Null until start-up has made the window.
    void setMainWindow(DialogMain* window) { mMainWindow = window; }
    DialogMain* mainWindow() const { return mMainWindow; }

    /// The program's singletons and options, for the main window. The settings must have been read:
    /// the profile takes its unit system from them when it is first used.
    AppContext makeContext();

    /// Closes the main window, which saves the state of the run, and leaves the event loop even
    /// from within a dialog. False if the window refused.
    bool quit();

    void loadStyleFile(const QString& path) override;
    void restart() override;

private:
    DialogMain* mMainWindow = nullptr;
    QApplication* mApplication = nullptr;
};

} // namespace VELIX
