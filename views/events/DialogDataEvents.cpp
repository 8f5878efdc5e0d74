#include "views/events/DialogDataEvents.h"

#include "card/RecordData.h"
#include "export/EventCsv.h"
#include "export/OutputFile.h"
#include "gui/dialogs/DialogService.h"
#include "gui/look/CopyFilter.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/common/CursorTable.h"
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
#include <QSignalBlocker>
#include <QStandardPaths>

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

} // namespace

DialogDataEvents::DialogDataEvents(const Profile& profile, DialogService& dialogs,
                                   const Texts& texts, QWidget* parent)
    : QWidget(parent),
      mTable(new CursorTable(kRowHeight, kGridLine, this)),
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
    mBusy = true; // rows that are removed are no choice of the user's
    delete mTable;
}

void DialogDataEvents::createTable()
{
    mTable->setAutoScroll(false); // it would scroll aside as well, away from the times
    mTable->setAccessibleName(mTexts.header);
    mTable->verticalHeader()->setVisible(false);
    mTable->setColumnCount(2);
    mTable->setHorizontalHeaderLabels({tr("Time"), mTexts.header});
    // In a narrow pane the middle of the column is not visible.
    mTable->horizontalHeaderItem(kColumnEvent)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    mTable->horizontalHeader()->setSectionResizeMode(kColumnEvent, QHeaderView::Stretch);
    fitCells();
    mTable->viewport()->installEventFilter(this);
    connect(mTable, &QTableWidget::itemSelectionChanged, this, &DialogDataEvents::slotSelect);
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
    addAction(tr("Copy"), &DialogDataEvents::copy);
    addAction(tr("Save as CSV ..."), &DialogDataEvents::saveCsv);
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
    mTable->selectAndCenter(static_cast<int>(row));
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
        // A record can have as many events as samples; each cell would report itself to the view.
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
    mKeyToRow.clear();
    mTable->clearRows();
}

void DialogDataEvents::fillTime()
{
    std::uint32_t row = 0;
    for (const RecordLimit* event : mEvents) {
        mTable->setItem(static_cast<int>(row), kColumnTime, new EventTimeItem(event->time));
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
    mTable->fitRows();
    const int text =
        mTable->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00.000")) + kCellMargin;
    const int heading = mTable->horizontalHeader()->sectionSizeHint(kColumnTime);
    mTable->setColumnWidth(kColumnTime, std::max({kTimeWidth, text, heading}));
    fitEvents();
}

/// The value is at the end of an event, so a pane that is too narrow must not cut it off: the
/// column takes the space that is left or, if that is not enough, can be scrolled.
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
        // The table gets a new font after its parent.
        QMetaObject::invokeMethod(
            this,
            [this] {
                fitCells();
                mTable->centerCursor();
            },
            Qt::QueuedConnection);
    }
}

void DialogDataEvents::updateHint()
{
    WidgetHint::Message missing;
    if (mRecord == nullptr) {
        missing = WidgetHint::withoutRecord();
    } else if (mEvents.empty()) {
        missing.text = mProfile.isEmpty() ? mTexts.noProfile : mTexts.none;
    }
    mHint->showInsteadOf(mTable, missing);
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
        mTable->setCursorRow(item->row());
        mTable->showCursor();
        // Conversion to an integer would round; a cursor after the event's first sample could
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
    const Outcome outcome =
        writeOutputFile(path, [this](QIODevice& out) { return writeEventCsv(mEvents, out); });
    emit signalNotice(outcome.ok
                          ? tr("The list was saved as %1.").arg(path)
                          : tr("The list could not be saved as %1: %2").arg(path, outcome.reason));
}

} // namespace VELIX
