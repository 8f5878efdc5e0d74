#include "gui/DialogMain.h"

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/Diagnostics.h"
#include "core/Property.h"
#include "gui/CardController.h"
#include "gui/CardLoader.h"
#include "gui/DialogStatusBar.h"
#include "gui/DropTarget.h"
#include "gui/ExportController.h"
#include "gui/MainActions.h"
#include "gui/MainMenuBar.h"
#include "gui/MainPanes.h"
#include "gui/MainToolBar.h"
#include "gui/card/DialogCard.h"
#include "gui/dialogs/ApplicationControl.h"
#include "gui/dialogs/DialogService.h"
#include "gui/dialogs/StandardDialogs.h"
#include "gui/help/DialogAbout.h"
#include "gui/help/DialogHelp.h"
#include "gui/look/BringToFront.h"
#include "gui/look/ImageHandler.h"
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
#include <QScreen>
#include <QStyle>
#include <QTimer>

namespace VELIX {

namespace {

constexpr int kStyleCheckMs = 500;
constexpr int kStartMs = 20; ///< the window is on screen before the card is read
constexpr int kStartSizesMs = 1000;
constexpr int kWidth = 1000;
constexpr int kHeight = 800;

} // namespace

DialogMain::DialogMain(AppContext& context) : DialogMain(context, StandardDialogs::instance()) {}

DialogMain::DialogMain(AppContext& context, DialogService& dialogs)
    : mContext(context),
      mDialogs(dialogs),
      mProfiles(context.profile, context.project, context.settings, context.paths),
      mProjects(context.project, context.settings, dialogs, this)
{
    createPanes();
    createDialogs();
    createActions();
    createHandlers();
    if (!mContext.emuOnly) {
        createMenu();
        createToolbar();
    }
    createStatusBar();
    connectOpening();
    setWindowIcon(ImageHandler::instance().icon(QStringLiteral("velix")));
    startTimers();
    resize(startSize());
    updateEnabled();
    // The font size of the settings applies from the first frame on.
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
    mPanes = new MainPanes(mContext, mDialogs, this);
    setCentralWidget(mPanes);
    connect(mPanes->card(), &DialogCard::signalChanged, this, &DialogMain::slotCanChanged);
    connect(mPanes->card(), &DialogCard::signalLoadRecord, this, &DialogMain::slotLoadRecord);
    connect(mPanes->card(), &DialogCard::signalLoadCycle, this, &DialogMain::slotLoadCycle);
    connect(mPanes->profile(), &DialogProfile::signalChanged, this,
            qOverload<>(&DialogMain::slotProfileChanged));
    // Not so when the last tick is taken away: that says nothing about what is not listed.
    connect(mPanes->profile(), &DialogProfile::signalCleared, this,
            [this] { mContext.project.setProfileData(); });
}

void DialogMain::createDialogs()
{
    mExports = new ExportController(mContext, mDialogs, this);
    mPrints = new PrintController(mContext.settings, mDialogs, this);
    mDialogAbout = new DialogAbout(this);
    mDialogHelp = new DialogHelp(mContext.settings, this);
    mDialogPreferences = new DialogPreferences(mContext, mProfiles.files(), mDialogs, this);
    connect(mDialogPreferences, &DialogPreferences::signalProfileFileChanged, this,
            &DialogMain::slotProfileFileChanged);
    mDialogProfileInfo = new DialogProfileInfo(mContext.profile, mProfiles.files(), mDialogs, this);
    connect(mDialogProfileInfo, &DialogProfileInfo::signalProfileChanged, this,
            &DialogMain::slotProfileFileChanged);
    connect(mPanes->data(), &DialogData::signalInstallProfile, mDialogProfileInfo,
            &DialogProfileInfo::installProfile);
    connect(mPanes->profile(), &DialogProfile::signalInstallProfile, mDialogProfileInfo,
            &DialogProfileInfo::installProfile);
}

void DialogMain::createActions()
{
    mActions = new MainActions(this);
    connect(mActions->group(), &QActionGroup::triggered, this, &DialogMain::slotMenu);
    connect(mActions->recentGroup(), &QActionGroup::triggered, this, &DialogMain::slotMenuRecent);
    connect(mPanes->card(), &DialogCard::signalOpenCard, mActions->action(eActionOpenCard),
            &QAction::trigger);
    connect(mPanes->data(), &DialogData::signalPageChanged, this, &DialogMain::slotCanChanged);
    addAction(mActions->action(eActionQuit)); // its key works without a menu, too
}

void DialogMain::createHandlers()
{
    const auto page = [this] { return mPanes->data()->printablePage(); };
    mHandlers = {
        {eActionNewProject, [this] { finishOpening(mProjects.newProject()); }},
        {eActionOpenProject, [this] { finishOpening(mProjects.openProject()); }},
        {eActionOpenCard, [this] { mCards->choose(); }},
        {eActionSaveProject, [this] { finishSaving(mProjects.saveProject(false)); }},
        {eActionSaveProjectAs, [this] { finishSaving(mProjects.saveProject(true)); }},
        {eActionPrint, [this, page] { mPrints->print(page(), mLoader->printHeader()); }},
        {eActionSavePdf, [this, page] { mPrints->savePdf(page(), mLoader->printHeader()); }},
        {eActionQuit,
         [this] {
             cleanup();
             mTimerStart.stop();
             close();
         }},
        {eActionExportKml, [this] { mExports->exportKml(); }},
        {eActionExportCsv, [this] { mExports->exportCsv(); }},
        {eActionProfile, [this] { bringToFront(*mDialogProfileInfo); }},
        {eActionPreferences, [this] { bringToFront(*mDialogPreferences); }},
        {eActionHelp, [this] { mDialogHelp->showPage(mPanes->helpTopic()); }},
        {eActionAbout, [this] { bringToFront(*mDialogAbout); }},
    };
}

void DialogMain::createMenu()
{
    mMenuBar = new MainMenuBar(*mActions, mContext.settings, this);
    setMenuBar(mMenuBar);
    connect(mMenuBar, &MainMenuBar::signalExtras, this, &DialogMain::slotMenuPrefAbout);
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
    connect(mPanes->data(), &DialogData::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    connect(mExports, &ExportController::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    connect(mPrints, &PrintController::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    mLoader = new CardLoader(mContext.card, *mPanes->card(), *mPanes->data(), *mStatusBar, this);
}

/// Cards and projects are also opened from the menus of recent ones and by dropping them.
void DialogMain::connectOpening()
{
    mCards = new CardController(*mLoader, mContext.settings, mDialogs, this);
    auto* drops = new DropTarget(this); // after all panes
    connect(drops, &DropTarget::signalCard, mCards, &CardController::open);
    connect(drops, &DropTarget::signalProject, this, &DialogMain::openProject);
    if (mMenuBar != nullptr) {
        connect(mMenuBar, &MainMenuBar::signalCard, mCards, &CardController::open);
        connect(mMenuBar, &MainMenuBar::signalProject, this, &DialogMain::openProject);
        connect(mCards, &CardController::signalOpened, mMenuBar, &MainMenuBar::addRecentCard);
    }
    connect(mCards, &CardController::signalOpened, this, &DialogMain::updateTitle);
}

void DialogMain::startTimers()
{
    if (!mContext.styleFile.isEmpty()) {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, &DialogMain::slotCheckStyle);
        timer->start(kStyleCheckMs);
    }
    mTimerStart.setSingleShot(true);
    connect(&mTimerStart, &QTimer::timeout, this, &DialogMain::slotTimeout);
    mTimerStart.start(kStartMs);
    QTimer::singleShot(kStartSizesMs, this, &DialogMain::slotTimeoutStartup);
}

void DialogMain::slotTimeoutStartup()
{
    mPanes->fitLeftPane();
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
    setWindowTitle(tr("VELIX %1").arg(mCards->lastFolder()));
}

void DialogMain::closeEvent(QCloseEvent* event)
{
    cleanup();
    event->accept();
}

void DialogMain::slotMenu(QAction* action)
{
    const int id = action->data().toInt();
    Diagnostics::print("DialogMain::slotMenu id %d\n", id);
    const auto handler = mHandlers.find(id);
    if (handler != mHandlers.end()) {
        handler->second();
    }
    updateEnabled();
}

void DialogMain::finishOpening(const Outcome& opened)
{
    if (opened.ok) {
        mPanes->showSelection();
        updateProfiles();
        updateTitle();
    }
    finishSaving(opened);
}

/// Reports what went wrong, and lists a file of the user's own among the recent ones.
void DialogMain::finishSaving(const Outcome& saved)
{
    mStatusBar->showNotice(saved.reason);
    if (mMenuBar != nullptr && !mProjects.isRunFile()) {
        mMenuBar->addRecentProject(mProjects.file());
    }
}

void DialogMain::openProject(const QString& path)
{
    finishOpening(mProjects.openFile(path));
    updateEnabled();
}

bool DialogMain::loadRecords(const QString& path)
{
    return mLoader->openCard(path);
}

void DialogMain::reloadCard()
{
    const QString path = mCards->lastFolder();
    if (!path.isEmpty()) {
        loadRecords(path);
    }
}

void DialogMain::slotLoadRecord(const std::list<QString>& files)
{
    if (!mExports->isWriting()) { // else it was chosen just before: the record is in use
        mLoader->loadFiles(files);
        updateEnabled();
    }
}

void DialogMain::slotLoadCycle(unsigned int cycle, int flight)
{
    if (!mExports->isWriting()) { // else it was chosen just before: the record is in use
        mLoader->loadCycle(cycle, flight);
        updateEnabled();
    }
}

void DialogMain::slotProfileChanged()
{
    mProjects.setModified();
    mPanes->data()->updateProfile();
    updateEnabled();
}

void DialogMain::slotProfileChanged(const QString& variant)
{
    Diagnostics::print("slotProfileChanged <%s>\n", variant.toUtf8().constData());
    mProfiles.storeVariant(variant);
    slotProfileFileChanged(); // reads the variant and refreshes the list of parameters
}

void DialogMain::slotProfileFileChanged()
{
    loadProfile();
    mPanes->data()->updateProfile();
    mContext.settings.writeXmlFile();
    updateEnabled();
}

void DialogMain::loadProfile()
{
    mProfiles.load();
    fillProfiles();
    mPanes->showProfile();
    mStatusBar->showNotice(mProfiles.outcome().reason);
}

void DialogMain::fillProfiles()
{
    if (mToolBar != nullptr) {
        mToolBar->fillVariants(mContext.profile.variants());
        updateProfiles();
    }
}

void DialogMain::updateProfiles()
{
    if (mToolBar != nullptr) {
        mToolBar->selectVariant(mProfiles.files().variant());
    }
}

void DialogMain::slotUnitChanged(int unit)
{
    mProfiles.storeUnit(unit);
    updateUnit();
}

void DialogMain::updateUnit()
{
    const EUnit unit = mProfiles.applyUnit();
    if (mToolBar != nullptr) {
        mToolBar->selectUnit(unit);
    }
    mPanes->showUnits();
}

void DialogMain::slotTimeout()
{
    reloadCard();
    const Outcome project = mProjects.readLast();
    if (!project.reason.isEmpty()) {
        mStatusBar->showNotice(project.reason);
    }
    if (mStatusBar->notice().isEmpty()) {
        mStatusBar->showNotice(
            mProfiles.outcome().reason); // a card that was opened has taken it away
    }
    mPanes->showSelection();
    updateProfiles();
    updateTitle();
    updateEnabled();
}

void DialogMain::updateEnabled()
{
    const QString unprintable = PrintController::unprintableReason(mPanes->data()->printablePage());
    mActions->setUnavailable({eActionPrint, eActionSavePdf}, unprintable);
    const QString nothingLoaded =
        mContext.card.hasRecord() ? QString() : tr("Load a cycle or a flight to export it");
    mActions->setUnavailable({eActionExportKml, eActionExportCsv}, nothingLoaded);
    const QString nothingChanged =
        mProjects.isModified() ? QString() : tr("Nothing has changed since the project was saved");
    mActions->setUnavailable({eActionSaveProject}, nothingChanged);
}

} // namespace VELIX
