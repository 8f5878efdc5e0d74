#include "views/graph/DialogDataGraph.h"

#include "card/RecordData.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/common/GraphValues.h"
#include "views/graph/DialogGraphSetup.h"
#include "views/graph/GraphColor.h"
#include "views/graph/GraphNavigation.h"
#include "views/graph/GraphStatisticTable.h"
#include "views/graph/widget/WidgetGraph.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kRepeatPeriod = 50;    // ms
constexpr double kDefaultRange = 60; // s
constexpr int kGap = 4;

} // namespace

DialogDataGraph::DialogDataGraph(Profile& profile, Property& settings, DialogService& dialogs,
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
        applySettings();
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
    mGraph->setMaxParameters(kMaxTraces);
    mGraph->setDisplayMode(GraphModel::DisplaySplit);
    mGraph->setGraphMode(GraphModel::GraphManual);
    // A recording is complete: nothing is to be repeated up to a present.
    mGraph->setOfflineMode(true);
    connect(mGraph, &WidgetGraph::signalCursor, this, &DialogDataGraph::signalCursor);
    connect(mGraph, &WidgetGraph::signalManMode, this, &DialogDataGraph::slotManMode);
    // The keys can take the cursor beyond the visible range.
    connect(mGraph, &WidgetGraph::signalCursor, this, [this] {
        if (!mGraph->model().range().contains(mGraph->model().cursorTime())) {
            noteUserRange();
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

/// Hands all settings to the graph, in their order.
void DialogDataGraph::applySettings()
{
    const GraphColor back = GraphColor::fromName(mData.backColor);
    const GraphColor grid = GraphColor::fromName(mData.gridColor);
    const GraphColor label = GraphColor::fromName(mData.labelColor);
    const GraphColor labelBack = GraphColor::fromName(mData.labelBackColor);
    mGraph->setXrange(static_cast<float>(mData.xRange));
    mGraph->setDisplayMode(static_cast<GraphModel::eDisplayMode>(mData.displayMode));
    mGraph->setGraphMode(static_cast<GraphModel::eGraphMode>(mData.graphMode));
    mGraph->setCursorMode(static_cast<GraphModel::eCursorMode>(mData.cursorMode));
    mGraph->setBackColor(back.red, back.green, back.blue);
    mGraph->activateGrid(mData.gridOn);
    mGraph->setGridColor(grid.red, grid.green, grid.blue);
    mGraph->setLabelColor(label.red, label.green, label.blue);
    mGraph->setLabelBackColor(labelBack.red, labelBack.green, labelBack.blue);
    mGraph->activateCursor(mData.cursorOn);
    mGraph->activateLegend(mData.legendOn);
    mGraph->setAutoScaleY(mData.autoScaleOn);
    mGraph->setYmin(static_cast<float>(mData.yMin));
    mGraph->setYmax(static_cast<float>(mData.yMax));
}

void DialogDataGraph::slotGraphSetup()
{
    applySettings();
    updateControls();
    mSettings.store(mData);
}

void DialogDataGraph::setTime(double seconds)
{
    if (!std::isfinite(seconds)) {
        return;
    }
    noteUserRange();
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
    if (mVisitPending) {
        mSeenRange = mGraph->model().range(); // still the range that the user chose, moved along
    } else if (!(mGraph->model().range() == mSeenRange)) {
        mSeenRange = mGraph->model().range();
        mHistory.follow(mSeenRange);
    }
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
    fillRecord();
    zoomAll();
    mGraph->setCursorPosition(record->startTime);
    mHistory.clear();
    mVisitPending = false;
    mSeenRange = mGraph->model().range();
    mHistory.visit(mSeenRange);
    updateHistoryActions();
}

void DialogDataGraph::updateProfile()
{
    takeParameters();
    mCleared = false;
    mGraph->clear();
    updateHint();
    if (mRecord != nullptr) {
        const GraphTimeRange range = mGraph->model().range(); // feeding moves it in automatic mode
        fillRecord();
        mGraph->setVisibleRange(range.xmin(), range.xmax());
        mGraph->startRecalc();
    }
}

/// One trace for each selected parameter.
void DialogDataGraph::takeParameters()
{
    const auto parameters = mProfile.selectedParameters();
    const std::size_t shown = std::min<std::size_t>(parameters.size(), kMaxTraces);
    QStringList names;
    for (std::size_t i = 0; i < shown; ++i) {
        names.append(parameters[i]->fullName);
    }
    if (names != mTraceNames) {
        mTraceNames = names;
        mGraph->setMaxParameters(kMaxTraces); // what was hidden or moved were other parameters
    }
    for (unsigned int i = 0; i < kMaxTraces; ++i) {
        mGraph->setActive(i, false);
    }
    for (unsigned int i = 0; i < shown; ++i) {
        const ProfileParameter& parameter = *parameters[i];
        mGraph->setActive(i, true);
        mGraph->setParameterName(i, parameter.name.toStdString());
        mGraph->setParameterUnit(i, GraphValues::unit(mProfile, parameter));
        mGraph->setPrecision(i, GraphValues::decimals(mProfile, parameter));
    }
    updateSurplus(parameters.size());
}

void DialogDataGraph::fillRecord()
{
    const auto parameters = mProfile.selectedParameters();
    const std::size_t shown = std::min<std::size_t>(parameters.size(), kMaxTraces);
    for (std::size_t i = 0; i < shown; ++i) {
        fillIndex(static_cast<int>(i), *parameters[i]);
    }
}

void DialogDataGraph::fillIndex(int index, const ProfileParameter& parameter)
{
    const EntryList& entries = mRecord->entries(static_cast<std::uint32_t>(parameter.id));
    const auto trace = static_cast<unsigned int>(index);
    const auto put = [&](const RecordEntry& entry) {
        mGraph->setTime(entry.time);
        mGraph->putValue(trace, mProfile.getDouble(entry, parameter, true), false);
    };
    mProfile.resetCoordinates(); // positions are judged by those before them
    if (entries.isSorted()) {
        for (const RecordEntry& entry : entries) {
            put(entry);
        }
        return;
    }
    for (const RecordEntry* entry : entries.sortedByTime()) {
        put(*entry);
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
        mCommand = eGraphNoCommand; // dragged off the button: the user thinks better of it
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
    trackHistory();
    if (mStatistic->isVisible()) {
        mStatistic->update(mGraph->model());
    }
}

} // namespace VELIX
