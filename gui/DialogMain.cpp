#include "gui/DialogMain.h"

#include "core/DataHandler.h"
#include "core/Diagnostics.h"
#include "core/Progress.h"
#include "core/Property.h"
#include "gui/ApplicationControl.h"
#include "gui/DialogAbout.h"
#include "gui/DialogCard.h"
#include "gui/DialogProfile.h"
#include "gui/DialogProfileInfo.h"
#include "gui/DialogStatusBar.h"
#include "gui/ExportController.h"
#include "gui/ImageHandler.h"
#include "gui/MainActions.h"
#include "gui/QwtComboBox.h"
#include "gui/StandardDialogs.h"
#include "profile/Profile.h"
#include "views/DialogData.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QToolBar>
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
constexpr int kGap = 8;
constexpr int kToolIconSize = 24;
const QString kBuiltInStyle = QStringLiteral(":/styles/style.VELIX.css");

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
    resize(kWidth, kHeight);
    updateEnabled();
    mLeftPane->setHidden(mContext.emuOnly);

    // The font size of the settings holds from the first picture on.
    mContext.control.loadStyleFile(mContext.styleFile.isEmpty() ? kBuiltInStyle
                                                                : mContext.styleFile);
    loadProfile();
    updateTitle();
    show();
    mProjects.start(QString::fromStdString(mContext.paths.dataPath()) +
                    QStringLiteral("/CurrentProject.xml"));
    updateUnit();
}

DialogMain::~DialogMain()
{
    Progress::setHook(nullptr);
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

    mDialogData = new DialogData(mContext.profile, mContext.card, mContext.settings, mDialogs,
                                 mContext.emuOnly);
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
    layout->setContentsMargins(kGap, kGap, 0, kGap);
    layout->addWidget(column);

    mSplitter->addWidget(mLeftPane);
    mSplitter->addWidget(mDialogData);
    mSplitter->setStretchFactor(0, 1);
    mSplitter->setStretchFactor(1, 2);
}

void DialogMain::createDialogs()
{
    mExports = new ExportController(mContext, mDialogs, this);
    mDialogAbout = new DialogAbout(this);
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
    addMenu(tr("&File"), MainActions::Menu::File);
    connect(addMenu(tr("&Extras"), MainActions::Menu::Extras), &QMenu::aboutToShow, this,
            &DialogMain::slotMenuPrefAbout);
    addMenu(tr("&Help"), MainActions::Menu::Help);
}

void DialogMain::createToolbar()
{
    mToolBar = addToolBar(tr("Main Toolbar"));
    mToolBar->setMovable(false);
    mToolBar->setIconSize({kToolIconSize, kToolIconSize});
    mToolBar->setContextMenuPolicy(Qt::PreventContextMenu); // it could not be shown again
    for (const int id : {eActionOpenCard, eActionExportCsv}) {
        mToolBar->addAction(mActions->action(id));
    }
    mToolBar->addSeparator();
    for (const int id :
         {eActionNewProject, eActionOpenProject, eActionSaveProject, eActionSaveProjectAs}) {
        mToolBar->addAction(mActions->action(id));
    }
    mToolBar->addSeparator();

    const auto addSelector = [this](const QString& label) {
        auto* box = new QwtComboBox(mToolBar);
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        auto* text = new QLabel(label, mToolBar);
        text->setBuddy(box);
        text->setContentsMargins(kGap, 0, kGap / 2, 0);
        mToolBar->addWidget(text);
        mToolBar->addWidget(box);
        return box;
    };
    mVariantBox = addSelector(tr("Variant"));
    mVariantBox->setObjectName(QStringLiteral("selectorVariant"));
    mVariantBox->setToolTip(tr("Variant of the profile"));
    mVariantBox->setPlaceholderText(tr("All variants"));
    connect(mVariantBox, qOverload<const QString&>(&QwtComboBox::signalActivated), this,
            qOverload<const QString&>(&DialogMain::slotProfileChanged));

    mUnitBox = addSelector(tr("Units"));
    mUnitBox->setObjectName(QStringLiteral("selectorUnit"));
    mUnitBox->setToolTip(tr("Unit system of all values"));
    mUnitBox->addItem(tr("Metric"), int{eUnitMetric});
    mUnitBox->addItem(tr("Imperial"), int{eUnitImperial});
    connect(mUnitBox, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogMain::slotUnitChanged);
}

void DialogMain::createStatusBar()
{
    mStatusBar = new DialogStatusBar(this);
    setStatusBar(mStatusBar);
    connect(mDialogData, &DialogData::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    connect(mExports, &ExportController::signalNotice, mStatusBar, &DialogStatusBar::showNotice);
    Progress::setHook([this](int percent) { setProgress(percent); });
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
