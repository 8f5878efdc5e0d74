#include "views/table/TableItems.h"

#include "core/RecordEntry.h"
#include "profile/Profile.h"
#include "views/common/CursorTime.h"

namespace VELIX {

namespace {

constexpr qint64 kMsPerKey = 100;

} // namespace

QColor valueBackground(int state, const QColor& color)
{
    return state == eThresholdOk && color == QColor(Qt::white) ? QColor() : color;
}

QVariant TableTimeItem::data(int role) const
{
    return role == Qt::UserRole ? QVariant(kMsPerKey * mKey) : TableCell::data(role);
}

QString TableTimeItem::cellText() const
{
    return CursorTime::timeText(kMsPerKey * mKey);
}

QString TableValueItem::cellText() const
{
    return mColumn->profile.decoder().text(ParameterSample(*mEntry, mColumn->parameter));
}

QColor TableValueItem::cellBackground() const
{
    int state = eThresholdOk;
    QColor color;
    mColumn->profile.decoder().judge(ParameterSample(*mEntry, mColumn->parameter), state, color);
    return valueBackground(state, color);
}

} // namespace VELIX
