#include "gui/card/DialogCard.h"

#include "card/CardContainer.h"
#include "gui/card/CardTexts.h"
#include "gui/look/CopyFilter.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/TreeColumn.h"
#include "gui/look/WidgetHint.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kDebounceMs = 500; ///< a sweep over many rows loads once
constexpr int kIndentation = 16;
constexpr int kPathRole = Qt::UserRole;
constexpr int kCycleRole = Qt::UserRole;
constexpr int kFlightRole = Qt::UserRole + 1;

void fillItem(QTreeWidgetItem& item, const QString& text, const QString& tip, unsigned int cycle,
              int flight)
{
    item.setText(0, text);
    item.setToolTip(0, tip);
    item.setData(0, kCycleRole, cycle);
    item.setData(0, kFlightRole, flight);
}

} // namespace

DialogCard::DialogCard(CardContainer& card, QWidget* parent)
    : QWidget(parent),
      mCard(card),
      mTreeCycles(createCycleTree()),
      mTreeRaw(createRawTree()),
      mTabs(new QTabWidget(this)),
      mHint(new WidgetHint(this)),
      mPages(new QStackedWidget(this))
{
    createTimers();
    createLayout();
    connect(mTreeCycles, &QTreeWidget::itemSelectionChanged, this, &DialogCard::slotSelectCycle);
    connect(mTreeRaw, &QTreeWidget::itemSelectionChanged, this, &DialogCard::slotSelect);
    connect(mHint, &WidgetHint::signalLink, this, &DialogCard::signalOpenCard);
    updateHint();
}

QTreeWidget* DialogCard::createCycleTree()
{
    auto* tree = new QTreeWidget(this);
    tree->setHeaderLabels({tr("Cycle")});
    tree->setHeaderHidden(true);
    tree->setIndentation(kIndentation);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    tree->setObjectName(QStringLiteral("treeCycles"));
    tree->setAccessibleName(tr("Cycles"));
    CopyFilter::install(tree);
    return tree;
}

QTreeWidget* DialogCard::createRawTree()
{
    auto* tree = new QTreeWidget(this);
    tree->setHeaderLabels({tr("File"), tr("Date")});
    tree->header()->setStretchLastSection(true);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setObjectName(QStringLiteral("treeRaw"));
    tree->setAccessibleName(tr("Raw Data"));
    CopyFilter::install(tree);
    return tree;
}

void DialogCard::createTimers()
{
    for (QTimer* timer : {&mTimerRecord, &mTimerCycle}) {
        timer->setSingleShot(true);
        timer->setInterval(kDebounceMs);
    }
    connect(&mTimerRecord, &QTimer::timeout, this, &DialogCard::slotTimeout);
    connect(&mTimerCycle, &QTimer::timeout, this, &DialogCard::slotTimeoutLoadCycle);
}

void DialogCard::createLayout()
{
    const ImageHandler& images = ImageHandler::instance();
    mTabs->setDocumentMode(true);
    mTabs->addTab(mTreeCycles, images.icon(QStringLiteral("cycle")), tr("Cycles"));
    mTabs->addTab(mTreeRaw, images.icon(QStringLiteral("file")), tr("Raw Data"));
    mPages->addWidget(mHint);
    mPages->addWidget(mTabs);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mPages);
}

void DialogCard::reloadCardInfo()
{
    mTimerRecord.stop();
    mTimerCycle.stop();
    updateInfoPowerCycles();
    updateInfoRaw();
    updateHint();
    emit signalChanged();
}

void DialogCard::updateHint()
{
    if (!mCard.recordFiles().empty()) {
        mPages->setCurrentWidget(mTabs);
        return;
    }
    mHint->setHint(mCard.name().isEmpty()
                       ? tr("No card open. Open the folder of a data card.")
                       : tr("No record files in %1. Open the folder of a data card.")
                             .arg(CardContainer::name(mCard.name())),
                   tr("Open Data Folder"));
    mPages->setCurrentWidget(mHint);
}

void DialogCard::updateInfoPowerCycles()
{
    const QSignalBlocker blocker(mTreeCycles);
    mTreeCycles->clear();
    const QIcon icon = ImageHandler::instance().icon(QStringLiteral("cycle"));
    QList<QTreeWidgetItem*> items;
    for (const auto& [number, cycle] : mCard.recordCycles()) {
        auto* item = new QTreeWidgetItem;
        const QString text = CardTexts::cycle(cycle);
        fillItem(*item, text, text, number, -1);
        item->setIcon(0, icon);
        items.append(item);
    }
    mTreeCycles->addTopLevelItems(items);
    TreeColumn::fit(*mTreeCycles);
}

void DialogCard::updateInfoRaw()
{
    const QSignalBlocker blocker(mTreeRaw);
    mTreeRaw->clear();
    const QIcon icon = ImageHandler::instance().icon(QStringLiteral("file"));
    QList<QTreeWidgetItem*> items;
    for (const auto& [name, file] : mCard.recordFiles()) {
        const RecordInfo& info = file.recordInfo();
        auto* item = new QTreeWidgetItem({name, CardTexts::dateTime(info.dateTime)});
        item->setData(0, kPathRole, info.fileName);
        item->setToolTip(0, CardTexts::summary(info));
        item->setToolTip(1, CardTexts::summary(info));
        item->setIcon(0, icon);
        for (const QString& line : CardTexts::details(info)) {
            auto* detail = new QTreeWidgetItem(item, {line});
            detail->setFlags(Qt::ItemIsEnabled); // only whole files can be loaded
            detail->setToolTip(0, line);
        }
        items.append(item);
    }
    mTreeRaw->addTopLevelItems(items);
    for (QTreeWidgetItem* item : qAsConst(items)) {
        for (int i = 0; i < item->childCount(); ++i) {
            item->child(i)->setFirstColumnSpanned(true);
        }
    }
    mTreeRaw->resizeColumnToContents(0);
}

QTreeWidgetItem* DialogCard::cycleItem(unsigned int cycle) const
{
    for (int i = 0; i < mTreeCycles->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = mTreeCycles->topLevelItem(i);
        if (item->data(0, kCycleRole).toUInt() == cycle) {
            return item;
        }
    }
    return nullptr;
}

void DialogCard::addFlights(unsigned int cycle)
{
    QTreeWidgetItem* item = cycleItem(cycle);
    const auto found = mCard.recordCycles().find(cycle);
    if (item == nullptr || found == mCard.recordCycles().end()) {
        return;
    }
    const std::vector<RecordFlight>& flights = found->second.flights;
    const int count = static_cast<int>(flights.size());
    const bool firstTime = item->childCount() == 0;
    // Lines that are there are kept, so that selection, focus and scroll position stay.
    const QSignalBlocker blocker(mTreeCycles);
    while (item->childCount() > count) {
        delete item->takeChild(item->childCount() - 1);
    }
    for (int i = 0; i < count; ++i) {
        QTreeWidgetItem* child =
            i < item->childCount() ? item->child(i) : new QTreeWidgetItem(item);
        const RecordFlight& flight = flights[static_cast<std::size_t>(i)];
        fillItem(*child, CardTexts::flight(i + 1, flight), CardTexts::flightDetails(flight), cycle,
                 i);
        child->setIcon(0, ImageHandler::instance().icon(QStringLiteral("flight")));
    }
    if (firstTime) {
        item->setExpanded(true);
    }
    TreeColumn::fit(*mTreeCycles);
}

void DialogCard::slotSelect()
{
    mFiles.clear();
    // In card order, whatever the order of the clicks: the loaded span runs from the first to the
    // last file.
    for (int i = 0; i < mTreeRaw->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = mTreeRaw->topLevelItem(i);
        if (item->isSelected()) {
            mFiles.push_back(item->data(0, kPathRole).toString());
        }
    }
    if (mFiles.empty()) { // nothing to load: what is loaded stays on screen
        mTimerRecord.stop();
        return;
    }
    // The last choice counts, also when it follows one in the other tree at once.
    mTimerCycle.stop();
    const QSignalBlocker blocker(mTreeCycles);
    mTreeCycles->clearSelection();
    mTimerRecord.start();
}

void DialogCard::slotSelectCycle()
{
    const QList<QTreeWidgetItem*> selected = mTreeCycles->selectedItems();
    if (selected.isEmpty()) {
        mTimerCycle.stop();
        return;
    }
    mCycle = selected.front()->data(0, kCycleRole).toUInt();
    mFlight = selected.front()->data(0, kFlightRole).toInt();
    mTimerRecord.stop();
    const QSignalBlocker blocker(mTreeRaw);
    mTreeRaw->clearSelection();
    mTimerCycle.start();
}

void DialogCard::slotTimeout()
{
    emit signalLoadRecord(mFiles);
}

void DialogCard::slotTimeoutLoadCycle()
{
    emit signalLoadCycle(mCycle, mFlight);
    if (mFlight < 0) {
        addFlights(mCycle);
    }
}

} // namespace VELIX
