#include "views/events/EventItems.h"

#include "gui/look/Palette.h"
#include "views/common/CursorTime.h"

#include <QBrush>

namespace VELIX {

QVariant EventTimeItem::data(int role) const
{
    return role == Qt::UserRole ? QVariant(mSeconds * 1000.0) : TableCell::data(role);
}

QString EventTimeItem::cellText() const
{
    return CursorTime::timeText(CursorTime::milliseconds(mSeconds));
}

QVariant EventTextItem::data(int role) const
{
    switch (role) {
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return mText; // the column may be narrower
    case Qt::ForegroundRole:
        return mTint.isValid()
                   ? QVariant(QBrush(Palette::textOn(blended(mTint, Palette::current().surface))))
                   : QVariant();
    default:
        return TableCell::data(role);
    }
}

} // namespace VELIX
