#pragma once

#include <QStyledItemDelegate>

namespace VELIX {

/// Keeps the colour of a value in sight in the selected row, whose ground would cover it: the
/// row at the cursor is the one that is read.
class ThresholdDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace VELIX
