#pragma once

#include <QTableWidget>

namespace VELIX {

/// A table of a view: whole rows are selected, one at a time, no cell can be edited, and Ctrl+C
/// copies the selected row with its headings.
class RecordTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit RecordTable(QWidget* parent = nullptr);
};

} // namespace VELIX
