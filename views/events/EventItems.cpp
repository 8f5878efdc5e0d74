#include "views/events/EventItems.h"

#include "gui/look/Palette.h"
#include "views/common/CursorTime.h"

#include <QBrush>

namespace VELIX {

namespace {

constexpr QColor kTimeGround(230, 230, 230);
constexpr int kTint = 60; // of 255

/// The colour that a translucent one gives on an opaque ground.
QColor blended(const QColor& color, const QColor& ground)
{
    const double share = color.alphaF();
    const auto mix = [share](double above, double below) {
        return above * share + below * (1.0 - share);
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

} // namespace

QVariant EventTimeItem::data(int role) const
{
    return role == Qt::UserRole ? QVariant(mSeconds * 1000.0) : TableCell::data(role);
}

QString EventTimeItem::cellText() const
{
    return CursorTime::timeText(CursorTime::milliseconds(mSeconds));
}

QColor EventTimeItem::ground() const
{
    return kTimeGround;
}

EventTextItem::EventTextItem(const QString& text, const QColor& color) : mText(text), mGround(color)
{
    if (mGround.isValid()) {
        mGround.setAlpha(kTint);
    }
}

QVariant EventTextItem::data(int role) const
{
    switch (role) {
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return mText; // the column may be narrower
    case Qt::ForegroundRole:
        return mGround.isValid()
                   ? QVariant(QBrush(Palette::textOn(blended(mGround, Palette::current().surface))))
                   : QVariant();
    default:
        return TableCell::data(role);
    }
}

} // namespace VELIX
