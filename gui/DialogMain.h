#pragma once

#include "gui/ProjectController.h"
#include "gui/profile/ProfileController.h"
#include "gui/project/AppContext.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <list>
#include <map>

class DialogHelp;
class QAction;

namespace VELIX {

class CardController;
class CardLoader;
class DialogAbout;
class DialogPreferences;
class DialogProfileInfo;
class DialogService;
class DialogStatusBar;
class ExportController;
class MainActions;
class MainMenuBar;
class MainPanes;
class MainToolBar;
class PrintController;

/// The program's main window: it owns all dialogs and the data window, and passes on between them
/// what the user opens, selects and switches.
class DialogMain : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows itself; card and project of the last run follow a moment later.
    explicit DialogMain(AppContext& context);
    DialogMain(AppContext& context, DialogService& dialogs);
    ~DialogMain() override;

    /// Shows how far the current work is: 0 to 100.
    void setProgress(int percent);

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void slotMenu(QAction* action);
    /// Does nothing: each menu opens its entries itself, since it knows what they are.
    void slotMenuRecent(QAction* /*action*/) {}
    void slotMenuPrefAbout() { updateEnabled(); }
    void slotLoadRecord(const std::list<QString>& files);
    void slotLoadCycle(unsigned int cycle, int flight);
    void slotCanChanged() { updateEnabled(); }
    void slotProfileChanged();
    void slotProfileChanged(const QString& variant);
    void slotProfileFileChanged();
    void slotUnitChanged(int unit);
    void slotVelixMode(int /*mode*/) { reloadCard(); }
    void slotCheckStyle();
    void slotTimeout();
    void slotTimeoutStartup();

private:
    QSize startSize() const;
    void createPanes();
    void createDialogs();
    void createActions();
    void createHandlers();
    void createMenu();
    void createToolbar();
    void createStatusBar();
    void connectOpening();
    void startTimers();

    bool loadRecords(const QString& path);
    void reloadCard();
    void openProject(const QString& path);
    void finishOpening(const Outcome& opened);
    void finishSaving(const Outcome& saved);
    void loadProfile();
    void fillProfiles();
    void updateProfiles();
    void updateUnit();
    void updateTitle();
    void updateEnabled();
    void cleanup() { mProjects.saveOnQuit(); }

    AppContext mContext;
    DialogService& mDialogs;
    ProfileController mProfiles;
    ProjectController mProjects;
    QTimer mTimerStart;

    MainPanes* mPanes = nullptr;
    ExportController* mExports = nullptr;
    DialogProfileInfo* mDialogProfileInfo = nullptr;
    PrintController* mPrints = nullptr;
    DialogAbout* mDialogAbout = nullptr;
    DialogHelp* mDialogHelp = nullptr;
    DialogPreferences* mDialogPreferences = nullptr;
    DialogStatusBar* mStatusBar = nullptr;
    CardLoader* mLoader = nullptr;
    CardController* mCards = nullptr;
    MainActions* mActions = nullptr;
    std::map<int, std::function<void()>> mHandlers; ///< what each action does, by its number
    MainMenuBar* mMenuBar = nullptr; ///< null where only the data window is shown, as the tool bar
    MainToolBar* mToolBar = nullptr;
};

} // namespace VELIX
