#include "views/graph/DialogDataGraph.h"

#include "card/RecordData.h"
#include "gui/dialogs/DialogService.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/graph/DialogGraphSetup.h"
#include "views/graph/GraphNavigation.h"
#include "views/graph/GraphPrint.h"
#include "views/graph/GraphSnapshot.h"
#include "views/graph/GraphStatisticTable.h"
#include "views/graph/widget/WidgetGraph.h"

#include <QAction>
#include <QButtonGroup>
#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPixmap>

#include <cmath>

namespace VELIX {

namespace {

constexpr int kRepeatPeriod = 50;    // ms
constexpr double kDefaultRange = 60; // s
constexpr int kGap = 4;

} // namespace

DialogDataGraph::DialogDataGraph(const Profile& profile, Property& settings, DialogService& dialogs,
                                 QWidget* parent)
    : QWidget(parent), mProfile(profile), mDialogs(dialogs), mSettings(settings)
{
    createGraph();
    createCommands();
    createHint();
    createLayout();
    mSetup = new DialogGraphSetup(this, mData);
    connect(mSetup, &DialogGraphSetup::signalChanged, this, &DialogDataGraph::slotGraphSetup);
    if (const auto stored = mSettings.load()) {
        mData = *stored;
        GraphSettings::apply(mData, *mGraph);
    }
    updateControls();
    updateProfile();
    mRepeatTimer.setInterval(kRepeatPeriod);
    connect(&mRepeatTimer, &QTimer::timeout, this, &DialogDataGraph::slotTimeout);
    mRepeatTimer.start();
}

DialogDataGraph::~DialogDataGraph() = default;

void DialogDataGraph::createGraph()
{
    mGraph = new WidgetGraph(this);
    mGraph->setObjectName(QStringLiteral("graph"));
    mFeed = std::make_unique<GraphFeed>(*mGraph, mProfile);
    mGraph->setDisplayMode(GraphModel::DisplaySplit);
    mGraph->setGraphMode(GraphModel::GraphManual);
    // A recording is complete: nothing is to be repeated up to a present.
    mGraph->setOfflineMode(true);
    connect(mGraph, &WidgetGraph::signalCursor, this, &DialogDataGraph::signalCursor);
    connect(mGraph, &WidgetGraph::signalManMode, this, &DialogDataGraph::slotManMode);
    // The keys can take the cursor beyond the visible range.
    connect(mGraph, &WidgetGraph::signalCursor, this, [this] {
        if (!mGraph->model().range().contains(mGraph->model().cursorTime())) {
            mVisits.note(mGraph->model().range());
            pageTo(mGraph->model().cursorTime());
        }
    });
}

void DialogDataGraph::createCommands()
{
    mCommands = new GraphCommandBar(this);
    connect(mCommands->group(), &QButtonGroup::idPressed, this, &DialogDataGraph::slotCommandPress);
    connect(mCommands->group(), &QButtonGroup::idReleased, this,
            &DialogDataGraph::slotCommandRelease);
    connect(mCommands->backAction(), &QAction::triggered, this, [this] { stepHistory(false); });
    connect(mCommands->forwardAction(), &QAction::triggered, this, [this] { stepHistory(true); });
    connect(mCommands->saveAction(), &QAction::triggered, this, &DialogDataGraph::saveSnapshot);
    connect(mCommands->copyAction(), &QAction::triggered, this, &DialogDataGraph::copySnapshot);
    connect(mCommands->statisticAction(), &QAction::toggled, this, &DialogDataGraph::showStatistic);
    addActions({mCommands->backAction(), mCommands->forwardAction()});
}

void DialogDataGraph::createHint()
{
    mHint = new WidgetHint(this);
    connect(mHint, &WidgetHint::signalLink, this, &DialogDataGraph::followHint);
    mSurplus = new QLabel(this);
    mSurplus->setObjectName(QStringLiteral("labelSurplus"));
    mSurplus->setWordWrap(true);
    mSurplus->setContentsMargins(2 * kGap, kGap, 2 * kGap, kGap);
    mSurplus->hide();
}

void DialogDataGraph::createLayout()
{
    mStatistic = new GraphStatisticTable(this);
    mStatistic->hide();
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mCommands, 0, 0);
    layout->addWidget(mSurplus, 1, 0);
    layout->addWidget(mGraph, 2, 0);
    layout->addWidget(mHint, 2, 0);
    layout->addWidget(mStatistic, 3, 0);
    layout->setRowStretch(2, 1);
    mCommands->statisticAction()->setChecked(mSettings.statisticOn());
    updateHistoryActions();
}

void DialogDataGraph::slotGraphSetup()
{
    GraphSettings::apply(mData, *mGraph);
    updateControls();
    mSettings.store(mData);
}

void DialogDataGraph::setTime(double seconds)
{
    if (!std::isfinite(seconds)) {
        return;
    }
    mVisits.note(mGraph->model().range());
    mGraph->setCursorPosition(seconds);
    pageTo(seconds);
}

/// Moves the visible range so that it holds a time with some room to its ends. That is no visit of
/// the user's.
void DialogDataGraph::pageTo(double seconds)
{
    const GraphTimeRange& visible = mGraph->model().range();
    const GraphTimeRange range = GraphNavigation::paged(visible, seconds);
    if (!(range == visible)) {
        mGraph->setVisibleRange(range.xmin(), range.xmax());
    }
    mVisits.follow(mGraph->model().range());
}

void DialogDataGraph::setRange(const GraphTimeRange& range)
{
    mGraph->setVisibleRange(range.xmin(), range.xmax());
    mGraph->startRecalc();
}

void DialogDataGraph::zoomAll()
{
    if (mRecord != nullptr) {
        setRange(GraphNavigation::wholeRecord(mRecord->startTime, mRecord->stopTime));
    }
}

void DialogDataGraph::zoomToMarkers()
{
    if (mGraph->model().markers().coincide()) {
        emit signalNotice(
            tr("Set two markers first: click into the graph, then Shift-click elsewhere."));
    }
    mGraph->zoomToMarker();
    updateControls(); // it leaves the automatic mode
}

void DialogDataGraph::setXrange(double seconds)
{
    mGraph->setXrange(static_cast<float>(seconds));
    mData.xRange = seconds;
}

void DialogDataGraph::showAround(double seconds)
{
    if (std::isfinite(seconds)) {
        setRange(GraphNavigation::around(seconds));
    }
}

void DialogDataGraph::updateRecord(RecordData* record)
{
    mRecord = record;
    mCleared = false;
    mGraph->clear();
    updateHint();
    if (record == nullptr) {
        return;
    }
    mFeed->fill(*mRecord);
    zoomAll();
    mGraph->setCursorPosition(record->startTime);
    mVisits.restart(mGraph->model().range());
    updateHistoryActions();
}

void DialogDataGraph::updateProfile()
{
    updateSurplus(mFeed->takeParameters());
    mCleared = false;
    mGraph->clear();
    updateHint();
    if (mRecord != nullptr) {
        const GraphTimeRange range = mGraph->model().range(); // feeding moves it in automatic mode
        mFeed->fill(*mRecord);
        mGraph->setVisibleRange(range.xmin(), range.xmax());
        mGraph->startRecalc();
    }
}

void DialogDataGraph::fillIndex(int index, const ProfileParameter& parameter)
{
    if (mRecord != nullptr) {
        mFeed->fillTrace(static_cast<unsigned int>(index), parameter, *mRecord);
    }
}

void DialogDataGraph::updateControls()
{
    const bool split = mGraph->model().displayMode() != GraphModel::DisplaySingle;
    mCommands->setChecked(eGraphSplit, split);
    mCommands->setChecked(eGraphSingle, !split);
    mCommands->setChecked(eGraphAuto, mGraph->model().graphMode() == GraphModel::GraphAutomatic);
}

void DialogDataGraph::slotManMode()
{
    updateControls();
}

void DialogDataGraph::slotCommandPress(int id)
{
    mCommand = id;
}

void DialogDataGraph::slotCommandRelease(int id)
{
    if (QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        mCommand = eGraphNoCommand; // dragged off the button: the user changed their mind
        return;
    }
    switch (id) {
    case eGraphZoomAll:
        zoomAll();
        if (mRecord != nullptr) {
            mData.xRange = mRecord->stopTime - mRecord->startTime;
        }
        break;
    case eGraphZoomMarker:
        zoomToMarkers();
        break;
    case eGraphClear:
        mGraph->clear();
        mCleared = true;
        updateHint();
        break;
    case eGraphAuto:
        mData.graphMode =
            mCommands->isChecked(eGraphAuto) ? GraphModel::GraphAutomatic : GraphModel::GraphManual;
        mGraph->setGraphMode(static_cast<GraphModel::eGraphMode>(mData.graphMode));
        updateControls();
        break;
    case eGraphSplit:
    case eGraphSingle:
        mData.displayMode =
            id == eGraphSplit ? GraphModel::DisplaySplit : GraphModel::DisplaySingle;
        mGraph->setDisplayMode(static_cast<GraphModel::eDisplayMode>(mData.displayMode));
        updateControls();
        break;
    case eGraphReset:
        mData.displayMode = GraphModel::DisplaySplit;
        mGraph->setDisplayMode(GraphModel::DisplaySplit);
        setXrange(kDefaultRange);
        break;
    case eGraphSetup:
        mSetup->show();
        mSetup->raise();
        mSetup->activateWindow();
        break;
    case eGraphSnapshot:
        mCommand = eGraphNoCommand; // the file dialog runs an event loop of its own
        saveSnapshot();
        break;
    default:
        break;
    }
    mCommand = eGraphNoCommand;
}

void DialogDataGraph::slotTimeout()
{
    const double width = mGraph->model().xmax() - mGraph->model().xmin();
    if (mCommand == eGraphZoomIn) {
        setXrange(GraphNavigation::zoomedIn(width));
    } else if (mCommand == eGraphZoomOut) {
        setXrange(GraphNavigation::zoomedOut(width));
    }
    mVisits.tick(mGraph->model().range());
    updateHistoryActions();
    if (mStatistic->isVisible()) {
        mStatistic->update(mGraph->model());
    }
}

// --- sentences

/// Says what is missing where a graph would only be black.
void DialogDataGraph::updateHint()
{
    WidgetHint::Message message;
    mOffer = Offer::SelectParameters;
    if (mProfile.isEmpty()) {
        mOffer = Offer::InstallProfile;
        message = WidgetHint::withoutProfile();
    } else if (mRecord == nullptr) {
        message = WidgetHint::withoutRecord();
    } else if (mFeed->isEmpty()) {
        message = {tr("No parameter selected. Choose parameters in the list on the left and "
                      "confirm."),
                   tr("Select parameters")};
    } else if (mCleared) {
        mOffer = Offer::Refill;
        message = {tr("The graph has been cleared."), tr("Show the record again")};
    }
    mHint->showInsteadOf(mGraph, message);
}

void DialogDataGraph::followHint()
{
    switch (mOffer) {
    case Offer::SelectParameters:
        emit signalSelectParameters();
        break;
    case Offer::InstallProfile:
        emit signalInstallProfile();
        break;
    case Offer::Refill:
        updateProfile();
        break;
    }
}

void DialogDataGraph::updateSurplus(std::size_t selected)
{
    mSurplus->setVisible(selected > GraphFeed::kMaxTraces);
    mSurplus->setText(tr("%1 parameters are selected; the graph shows the first %2 of them.")
                          .arg(selected)
                          .arg(GraphFeed::kMaxTraces));
}

void DialogDataGraph::saveSnapshot()
{
    const QPixmap screenshot = grab(); // before the file dialog can cover the view
    const QString file =
        mDialogs.saveFile(this, tr("Save Snapshot"), QStringLiteral("./snapshot.bmp"),
                          tr("BMP File (*.bmp);;All Files (*.*)"), QStringLiteral("bmp"));
    if (file.isEmpty()) {
        return;
    }
    const QString failure = GraphSnapshot::save(*mGraph, screenshot, file);
    emit signalNotice(failure.isEmpty() ? tr("Snapshot saved as %1.").arg(file) : failure);
}

void DialogDataGraph::copySnapshot()
{
    QGuiApplication::clipboard()->setPixmap(grab());
    emit signalNotice(tr("Snapshot copied to the clipboard."));
}

QString DialogDataGraph::printTitle() const
{
    return tr("Graph");
}

QString DialogDataGraph::unprintableReason() const
{
    if (mRecord == nullptr) {
        return tr("No record loaded");
    }
    return mFeed->isEmpty() ? tr("No parameter selected") : QString();
}

std::unique_ptr<PrintLayout> DialogDataGraph::printLayout(QPaintDevice& device,
                                                          const QSizeF& room) const
{
    return std::make_unique<GraphPrint>(mGraph->model(), mGraph->look(), mGraph->markersOn(),
                                        mGraph->font(), device, room);
}

void DialogDataGraph::stepHistory(bool forward)
{
    const GraphTimeRange& shown = mGraph->model().range();
    if (const auto range = forward ? mVisits.forward(shown) : mVisits.back(shown)) {
        setRange(*range);
    }
    updateHistoryActions();
}

void DialogDataGraph::updateHistoryActions()
{
    mCommands->backAction()->setEnabled(mVisits.canGoBack());
    mCommands->forwardAction()->setEnabled(mVisits.canGoForward());
}

void DialogDataGraph::showStatistic(bool on)
{
    mStatistic->setVisible(on);
    if (on) {
        mStatistic->update(mGraph->model());
    }
    if (on != mSettings.statisticOn()) {
        mSettings.storeStatisticOn(on);
    }
}

} // namespace VELIX
