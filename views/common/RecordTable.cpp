#include "views/common/RecordTable.h"

#include "gui/look/CopyFilter.h"

#include <QHeaderView>

namespace VELIX {

RecordTable::RecordTable(QWidget* parent) : QTableWidget(parent)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setStyleSheet(QStringLiteral("selection-background-color: rgba(100, 100, 255, 255);"));
    horizontalHeader()->setHighlightSections(false);
    CopyFilter::install(this);
}

} // namespace VELIX
