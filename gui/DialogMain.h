#pragma once

#include "gui/AppContext.h"
#include "gui/ProfileSettings.h"
#include "gui/ProjectController.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <list>

class QAction;
class QSplitter;
class QToolBar;

namespace VELIX {

class DialogAbout;
class DialogCard;
class DialogData;
class DialogProfile;
class DialogProfileInfo;
class DialogService;
class DialogStatusBar;
class ExportController;
class MainActions;
class QwtComboBox;

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
    void createPanes();
    void createDialogs();
    void createActions();
    void createMenu();
    void createToolbar();
    void createStatusBar();
    void startTimers();

    void openCard();
    void reloadCard();
    bool loadRecords(const QString& path);
    void showLoaded();
    void load(const QString& text, const std::function<QString()>& job);
    void finishProjectAction(bool done);
    void showSelection();
    void loadProfile();
    void fillProfiles();
    void updateProfiles();
    void updateUnit();
    void updateTitle();
    void updateEnabled();
    void cleanup();
    QString setting(const char* key) const;

    /// What the views show, and the folder of the card that it is from.
    struct Loaded
    {
        QString text;
        QString card;
    };

    AppContext mContext;
    Loaded mLoaded;
    DialogService& mDialogs;
    ProfileSettings mProfileSettings;
    ProjectController mProjects;
    QTimer mTimerStyle;
    QTimer mTimerStart;

    QSplitter* mSplitter = nullptr;
    QWidget* mLeftPane = nullptr;
    DialogCard* mDialogCard = nullptr;
    DialogProfile* mDialogProfile = nullptr;
    DialogData* mDialogData = nullptr;
    ExportController* mExports = nullptr;
    DialogProfileInfo* mDialogProfileInfo = nullptr;
    DialogAbout* mDialogAbout = nullptr;
    DialogStatusBar* mStatusBar = nullptr;
    MainActions* mActions = nullptr;
    QToolBar* mToolBar = nullptr;
    QwtComboBox* mVariantBox = nullptr; ///< null without a tool bar, like the unit selector
    QwtComboBox* mUnitBox = nullptr;
};

} // namespace VELIX
