#pragma once

#include <QColor>
#include <QString>
#include <QTableWidgetItem>

namespace VELIX {

/// A cell that cannot be edited. It has the alignment and, on a background of its own, a text
/// colour of its own: the background does not follow the look of the desktop.
class TableCell : public QTableWidgetItem
{
public:
    /// Background of the cells with the time of a row.
    static constexpr QColor kTimeBackground{230, 230, 230};

    TableCell() { setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled); }

    QVariant data(int role) const override;

protected:
    virtual QString cellText() const = 0;
    /// Invalid for a cell without a background of its own.
    virtual QColor cellBackground() const = 0;
};

} // namespace VELIX
