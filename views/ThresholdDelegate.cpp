#include "views/ThresholdDelegate.h"

#include <QPainter>

namespace VELIX {

namespace {

constexpr int kStripeWidth = 6; // pixels

} // namespace

void ThresholdDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const bool isTime = index.data(Qt::UserRole).isValid(); // its ground says nothing
    if (!(option.state & QStyle::State_Selected) || isTime) {
        return;
    }
    const QVariant ground = index.data(Qt::BackgroundRole);
    if (ground.isValid()) {
        QRect stripe = option.rect;
        stripe.setWidth(kStripeWidth);
        QColor color = ground.value<QBrush>().color();
        color.setAlpha(255); // a tint would be lost on the ground of the selection
        painter->fillRect(stripe, color);
    }
}

} // namespace VELIX
