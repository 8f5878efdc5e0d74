#include "views/common/TableCell.h"

#include "gui/look/Palette.h"

#include <QBrush>

namespace VELIX {

QVariant TableCell::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cellText();
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole: {
        const QColor color = cellBackground();
        return color.isValid() ? QVariant(QBrush(color)) : QVariant();
    }
    case Qt::ForegroundRole: {
        const QColor color = cellBackground();
        return color.isValid() ? QVariant(QBrush(Palette::textOn(color))) : QVariant();
    }
    default:
        return QTableWidgetItem::data(role);
    }
}

} // namespace VELIX
