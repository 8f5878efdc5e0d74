#include "gui/look/TreeColumn.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace VELIX {

void TreeColumn::fit(QTreeWidget& tree)
{
    const QAbstractItemView& view = tree; // where the hint is public
    tree.setTextElideMode(Qt::ElideNone);
    tree.header()->setStretchLastSection(true);
    tree.header()->setMinimumSectionSize(view.sizeHintForColumn(0));
}

} // namespace VELIX
