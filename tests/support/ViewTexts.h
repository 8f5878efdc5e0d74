#pragma once

#include "gui/look/WidgetHint.h"

#include <QItemSelectionModel>
#include <QString>
#include <QStringList>
#include <QTableWidget>

namespace VELIX::Test {

// What a view shows, as text.

/// The sentence that is shown where there is nothing else to show; empty while it is hidden.
inline QString hintOf(const QWidget& view)
{
    const auto* hint = view.findChild<WidgetHint*>();
    return hint->isVisible() ? hint->hint() : QString();
}

/// The headings in a line, as "Time | Oil [C]".
inline std::string headingsOf(const QTableWidget& table)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        texts.append(table.horizontalHeaderItem(column)->text());
    }
    return texts.join(QStringLiteral(" | ")).toStdString();
}

/// A line for each row, with "-" where there is no cell.
inline std::string rowsOf(const QTableWidget& table)
{
    QStringList lines;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem* item = table.item(row, column);
            cells.append(item == nullptr ? QStringLiteral("-") : item->text());
        }
        lines.append(cells.join(QStringLiteral(" | ")));
    }
    return lines.join(QLatin1Char('\n')).toStdString();
}

/// The row selected, or -1 if it is not just one.
inline int selectedRow(const QTableWidget& table)
{
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.front().row() : -1;
}

} // namespace VELIX::Test
