#include "views/common/ThresholdDelegate.h"

#include <QPainter>

namespace VELIX {

namespace {

constexpr int kStripeWidth = 6; // pixels

bool isLeftAligned(const QModelIndex& index)
{
    return (index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignLeft) != 0;
}

} // namespace

void ThresholdDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const bool isTime = index.data(Qt::UserRole).isValid(); // its ground says nothing
    const QVariant ground = isTime ? QVariant() : index.data(Qt::BackgroundRole);
    QRect stripe = option.rect;
    stripe.setWidth(kStripeWidth);

    QStyleOptionViewItem cell = option;
    if (ground.isValid() && isLeftAligned(index)) {
        cell.rect.setLeft(stripe.right() + 1); // the text begins behind the stripe
        if (!isSelected) {
            painter->fillRect(stripe, ground.value<QBrush>());
        }
    }
    QStyledItemDelegate::paint(painter, cell, index);
    if (ground.isValid() && isSelected) {
        QColor color = ground.value<QBrush>().color();
        color.setAlpha(255); // a tint would be lost on the ground of the selection
        painter->fillRect(stripe, color);
    }
}

} // namespace VELIX
