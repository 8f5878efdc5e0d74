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
    const bool isTime = index.data(Qt::UserRole).isValid(); // its background says nothing
    const QVariant background = isTime ? QVariant() : index.data(Qt::BackgroundRole);
    QRect stripe = option.rect;
    stripe.setWidth(kStripeWidth);

    QStyleOptionViewItem cell = option;
    if (background.isValid() && isLeftAligned(index)) {
        cell.rect.setLeft(stripe.right() + 1); // the text begins after the stripe
        if (!isSelected) {
            painter->fillRect(stripe, background.value<QBrush>());
        }
    }
    QStyledItemDelegate::paint(painter, cell, index);
    if (background.isValid() && isSelected) {
        QColor color = background.value<QBrush>().color();
        color.setAlpha(255); // a tint would not be seen on the colour of the selection
        painter->fillRect(stripe, color);
    }
}

} // namespace VELIX
