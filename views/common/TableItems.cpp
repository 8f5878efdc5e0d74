#include "views/common/TableItems.h"

#include "core/RecordEntry.h"
#include "gui/look/Palette.h"
#include "profile/Profile.h"
#include "views/common/CursorTime.h"

#include <QBrush>

namespace VELIX {

namespace {

constexpr qint64 kMsPerKey = 100;
constexpr QColor kTimeGround(230, 230, 230);

} // namespace

QColor valueGround(int state, const QColor& color)
{
    return state == eThresholdOk && color == QColor(Qt::white) ? QColor() : color;
}

QVariant TableCell::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cellText();
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole: {
        const QColor color = ground();
        return color.isValid() ? QVariant(QBrush(color)) : QVariant();
    }
    case Qt::ForegroundRole: {
        const QColor color = ground();
        return color.isValid() ? QVariant(QBrush(Palette::textOn(color))) : QVariant();
    }
    default:
        return QTableWidgetItem::data(role);
    }
}

QVariant TableTimeItem::data(int role) const
{
    return role == Qt::UserRole ? QVariant(kMsPerKey * mKey) : TableCell::data(role);
}

QString TableTimeItem::cellText() const
{
    return CursorTime::timeText(kMsPerKey * mKey);
}

QColor TableTimeItem::ground() const
{
    return kTimeGround;
}

QString TableValueItem::cellText() const
{
    int state = eThresholdOk;
    QColor color;
    return mColumn->profile.getDataString(*mEntry, mColumn->parameter, state, color);
}

QColor TableValueItem::ground() const
{
    int state = eThresholdOk;
    QColor color;
    mColumn->profile.getDataState(*mEntry, mColumn->parameter, state, color);
    return valueGround(state, color);
}

} // namespace VELIX
