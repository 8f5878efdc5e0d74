#include "views/common/CursorTable.h"

#include "views/common/ThresholdDelegate.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kBold = 75;

} // namespace

CursorTable::CursorTable(int leastHeight, int margin, QWidget* parent)
    : RecordTable(parent), mLeastHeight(leastHeight), mMargin(margin)
{
    setItemDelegate(new ThresholdDelegate(this));
    QFont bold = horizontalHeader()->font();
    bold.setWeight(kBold);
    horizontalHeader()->setFont(bold);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fitRows();
    // A table that was not on screen yet gets its height late; then the cursor's row has to move.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &CursorTable::centerCursor);
}

CursorTable::~CursorTable()
{
    verticalScrollBar()->disconnect(this); // the scroll bar outlives this part of the table
}

void CursorTable::selectAndCenter(int row)
{
    mCursorRow = row;
    const QModelIndex cell = model()->index(row, 0);
    if (currentIndex().row() != row || !selectionModel()->isSelected(cell)) {
        // Scrolling is centerCursor()'s: the table's own would also run back to the first column.
        const bool scrolls = hasAutoScroll();
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect |
                                                    QItemSelectionModel::Rows);
        setAutoScroll(scrolls);
    }
    centerCursor();
}

void CursorTable::centerCursor()
{
    if (mCursorRow >= 0) {
        verticalScrollBar()->setValue(verticalHeader()->sectionPosition(mCursorRow) -
                                      (viewport()->height() - rowHeight(mCursorRow)) / 2);
    }
}

void CursorTable::showCursor()
{
    QScrollBar* bar = verticalScrollBar();
    const int top = verticalHeader()->sectionPosition(mCursorRow);
    const int highest = top + rowHeight(mCursorRow) - viewport()->height();
    bar->setValue(std::max(std::min(bar->value(), top), highest));
}

void CursorTable::clearRows()
{
    mCursorRow = -1;
    setRowCount(0);
}

void CursorTable::fitRows()
{
    const int height = std::max(mLeastHeight, fontMetrics().height() + mMargin);
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

} // namespace VELIX
