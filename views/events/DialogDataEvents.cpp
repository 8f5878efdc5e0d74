#include "views/events/DialogDataEvents.h"

#include "card/RecordData.h"
#include "export/EventCsv.h"
#include "export/OutputFile.h"
#include "gui/dialogs/DialogService.h"
#include "gui/look/CopyFilter.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/common/ThresholdDelegate.h"
#include "views/events/EventItems.h"
#include "views/events/EventPrint.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kColumnTime = 0;
constexpr int kColumnEvent = 1;
constexpr int kRowHeight = 15;
constexpr int kGridLine = 1;
constexpr int kTimeWidth = 80;
constexpr int kCellMargin = 12;
constexpr int kEventMargin = 24; // and the stripe ahead of the text
constexpr int kBold = 75;

} // namespace

DialogDataEvents::DialogDataEvents(Profile& profile, DialogService& dialogs, const Texts& texts,
                                   QWidget* parent)
    : QWidget(parent),
      mTable(new QTableWidget(this)),
      mProfile(profile),
      mDialogs(dialogs),
      mTexts(texts),
      mFolder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)),
      mHint(new WidgetHint(this))
{
    createTable();
    createActions();
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTable, 0, 0);
    layout->addWidget(mHint, 0, 0);
    updateHint();
}

DialogDataEvents::~DialogDataEvents()
{
    mBusy = true; // rows that go are no choice of the user's
    mCursorRow = -1;
    delete mTable;
}

void DialogDataEvents::createTable()
{
    mTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mTable->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    mTable->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    mTable->setWordWrap(false);
    mTable->setStyleSheet(QStringLiteral("selection-background-color: rgba(100, 100, 255, 255);"));
    mTable->setItemDelegate(new ThresholdDelegate(mTable));
    mTable->setTabKeyNavigation(false);
    mTable->setAutoScroll(false); // it would scroll aside as well, away from the times
    mTable->setAccessibleName(mTexts.header);
    mTable->verticalHeader()->setVisible(false);
    mTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);

    mTable->setColumnCount(2);
    mTable->setHorizontalHeaderLabels({tr("Time"), mTexts.header});
    // In a narrow pane the middle of the column is out of sight.
    mTable->horizontalHeaderItem(kColumnEvent)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QHeaderView* header = mTable->horizontalHeader();
    QFont bold = header->font();
    bold.setWeight(kBold);
    header->setFont(bold);
    header->setHighlightSections(false);
    header->setSectionResizeMode(kColumnEvent, QHeaderView::Stretch);
    fitCells();
    mTable->viewport()->installEventFilter(this);

    CopyFilter::install(mTable);
    connect(mTable, &QTableWidget::itemSelectionChanged, this, &DialogDataEvents::slotSelect);
    // A list that was not on screen yet gets its height late; then the cursor's row has to move.
    connect(mTable->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            &DialogDataEvents::centreRow);
}

void DialogDataEvents::createActions()
{
    const auto addAction = [this](const QString& text, auto slot) {
        auto* action = new QAction(text, mTable);
        mTable->addAction(action);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    mTable->setContextMenuPolicy(Qt::ActionsContextMenu);
    mCopy = addAction(tr("Copy"), &DialogDataEvents::copy);
    mSave = addAction(tr("Save as CSV ..."), &DialogDataEvents::saveCsv);
    mShowInGraph = addAction(tr("Show in graph"), &DialogDataEvents::showInGraph);
    mShowInGraph->setVisible(false);
}

void DialogDataEvents::connectNotify(const QMetaMethod& signal)
{
    if (signal == QMetaMethod::fromSignal(&DialogDataEvents::signalShowInGraph)) {
        mShowInGraph->setVisible(true);
    }
}

void DialogDataEvents::setTime(double seconds)
{
    if (mTable->rowCount() == 0) {
        return;
    }
    const QScopedValueRollback<bool> busy(mBusy, true);
    const auto above = mKeyToRow.upper_bound(timeKey(seconds));
    const std::uint32_t row = above == mKeyToRow.begin() ? 0 : std::prev(above)->second;
    mCursorRow = static_cast<int>(row);
    QItemSelectionModel* selection = mTable->selectionModel();
    const QModelIndex cell = mTable->model()->index(mCursorRow, kColumnTime);
    if (selection->currentIndex().row() != mCursorRow || !selection->isSelected(cell)) {
        selection->setCurrentIndex(cell,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    centreRow();
}

/// Only up and down: what was scrolled aside to be read stays.
void DialogDataEvents::centreRow()
{
    const auto item = mRowToItem.find(static_cast<std::uint32_t>(mCursorRow));
    if (mCursorRow < 0 || item == mRowToItem.end()) {
        return;
    }
    const int row = item->second->row();
    mTable->verticalScrollBar()->setValue(mTable->verticalHeader()->sectionPosition(row) -
                                          (mTable->viewport()->height() - mTable->rowHeight(row)) /
                                              2);
}

/// Scrolls no farther than the cursor's row needs to be seen.
void DialogDataEvents::showRow()
{
    QScrollBar* bar = mTable->verticalScrollBar();
    const int top = mTable->verticalHeader()->sectionPosition(mCursorRow);
    const int highest = top + mTable->rowHeight(mCursorRow) - mTable->viewport()->height();
    bar->setValue(std::max(std::min(bar->value(), top), highest));
}

void DialogDataEvents::updateRecord(RecordData* record)
{
    mKeyToRow.clear();
    mEvents.clear();
    mRecord = record;
    if (record == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> busy(mBusy, true);
    mEvents = findEvents(*record, mProfile);
    clearRows();
    mTable->setRowCount(static_cast<int>(mEvents.size()));
    {
        // A record can have as many events as samples; each cell would tell the view of itself.
        const QSignalBlocker quiet(mTable->model());
        fillTime();
        fillEvents();
    }
    mTable->doItemsLayout();
    fitEvents();
    updateHint();
    setTime(record->cursorTime);
}

void DialogDataEvents::clear()
{
    updateRecord(nullptr);
    clearRows();
    updateHint();
}

void DialogDataEvents::clearRows()
{
    const QScopedValueRollback<bool> busy(mBusy, true);
    mRowToItem.clear();
    mKeyToRow.clear();
    mCursorRow = -1;
    mTable->setRowCount(0);
}

void DialogDataEvents::fillTime()
{
    std::uint32_t row = 0;
    for (const RecordLimit* event : mEvents) {
        auto* item = new EventTimeItem(event->time);
        mTable->setItem(static_cast<int>(row), kColumnTime, item);
        mRowToItem.emplace_hint(mRowToItem.end(), row, item);
        mKeyToRow.insert_or_assign(mKeyToRow.end(), event->key, row); // of one key the last row
        ++row;
    }
}

void DialogDataEvents::fillEvents()
{
    int row = 0;
    for (const RecordLimit* event : mEvents) {
        mTable->setItem(row++, kColumnEvent, new EventTextItem(event->text, event->color));
    }
}

void DialogDataEvents::fitCells()
{
    const QFontMetrics metrics = mTable->fontMetrics();
    QHeaderView* rows = mTable->verticalHeader();
    const int height = std::max(kRowHeight, metrics.height() + kGridLine);
    rows->setMinimumSectionSize(height);
    rows->setDefaultSectionSize(height);
    const int text = metrics.horizontalAdvance(QStringLiteral("00:00:00.000")) + kCellMargin;
    const int heading = mTable->horizontalHeader()->sectionSizeHint(kColumnTime);
    mTable->setColumnWidth(kColumnTime, std::max({kTimeWidth, text, heading}));
    fitEvents();
}

/// The value stands at the end of an event, so a pane that is too narrow must not cut it off: the
/// column takes the room that is left or, if that is not enough, can be scrolled.
void DialogDataEvents::fitEvents()
{
    const auto longest = std::max_element(mEvents.begin(), mEvents.end(), [](auto* a, auto* b) {
        return a->text.size() < b->text.size();
    });
    mEventWidth = longest == mEvents.end()
                      ? 0
                      : mTable->fontMetrics().horizontalAdvance((*longest)->text) + kEventMargin;
    stretchEvents();
}

void DialogDataEvents::stretchEvents()
{
    const int room = mTable->viewport()->width() - mTable->columnWidth(kColumnTime);
    QHeaderView* header = mTable->horizontalHeader();
    const bool fits = room >= mEventWidth;
    header->setSectionResizeMode(kColumnEvent, fits ? QHeaderView::Stretch : QHeaderView::Fixed);
    if (!fits) {
        mTable->setColumnWidth(kColumnEvent, mEventWidth);
    }
}

bool DialogDataEvents::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == mTable->viewport()) {
        stretchEvents();
    }
    return QWidget::eventFilter(watched, event);
}

void DialogDataEvents::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        // The table hears of a new font after its parent.
        QMetaObject::invokeMethod(
            this,
            [this] {
                fitCells();
                centreRow();
            },
            Qt::QueuedConnection);
    }
}

void DialogDataEvents::updateHint()
{
    QString text;
    if (mRecord == nullptr) {
        text = WidgetHint::noRecord();
    } else if (mEvents.empty()) {
        text = mProfile.isEmpty() ? mTexts.noProfile : mTexts.none;
    }
    mHint->setHint(text);
    mHint->setVisible(!text.isEmpty());
    mTable->setVisible(text.isEmpty());
}

const QTableWidgetItem* DialogDataEvents::selectedTime() const
{
    for (const QTableWidgetItem* item : mTable->selectedItems()) {
        if (item->column() == kColumnTime) {
            return item;
        }
    }
    return nullptr;
}

void DialogDataEvents::slotSelect()
{
    const QTableWidgetItem* item = mBusy ? nullptr : selectedTime();
    if (item != nullptr) {
        mCursorRow = item->row();
        showRow();
        // Conversion to an integer would round; a cursor behind the event's first sample could
        // already show the next one.
        emit signalTime(std::trunc(item->data(Qt::UserRole).toDouble()) * 0.001);
    }
}

void DialogDataEvents::showInGraph()
{
    if (const QTableWidgetItem* item = selectedTime()) {
        emit signalShowInGraph(std::trunc(item->data(Qt::UserRole).toDouble()) * 0.001);
    }
}

void DialogDataEvents::copy() const
{
    const QModelIndexList selected = mTable->selectionModel()->selectedIndexes();
    if (!selected.isEmpty()) {
        QGuiApplication::clipboard()->setText(
            CopyFilter::copyText(*mTable->model(), selected, true));
    }
}

QString DialogDataEvents::printTitle() const
{
    return mTexts.header;
}

QString DialogDataEvents::unprintableReason() const
{
    return mRecord == nullptr ? tr("No record loaded") : QString();
}

std::unique_ptr<PrintLayout> DialogDataEvents::printLayout(QPaintDevice& device,
                                                           const QSizeF& room) const
{
    const EventPrint::Texts texts{tr("Time"), mTexts.header, mHint->hint()};
    return std::make_unique<EventPrint>(mEvents, texts, device, room);
}

void DialogDataEvents::saveCsv()
{
    const QString path =
        mDialogs.saveFile(this, tr("Save List"), mFolder + QLatin1Char('/') + mTexts.fileName,
                          tr("CSV files (*.csv)"), QStringLiteral("csv"));
    if (path.isEmpty()) {
        return;
    }
    mFolder = QFileInfo(path).path();
    const QString reason =
        writeOutputFile(path, [this](QIODevice& out) { return writeEventCsv(mEvents, out); });
    emit signalNotice(reason.isEmpty()
                          ? tr("The list was saved as %1.").arg(path)
                          : tr("The list could not be saved as %1: %2").arg(path, reason));
}

} // namespace VELIX
