#include "views/window/DialogData.h"

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/Property.h"
#include "gui/dialogs/StandardDialogs.h"
#include "platform/tessel/Timer.h"
#include "views/common/CursorTime.h"
#include "views/events/DialogDataLimit.h"
#include "views/events/DialogDataWarning.h"
#include "views/fault/DialogDataErrorMatrix.h"
#include "views/graph/DialogDataGraph.h"
#include "views/map/DialogDataMap.h"
#include "views/panel/DialogDataView.h"
#include "views/replay/ReplayControls.h"
#include "views/replay/ReplayKeys.h"
#include "views/statistic/DialogDataStatistic.h"
#include "views/table/DialogDataTable.h"
#include "views/window/DataPages.h"
#include "views/window/MapSplitter.h"
#include "views/window/PageTabBar.h"

#include <QApplication>
#include <QTime>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kReplayPeriod = 20; // ms

const DataHandler& pathsWithoutHome()
{
    static const DataHandler paths = [] {
        DataHandler resourcesOnly;
        resourcesOnly.init(nullptr, QCoreApplication::applicationDirPath().toStdString());
        return resourcesOnly;
    }();
    return paths;
}

} // namespace

DialogData::DialogData(const Profile& profile, CardContainer& card, bool emuOnly, QWidget* parent)
    : DialogData(profile, card, Property::instance(), StandardDialogs::instance(), emuOnly, parent)
{}

DialogData::DialogData(const Profile& profile, CardContainer& card, Property& settings,
                       DialogService& dialogs, bool emuOnly, QWidget* parent)
    : DialogData(profile, card, settings, dialogs, pathsWithoutHome(), emuOnly, parent)
{}

DialogData::DialogData(const Profile& profile, CardContainer& card, Property& settings,
                       DialogService& dialogs, const DataHandler& paths, bool emuOnly,
                       QWidget* parent)
    : QWidget(parent),
      mProfile(profile),
      mCard(card),
      mClock([watch = Tessel::Misc::Timer()] { return watch.elapsed(); })
{
    createViews(settings, dialogs, paths);
    createPages();
    auto* row = new QHBoxLayout;
    row->addWidget(&mPages->tabs(), 1);
    mSplitter = new MapSplitter(mPages, mMap, *row);
    mSplitter->setObjectName(QStringLiteral("splitter"));
    connect(mSplitter, &MapSplitter::signalArrangement, this, &DialogData::slotMapType);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(mSplitter, 1);
    createControls(emuOnly);
    layout->addWidget(mControls);
    mControls->showReplay(mClock);
    mKeys->setEnabled(false);
}

void DialogData::createViews(Property& settings, DialogService& dialogs, const DataHandler& paths)
{
    mTable = new DialogDataTable(mProfile, this);
    mTable->setObjectName(QStringLiteral("viewTable"));
    mGraph = new DialogDataGraph(mProfile, settings, dialogs, this);
    mGraph->setObjectName(QStringLiteral("viewGraph"));
    mInstrument = new DialogDataView(mProfile, mCard, paths, this);
    mInstrument->setObjectName(QStringLiteral("viewInstrument"));
    mFaultMatrix = new DialogDataErrorMatrix(mProfile, this);
    mFaultMatrix->setObjectName(QStringLiteral("viewFaultMatrix"));
    mLimit = new DialogDataLimit(mProfile, dialogs, this);
    mLimit->setObjectName(QStringLiteral("viewLimit"));
    mWarning = new DialogDataWarning(mProfile, dialogs, this);
    mWarning->setObjectName(QStringLiteral("viewWarning"));
    mStatistic = new DialogDataStatistic(this);
    mStatistic->setObjectName(QStringLiteral("viewStatistic"));
    mMap = new DialogDataMap(mProfile, mCard, settings, paths.dataPath(), this);
    mMap->setObjectName(QStringLiteral("viewMap"));

    mRoutes.setView(EView::Table, *mTable);
    mRoutes.setView(EView::Graph, *mGraph);
    mRoutes.setView(EView::Instrument, *mInstrument);
    mRoutes.setView(EView::FaultMatrix, *mFaultMatrix);
    mRoutes.setView(EView::Limit, *mLimit);
    mRoutes.setView(EView::Warning, *mWarning);
    mRoutes.setView(EView::Statistic, *mStatistic);
    mRoutes.setView(EView::Map, *mMap);
    connectViews();
}

void DialogData::connectViews()
{
    connect(mTable, &DialogDataTable::signalTime, this, &DialogData::slotTableTime);
    connect(mTable, &DialogDataTable::signalInstallProfile, this,
            &DialogData::signalInstallProfile);
    connect(mFaultMatrix, &DialogDataErrorMatrix::signalInstallProfile, this,
            &DialogData::signalInstallProfile);
    connect(mTable, &DialogDataTable::signalSelectParameters, this,
            &DialogData::signalSelectParameters);
    connect(mInstrument, &DialogDataView::signalInstallProfile, this,
            &DialogData::signalInstallProfile);
    connect(mGraph, &DialogDataGraph::signalCursor, this, &DialogData::slotCursor);
    connect(mGraph, &DialogDataGraph::signalNotice, this, &DialogData::signalNotice);
    connect(mGraph, &DialogDataGraph::signalInstallProfile, this,
            &DialogData::signalInstallProfile);
    connect(mGraph, &DialogDataGraph::signalSelectParameters, this,
            &DialogData::signalSelectParameters);
    connect(mLimit, &DialogDataEvents::signalTime, this, &DialogData::slotLimitTime);
    connect(mWarning, &DialogDataEvents::signalTime, this, &DialogData::slotWarningTime);
    connect(mLimit, &DialogDataEvents::signalNotice, this, &DialogData::signalNotice);
    connect(mWarning, &DialogDataEvents::signalNotice, this, &DialogData::signalNotice);
    connect(mLimit, &DialogDataEvents::signalShowInGraph, this, &DialogData::slotShowInGraph);
    connect(mWarning, &DialogDataEvents::signalShowInGraph, this, &DialogData::slotShowInGraph);
}

void DialogData::createPages()
{
    mPages = new DataPages;
    mPages->setObjectName(QStringLiteral("viewStack"));
    mPages->tabs().setObjectName(QStringLiteral("tabBar"));
    mPages->addPage(mTable, "tab-data", tr("Data"), "table");
    mPages->addPage(mGraph, "tab-graph", tr("Graph"), "graph");
    mPages->addPage(mFaultMatrix, "tab-fault", tr("Fault Matrix"), "fault");
    mPages->addPage(mLimit, "tab-limit", tr("Limit/Warning"), "limit");
    mPages->addPage(mWarning, "tab-warning", tr("Warning Lamps"), "warning");
    mPages->addPage(mStatistic, "tab-statistic", tr("Tow Statistic"), "statistic");
    mPages->addPage(mInstrument, "tab-view", tr("EMU View"), "instrument");
    connect(mPages, &QStackedWidget::currentChanged, this, &DialogData::signalPageChanged);
}

void DialogData::createControls(bool emuOnly)
{
    mControls = new ReplayControls(emuOnly, this);
    connect(mControls, &ReplayControls::signalMode, this, &DialogData::slotReplayMode);
    connect(mControls, &ReplayControls::signalStop, this, &DialogData::slotReplayStop);
    connect(mControls, &ReplayControls::signalSlider, this, &DialogData::slotSlider);
    connect(mControls, &ReplayControls::signalValue, this, &DialogData::slotValue);
    connect(mControls, qOverload<int>(&ReplayControls::signalSpeed), this,
            qOverload<int>(&DialogData::slotReplaySpeed));
    connect(mControls, qOverload<double>(&ReplayControls::signalSpeed), this,
            qOverload<double>(&DialogData::slotReplaySpeed));

    mReplayTimer.setInterval(kReplayPeriod);
    mReplayTimer.setTimerType(Qt::PreciseTimer);
    connect(&mReplayTimer, &QTimer::timeout, this, &DialogData::slotTimeoutReplay);

    mKeys = new ReplayKeys(this);
    connect(mKeys, &ReplayKeys::signalToggle, this, &DialogData::slotReplayMode);
    connect(mKeys, &ReplayKeys::signalStep, this, [this](double seconds) {
        mClock.step(seconds);
        updateTime();
    });
}

void DialogData::updateRecord()
{
    mRecord = mCard.hasRecord() ? &mCard.recordData() : nullptr;
    if (mRecord == nullptr) {
        closeRecord();
        return;
    }
    mClock.setRecord(mRecord->startTime, mRecord->stopTime);
    mRecord->cursorTime = mClock.cursor();
    mControls->setRecordOpen(true);
    mControls->showReplay(mClock);
    mKeys->setEnabled(true);
    updateDisplay();
    mRoutes.updateRecord(mRecord);
    mRoutes.setTime(ECursorSource::Reload, mClock.cursor());
    mPages->uncover();
}

void DialogData::releaseRecord()
{
    mRecord = nullptr; // a running replay waits for the next record
    mRoutes.updateRecord(nullptr);
    // Pages without a record would ask for one that is being loaded already.
    const QString sentence = tr("Loading the record ...");
    mPages->cover(sentence);
    mMap->showHint(sentence);
}

void DialogData::closeRecord()
{
    releaseRecord();
    mPages->uncover();
    mMap->updateRecord(nullptr); // its hint says so
    mLimit->clear();             // released lists keep showing the last record
    mWarning->clear();
    mReplayTimer.stop();
    mClock.rewind();
    mControls->setRecordOpen(false);
    mControls->showReplay(mClock);
    mKeys->setEnabled(false);
}

void DialogData::updateProfile()
{
    if (mRecord != nullptr) {
        mCard.calcFlightPath(); // other parameters may carry the position now
    }
    mRoutes.updateProfile();
    mRoutes.setTime(ECursorSource::Reload, mClock.cursor());
}

void DialogData::loadProfile()
{
    mFaultMatrix->loadProfile();
    mFaultMatrix->updateRecord(mRecord);
    mFaultMatrix->setTime(mClock.cursor());
}

QString DialogData::helpTopic() const
{
    const QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && (mMap == focus || mMap->isAncestorOf(focus))) {
        return QStringLiteral("map");
    }
    return mPages->helpTopic();
}

const Printable* DialogData::printablePage() const
{
    return mPages->printable();
}

void DialogData::setCursor(ECursorSource source, double seconds)
{
    mClock.setCursor(seconds);
    if (mRecord != nullptr) {
        mRecord->cursorTime = seconds;
    }
    mRoutes.setTime(source, seconds);
    updateDisplay();
}

void DialogData::updateTime()
{
    setCursor(ECursorSource::Replay, mClock.cursor());
}

void DialogData::slotTimeoutReplay()
{
    if (mRecord == nullptr) {
        return;
    }
    const bool beyondEnd = mClock.tick();
    updateTime();
    if (beyondEnd) {
        slotReplayStop();
    }
}

void DialogData::slotReplayMode()
{
    mClock.toggle();
    if (mClock.state() == eReplayRunning) {
        mReplayTimer.start();
    } else {
        mReplayTimer.stop();
    }
    mControls->showReplay(mClock);
}

void DialogData::slotReplayStop()
{
    mReplayTimer.stop();
    mClock.rewind();
    updateTime();
    mControls->showReplay(mClock);
}

void DialogData::slotReplaySpeed(int value)
{
    mClock.setSpeed(value / 100.0);
    mControls->showReplay(mClock);
}

void DialogData::slotReplaySpeed(double value)
{
    mClock.setSpeed(value);
    mControls->showReplay(mClock);
}

void DialogData::slotSlider(int value)
{
    setCursor(ECursorSource::Replay, CursorTime::sliderTime(mClock.start(), mClock.stop(), value));
}

void DialogData::slotValue(const QTime& time)
{
    setCursor(ECursorSource::TimeEdit, QTime(0, 0).secsTo(time));
}

void DialogData::slotCursor(float time, double)
{
    setCursor(ECursorSource::Graph, static_cast<double>(time));
}

void DialogData::slotTableTime(double time)
{
    setCursor(ECursorSource::Table, time);
}

void DialogData::slotLimitTime(double time)
{
    setCursor(ECursorSource::LimitList, time);
}

void DialogData::slotWarningTime(double time)
{
    setCursor(ECursorSource::WarningList, time);
}

/// The graph moves after its tab was chosen: it then has its size.
void DialogData::slotShowInGraph(double time)
{
    mPages->showPage(mGraph);
    mGraph->showAround(time);
}

void DialogData::slotMapType(int id)
{
    mSplitter->arrange(id);
}

void DialogData::updateDisplay()
{
    if (mRecord != nullptr) {
        mControls->showCursor(mClock, mRecord->startDateTime);
    }
}

} // namespace VELIX
