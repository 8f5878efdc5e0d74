// What the graph view offers around the graph: sentences, snapshots, visited ranges, values.
#include "gui/dialogs/DialogService.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/graph/DialogDataGraph.h"
#include "views/graph/GraphPrint.h"
#include "views/graph/GraphSnapshot.h"
#include "views/graph/GraphStatisticTable.h"
#include "views/graph/widget/WidgetGraph.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPixmap>

namespace VELIX {

namespace {

constexpr int kTicksOfRest = 6; ///< a range that stays for that many ticks was visited

} // namespace

/// Says what is missing where a graph would only be black.
void DialogDataGraph::updateHint()
{
    QString text;
    QString link;
    mOffer = Offer::SelectParameters;
    if (mProfile.isEmpty()) {
        mOffer = Offer::InstallProfile;
        text = WidgetHint::noProfile();
        link = WidgetHint::installProfile();
    } else if (mRecord == nullptr) {
        text = WidgetHint::noRecord();
    } else if (mTraceNames.isEmpty()) {
        text = tr("No parameter selected. Choose parameters in the list on the left and confirm.");
        link = tr("Select parameters");
    } else if (mCleared) {
        mOffer = Offer::Refill;
        text = tr("The graph has been cleared.");
        link = tr("Show the record again");
    }
    mHint->setHint(text, link);
    mHint->setVisible(!text.isEmpty());
    mGraph->setVisible(text.isEmpty());
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
    mSurplus->setVisible(selected > kMaxTraces);
    mSurplus->setText(tr("%1 parameters are selected; the graph shows the first %2 of them.")
                          .arg(selected)
                          .arg(kMaxTraces));
}

void DialogDataGraph::saveSnapshot()
{
    const QPixmap picture = grab(); // before the file dialog can cover the view
    const QString file =
        mDialogs.saveFile(this, tr("Save Snapshot"), QStringLiteral("./snapshot.bmp"),
                          tr("BMP File (*.bmp);;All Files (*.*)"), QStringLiteral("bmp"));
    if (file.isEmpty()) {
        return;
    }
    const QString failure = GraphSnapshot::save(*mGraph, picture, file);
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
    return mTraceNames.isEmpty() ? tr("No parameter selected") : QString();
}

std::unique_ptr<PrintLayout> DialogDataGraph::printLayout(QPaintDevice& device,
                                                          const QSizeF& room) const
{
    return std::make_unique<GraphPrint>(mGraph->model(), mGraph->look(), mGraph->markersOn(),
                                        mGraph->font(), device, room);
}

/// Whether the user has changed the range since the view looked last.
bool DialogDataGraph::noteUserRange()
{
    const GraphTimeRange& range = mGraph->model().range();
    if (range == mSeenRange) {
        return false;
    }
    mSeenRange = range;
    mVisitPending = true;
    mStillTicks = 0;
    return true;
}

/// A range counts as visited once it rests: holding a zoom button is one visit, not twenty.
void DialogDataGraph::trackHistory()
{
    if (!noteUserRange() && mVisitPending && ++mStillTicks >= kTicksOfRest) {
        mVisitPending = false;
        mHistory.visit(mSeenRange);
    }
    updateHistoryActions();
}

void DialogDataGraph::stepHistory(bool forward)
{
    noteUserRange();
    if (mVisitPending) {
        mVisitPending = false;
        mHistory.visit(mSeenRange);
    }
    if (const auto range = forward ? mHistory.forward() : mHistory.back()) {
        setRange(*range);
        mSeenRange = mGraph->model().range();
    }
    updateHistoryActions();
}

void DialogDataGraph::updateHistoryActions()
{
    mCommands->backAction()->setEnabled(mHistory.canGoBack() || mVisitPending);
    mCommands->forwardAction()->setEnabled(mHistory.canGoForward() && !mVisitPending);
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
