#pragma once

#include "gui/ProjectController.h"
#include "gui/profile/ProfileSettings.h"
#include "gui/project/AppContext.h"

#include <QMainWindow>
#include <QTimer>

#include <list>

class DialogHelp;
class QAction;
class QMenu;
class QSplitter;

namespace VELIX {

class CardLoader;
class DialogAbout;
class DialogCard;
class DialogData;
class DialogPreferences;
class DialogProfile;
class DialogProfileInfo;
class DialogService;
class DialogStatusBar;
class ExportController;
class MainActions;
class MainToolBar;
class PrintController;
class RecentMenu;

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

    /// How far the work in hand is: 0 to 100.
    void setProgress(int percent);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void slotMenu(QAction* action);
    void slotMenuRecent(QAction* action);
    void slotMenuPrefAbout();
    void slotLoadRecord(const std::list<QString>& files);
    void slotLoadCycle(unsigned int cycle, int flight);
    void slotCanChanged();
    void slotProfileChanged();
    void slotProfileChanged(const QString& variant);
    void slotProfileFileChanged();
    void slotUnitChanged(int unit);
    void slotVelixMode(int mode);
    void slotCheckStyle();
    void slotTimeout();
    void slotTimeoutStartup();

private:
    QSize startSize() const;
    void createPanes();
    void createDialogs();
    void createActions();
    void createMenu();
    void createRecentMenus(QMenu* fileMenu);
    void createToolbar();
    void createStatusBar();
    void acceptDrops();
    void startTimers();

    void openCard();
    void printPage(int id);
    void reloadCard();
    void openCard(const QString& path);
    void openProject(const QString& path);
    bool loadRecords(const QString& path);
    void finishProjectAction(bool done);
    void finishSaving();
    void showSelection();
    void loadProfile();
    void fillProfiles();
    void updateProfiles();
    void updateUnit();
    void updateTitle();
    void showHelp();
    void updateEnabled();
    void cleanup();
    QString setting(const char* key) const;

    AppContext mContext;
    DialogService& mDialogs;
    ProfileSettings mProfileSettings;
    ProjectController mProjects;
    QString mProfileProblem; ///< why the profile in force is empty; empty if it is not
    QTimer mTimerStyle;
    QTimer mTimerStart;

    QSplitter* mSplitter = nullptr;
    QWidget* mLeftPane = nullptr;
    DialogCard* mDialogCard = nullptr;
    DialogProfile* mDialogProfile = nullptr;
    DialogData* mDialogData = nullptr;
    ExportController* mExports = nullptr;
    DialogProfileInfo* mDialogProfileInfo = nullptr;
    PrintController* mPrints = nullptr;
    DialogAbout* mDialogAbout = nullptr;
    DialogHelp* mDialogHelp = nullptr;
    DialogPreferences* mDialogPreferences = nullptr;
    DialogStatusBar* mStatusBar = nullptr;
    CardLoader* mLoader = nullptr;
    MainActions* mActions = nullptr;
    RecentMenu* mRecentCards = nullptr;
    RecentMenu* mRecentProjects = nullptr;
    MainToolBar* mToolBar = nullptr; ///< null where only the data window is shown
};

} // namespace VELIX
