#include "views/table/DialogDataTable.h"

#include "card/SampleWalk.h"
#include "gui/look/WidgetHint.h"
#include "profile/Profile.h"
#include "views/common/CursorTable.h"
#include "views/table/ColumnWidth.h"

#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kLivePeriod = 50; // ms
constexpr int kLeastRowHeight = 22;
constexpr int kRowMargin = 6;
constexpr int kCellMargin = 16;

} // namespace

DialogDataTable::DialogDataTable(const Profile& profile, QWidget* parent)
    : QWidget(parent),
      mProfile(profile),
      mTable(new CursorTable(kLeastRowHeight, kRowMargin, this)),
      mHint(new WidgetHint(this))
{
    createTable();
    createHint();
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTable, 0, 0);
    layout->addWidget(mHint, 0, 0);
    mLiveTimer.setInterval(kLivePeriod);
    connect(&mLiveTimer, &QTimer::timeout, this, &DialogDataTable::slotTimeout);
    updateProfile();
}

DialogDataTable::~DialogDataTable()
{
    // The table is deleted while the slots and the columns that its cells point into still exist.
    mSelecting = true;
    delete mTable;
}

void DialogDataTable::createTable()
{
    mTable->setAccessibleName(tr("Values of the record"));
    connect(mTable, &QTableWidget::itemSelectionChanged, this, &DialogDataTable::slotSelect);
}

void DialogDataTable::createHint()
{
    connect(mHint, &WidgetHint::signalLink, this, [this] {
        if (mOffersInstall) {
            emit signalInstallProfile();
        } else {
            emit signalSelectParameters();
        }
    });
}

void DialogDataTable::setTime(double seconds)
{
    mTime = seconds;
    if (mMode != 0 || mRows.empty()) {
        return;
    }
    const QScopedValueRollback<bool> selecting(mSelecting, true);
    mTable->selectAndCenter(static_cast<int>(mRows.rowAt(timeKey(seconds))));
}

void DialogDataTable::updateRecord(RecordData* record)
{
    clearCells();
    mRecord = record;
    fillRecord();
    if (record != nullptr) {
        setTime(record->startTime);
    }
}

void DialogDataTable::updateProfile()
{
    clearCells();
    takeColumns();
    fillHeaders();
    fillRecord();
    setTime(mTime);
}

void DialogDataTable::setVelixMode(int mode)
{
    mMode = mode;
    updateProfile();
    if (mode != 0) {
        mLiveTimer.start();
        slotTimeout();
    } else {
        mLiveTimer.stop();
    }
}

void DialogDataTable::takeColumns()
{
    mColumns.clear();
    for (const ProfileParameter* parameter : mProfile.selectedParameters()) {
        mColumns.push_back(std::make_unique<TableColumn>(TableColumn{mProfile, *parameter}));
    }
}

void DialogDataTable::fillHeaders()
{
    QStringList labels;
    for (const auto& column : mColumns) {
        labels.append(mProfile.format(column->parameter).label(NumberFormat::EUnitOf::Text));
    }
    if (mMode == 0) {
        mTable->setColumnCount(1 + labels.size());
        mTable->setHorizontalHeaderLabels(QStringList(tr("Time")) + labels);
    } else {
        mTable->setColumnCount(1);
        mTable->setHorizontalHeaderLabels({tr("Value")});
        mTable->setRowCount(labels.size());
        mTable->setVerticalHeaderLabels(labels);
    }
    mTable->verticalHeader()->setVisible(mMode != 0);
    for (int column = 0; column < mTable->columnCount(); ++column) {
        mTable->horizontalHeaderItem(column)->setToolTip(
            mMode == 0 && column > 0 ? mColumns[column - 1]->parameter.fullName : QString());
    }
}

void DialogDataTable::clearCells()
{
    const QScopedValueRollback<bool> selecting(mSelecting, true);
    mTable->clearContents();
    mTable->clearRows();
    mRows = {};
}

/// Fills the table from the record at hand; the cells are empty before.
void DialogDataTable::fillRecord()
{
    const QScopedValueRollback<bool> selecting(mSelecting, true);
    if (mMode != 0) {
        mTable->setRowCount(static_cast<int>(mColumns.size()));
        slotTimeout();
    } else if (mRecord != nullptr) {
        calcTime();
        mTable->setRowCount(static_cast<int>(mRows.size()));
        {
            // A million cells would each report to the view that they have changed.
            const QSignalBlocker quiet(mTable->model());
            fillTime();
            for (std::size_t i = 0; i < mColumns.size(); ++i) {
                fillColumn(static_cast<int>(i) + 1, *mColumns[i]);
            }
        }
        mTable->doItemsLayout();
    }
    fitColumns();
    updateHint();
}

void DialogDataTable::calcTime()
{
    std::vector<const EntryList*> lists;
    for (const auto& column : mColumns) {
        lists.push_back(&entriesOf(*column));
    }
    mRows = TimeRows(lists);
}

void DialogDataTable::fillTime()
{
    for (std::size_t row = 0; row < mRows.size(); ++row) {
        mTable->setItem(static_cast<int>(row), 0, new TableTimeItem(mRows.key(row)));
    }
}

void DialogDataTable::fillColumn(int column, const TableColumn& context)
{
    const EntryList& entries = entriesOf(context);
    if (context.parameter.coordinate != ECoordinate::None) {
        fillCoordinates(column, context);
        return;
    }
    const bool sorted = entries.isSorted(); // then no row comes again after another one
    TableValueItem* item = nullptr;
    std::size_t itemRow = 0;
    for (const RecordEntry& entry : entries) {
        const std::size_t row = mRows.row(rowKey(entry), itemRow);
        if (item == nullptr || row != itemRow) {
            itemRow = row;
            const int at = static_cast<int>(row);
            item = sorted ? nullptr : static_cast<TableValueItem*>(mTable->item(at, column));
            if (item == nullptr) {
                item = new TableValueItem(context, entry);
                mTable->setItem(at, column, item);
                continue;
            }
        }
        item->setEntry(entry); // the last sample of a tenth of a second counts
    }
}

/// A position is judged by those before it, so the texts are made here, in order of time.
void DialogDataTable::fillCoordinates(int column, const TableColumn& context)
{
    const ProfileDecoder decoder = mProfile.decoder();
    std::size_t row = 0;
    forEachSampleByTime(*mRecord, context.parameter, mProfile, [&](const ParameterSample& sample) {
        int state = eThresholdOk;
        QColor color;
        const QString text = decoder.text(sample, state, color);
        row = mRows.row(rowKey(sample.entry()), row);
        const int at = static_cast<int>(row);
        auto* item = static_cast<TableTextItem*>(mTable->item(at, column));
        if (item == nullptr) {
            item = new TableTextItem;
            mTable->setItem(at, column, item);
        }
        item->setValue(text, valueBackground(state, color));
    });
}

const EntryList& DialogDataTable::entriesOf(const TableColumn& column) const
{
    return mRecord->entries(column.parameter);
}

void DialogDataTable::fitColumns()
{
    const QFontMetrics metrics = mTable->fontMetrics();
    for (int column = 0; column < mTable->columnCount(); ++column) {
        int text = widestText(*mTable, column);
        if (mMode == 0 && column > 0) {
            text = std::max(text, widestLabel(mProfile, mColumns[column - 1]->parameter, metrics));
        }
        const int heading = mTable->horizontalHeader()->sectionSizeHint(column);
        mTable->setColumnWidth(column, std::max(heading, text + kCellMargin));
    }
}

void DialogDataTable::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        // The table gets a new font after its parent.
        QMetaObject::invokeMethod(
            this,
            [this] {
                mTable->fitRows();
                fitColumns();
                mTable->centerCursor();
            },
            Qt::QueuedConnection);
    }
}

void DialogDataTable::slotSelect()
{
    if (mSelecting || mMode != 0) {
        return;
    }
    for (const QTableWidgetItem* item : mTable->selectedItems()) {
        if (item->column() == 0) {
            mTable->setCursorRow(item->row());
            emit signalTime(static_cast<double>(item->data(Qt::UserRole).toLongLong()) * 0.001);
        }
    }
}

void DialogDataTable::slotTimeout()
{
    if (mMode == 0 || mRecord == nullptr) {
        return;
    }
    int row = 0;
    for (const auto& column : mColumns) {
        const RecordIdList* list = mRecord->find(column->parameter);
        if (list != nullptr && !list->entries.empty()) {
            auto* item = static_cast<TableTextItem*>(mTable->item(row, 0));
            if (item == nullptr) {
                item = new TableTextItem;
                mTable->setItem(row, 0, item);
            }
            int state = eThresholdOk;
            QColor color;
            const QString text = mProfile.decoder().text(
                ParameterSample(list->last, column->parameter), state, color);
            item->setValue(text, valueBackground(state, color));
        }
        ++row;
    }
    mTable->viewport()->update();
}

/// Says what is missing where the table would only be blank.
void DialogDataTable::updateHint()
{
    WidgetHint::Message missing;
    mOffersInstall = mProfile.isEmpty();
    if (mProfile.isEmpty()) {
        missing = WidgetHint::withoutProfile();
    } else if (mRecord == nullptr && mMode == 0) {
        missing = WidgetHint::withoutRecord();
    } else if (mColumns.empty()) {
        missing = {tr("No parameter selected. Check the parameters to show in the parameter list "
                      "and confirm the selection."),
                   tr("Select parameters")};
    } else if (mRows.empty() && mMode == 0) {
        missing = {tr("The record has no samples of the selected parameters. Select other "
                      "parameters or choose another record."),
                   tr("Select parameters")};
    }
    mHint->showInsteadOf(mTable, missing);
}

} // namespace VELIX
