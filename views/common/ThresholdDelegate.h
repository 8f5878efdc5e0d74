#pragma once

#include <QStyledItemDelegate>

namespace VELIX {

/// Paints cells so that the colour of a value stays visible in the selected row, whose background
/// would cover it: the row at the cursor is the one that is read.
class ThresholdDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace VELIX
