#include "gui/DialogMain.h"

#include "core/DataHandler.h"
#include "core/Diagnostics.h"
#include "core/Property.h"
#include "gui/CardLoader.h"
#include "gui/DialogStatusBar.h"
#include "gui/ExportController.h"
#include "gui/MainActions.h"
#include "gui/MainToolBar.h"
#include "gui/RecentMenu.h"
#include "gui/card/DialogCard.h"
#include "gui/dialogs/ApplicationControl.h"
#include "gui/dialogs/StandardDialogs.h"
#include "gui/help/DialogAbout.h"
#include "gui/help/DialogHelp.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/Spacing.h"
#include "gui/preferences/DialogPreferences.h"
#include "gui/print/PrintController.h"
#include "gui/profile/DialogProfile.h"
#include "gui/profile/DialogProfileInfo.h"
#include "gui/project/Project.h"
#include "profile/Profile.h"
#include "views/window/DialogData.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kStyleCheckMs = 500;
constexpr int kStartMs = 20; ///< the window is on screen before the card is read
constexpr int kStartSizesMs = 1000;
constexpr int kWidth = 1000;
constexpr int kHeight = 800;
constexpr int kLeftPaneMinimum = 310; ///< a cycle's line fits
constexpr int kLeftPaneMaximum = 330; ///< the data has the space

} // namespace

DialogMain::DialogMain(AppContext& context) : DialogMain(context, StandardDialogs::instance()) {}

DialogMain::DialogMain(AppContext& context, DialogService& dialogs)
    : mContext(context),
      mDialogs(dialogs),
      mProfileSettings(context.settings, context.paths),
      mProjects(context.project, context.settings, dialogs, this)
{
    createPanes();
    createDialogs();
    createActions();
    if (!mContext.emuOnly) {
        createMenu();
        createToolbar();
    }
    createStatusBar();
    setWindowIcon(ImageHandler::instance().icon(QStringLiteral("velix")));
    startTimers();
    resize(startSize());
    updateEnabled();
    mLeftPane->setHidden(mContext.emuOnly);
    acceptDrops();

    // The font size of the settings holds from the first picture on.
    mContext.control.loadStyleFile(mContext.styleInForce());
    loadProfile();
    updateTitle();
    show();
    mProjects.start(QString::fromStdString(mContext.paths.dataPath()) +
                    QStringLiteral("/CurrentProject.xml"));
    updateUnit();
}

DialogMain::~DialogMain() = default;

/// On a small screen the replay controls at the foot have to stay in sight.
QSize DialogMain::startSize() const
{
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return QSize(kWidth, kHeight).boundedTo(screen()->availableSize() - QSize(0, title));
}

void DialogMain::createPanes()
{
    mSplitter = new QSplitter(this);
    setCentralWidget(mSplitter);

    mDialogCard = new DialogCard(mContext.card);
    connect(mDialogCard, &DialogCard::signalChanged, this, &DialogMain::slotCanChanged);
    connect(mDialogCard, &DialogCard::signalLoadRecord, this, &DialogMain::slotLoadRecord);
    connect(mDialogCard, &DialogCard::signalLoadCycle, this, &DialogMain::slotLoadCycle);

    mDialogProfile = new DialogProfile(mContext.profile);
    connect(mDialogProfile, &DialogProfile::signalChanged, this,
            qOverload<>(&DialogMain::slotProfileChanged));
    // Not so when the last tick is taken away: that says nothing about what is not listed.
    connect(mDialogProfile, &DialogProfile::signalCleared, this,
            [this] { mContext.project.setProfileData(); });

    mDialogData = new DialogData(mContext.profile, mContext.card, mContext.settings, mDialogs,
                                 mContext.paths, mContext.emuOnly);
    connect(mDialogData, &DialogData::signalSelectParameters, mDialogProfile,
            &DialogProfile::focusSearch);

    auto* column = new QSplitter(Qt::Vertical);
    column->addWidget(mDialogCard);
    column->addWidget(mDialogProfile);
    column->setChildrenCollapsible(false);
    mLeftPane = new QWidget;
    mLeftPane->setMinimumWidth(kLeftPaneMinimum);
    mLeftPane->setMaximumWidth(kLeftPaneMaximum);
    auto* layout = new QVBoxLayout(mLeftPane);
    layout->setContentsMargins(Spacing::kMargin, Spacing::kMargin, 0, Spacing::kMargin);
    layout->addWidget(column);

    mSplitter->addWidget(mLeftPane);
    mSplitter->addWidget(mDialogData);
    mSplitter->setStretchFactor(0, 1);
    mSplitter->setStretchFactor(1, 2);
}

void DialogMain::createDialogs()
{
    mExports = new ExportController(mContext, mDialogs, this);
    mPrints = new PrintController(mContext.settings, mDialogs, this);
    mDialogAbout = new DialogAbout(this);
    mDialogHelp = new DialogHelp(mContext.settings, this);
    mDialogPreferences = new DialogPreferences(mContext, mProfileSettings, mDialogs, this);
    connect(mDialogPreferences, &DialogPreferences::signalProfileFileChanged, this,
            &DialogMain::slotProfileFileChanged);
    mDialogProfileInfo = new DialogProfileInfo(mContext.profile, mProfileSettings, mDialogs, this);
    connect(mDialogProfileInfo, &DialogProfileInfo::signalProfileChanged, this,
            &DialogMain::slotProfileFileChanged);
    connect(mDialogData, &DialogData::signalInstallProfile, mDialogProfileInfo,
            &DialogProfileInfo::installProfile);
    connect(mDialogProfile, &DialogProfile::signalInstallProfile, mDialogProfileInfo,
            &DialogProfileInfo::installProfile);
}

void DialogMain::createActions()
{
    mActions = new MainActions(this);
    connect(mActions->group(), &QActionGroup::triggered, this, &DialogMain::slotMenu);
    connect(mActions->recentGroup(), &QActionGroup::triggered, this, &DialogMain::slotMenuRecent);
    connect(mDialogCard, &DialogCard::signalOpenCard, mActions->action(eActionOpenCard),
            &QAction::trigger);
    connect(mDialogData, &DialogData::signalPageChanged, this, &DialogMain::slotCanChanged);
    addAction(mActions->action(eActionQuit)); // its key works without a menu, too
}

void DialogMain::createMenu()
{
    const auto addMenu = [this](const QString& title, MainActions::Menu which) {
        QMenu* menu = menuBar()->addMenu(title);
        menu->setToolTipsVisible(true); // they say why an action is not available
        for (QAction* action : mActions->menu(which)) {
            if (action == nullptr) {
                menu->addSeparator();
            } else {
                menu->addAction(action);
            }
        }
        return menu;
    };
    createRecentMenus(addMenu(tr("&File"), MainActions::Menu::File));
    connect(addMenu(tr("&Extras"), MainActions::Menu::Extras), &QMenu::aboutToShow, this,
            &DialogMain::slotMenuPrefAbout);
    addMenu(tr("&Help"), MainActions::Menu::Help);
}

void DialogMain::createRecentMenus(QMenu* fileMenu)
{
    QActionGroup& group = *mActions->recentGroup();
    mRecentCards = new RecentMenu(RecentMenu::Kind::Cards, mContext.settings, group, fileMenu);
    mRecentProjects =
        new RecentMenu(RecentMenu::Kind::Projects, mContext.settings, group, fileMenu);
    connect(mRecentCards, &RecentMenu::signalChosen, this,
            qOverload<const QString&>(&DialogMain::openCard));
    connect(mRecentProjects, &RecentMenu::signalChosen, this, &DialogMain::openProject);

    const QList<QAction*> entries = fileMenu->actions();
    QAction* next = entries.value(entries.indexOf(mActions->action(eActionOpenCard)) + 1);
    fileMenu->insertMenu(next, mRecentCards);
    fileMenu->insertMenu(next, mRecentProjects);
}

void DialogMain::createToolbar()
{
    mToolBar = new MainToolBar(*mActions, this);
    addToolBar(mToolBar);
    connect(mToolBar, &MainToolBar::signalVariant, this,
            qOverload<const QString&>(&DialogMain::slotProfileChanged));
    connect(mToolBar, &MainToolBar::signalUnit, this, &DialogMain::slotUnitChanged);
}

void DialogMain::createStatusBar()
{
    mStatusBar = new DialogStatusBar(this);
    setStatusBar(mStatusBar);
    connect(mDialogData, &DialogData::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    connect(mExports, &ExportController::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    connect(mPrints, &PrintController::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    mLoader = new CardLoader(mContext.card, *mDialogCard, *mDialogData, *mStatusBar, this);
}

/// A drop reaches the window from every pane, since none of them wants it.
void DialogMain::acceptDrops()
{
    setAcceptDrops(true);
    for (QLineEdit* editor : findChildren<QLineEdit*>()) {
        editor->setAcceptDrops(false); // it would take the path as text
    }
}

void DialogMain::startTimers()
{
    if (!mContext.styleFile.isEmpty()) {
        connect(&mTimerStyle, &QTimer::timeout, this, &DialogMain::slotCheckStyle);
        mTimerStyle.start(kStyleCheckMs);
    }
    mTimerStart.setSingleShot(true);
    connect(&mTimerStart, &QTimer::timeout, this, &DialogMain::slotTimeout);
    mTimerStart.start(kStartMs);
    QTimer::singleShot(kStartSizesMs, this, &DialogMain::slotTimeoutStartup);
}

void DialogMain::slotTimeoutStartup()
{
    if (mSplitter->count() > 1) {
        mSplitter->setSizes({200, 1});
    }
}

void DialogMain::setProgress(int percent)
{
    mStatusBar->setProgress(percent);
}

void DialogMain::slotCheckStyle()
{
    Diagnostics::print("Slot Load Style <%s>\n", qUtf8Printable(mContext.styleFile));
    mContext.control.loadStyleFile(mContext.styleFile);
}

void DialogMain::updateTitle()
{
    setWindowTitle(tr("VELIX %1").arg(setting("LastPath")));
}

QString DialogMain::setting(const char* key) const
{
    return QString::fromStdString(mContext.settings.getString(key, {}));
}

void DialogMain::cleanup()
{
    mProjects.saveOnQuit();
}

void DialogMain::closeEvent(QCloseEvent* event)
{
    cleanup();
    event->accept();
}

} // namespace VELIX
