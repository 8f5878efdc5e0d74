#pragma once

#include "views/common/RecordTable.h"

namespace VELIX {

/// A table whose rows are moments of a record. The row at the cursor is selected and kept in the
/// middle of the table, with the colours of its values in sight.
class CursorTable : public RecordTable
{
    Q_OBJECT

public:
    /// All rows are as high as the font and a margin need, at least leastHeight; in pixels.
    CursorTable(int leastHeight, int margin, QWidget* parent = nullptr);
    ~CursorTable() override;

    /// The row at the cursor; -1 without one.
    int cursorRow() const { return mCursorRow; }
    /// Takes a row that is selected already, without scrolling.
    void setCursorRow(int row) { mCursorRow = row; }
    /// Selects a row and scrolls it to the middle, only up and down: what was scrolled aside to be
    /// read stays.
    void selectAndCenter(int row);
    /// Scrolls the row at the cursor to the middle.
    void centerCursor();
    /// Scrolls no farther than the row at the cursor needs to be seen.
    void showCursor();
    /// Removes all rows, and the cursor with them.
    void clearRows();
    /// Adapts the height of the rows to a new font.
    void fitRows();

private:
    int mLeastHeight;
    int mMargin;
    int mCursorRow = -1;
};

} // namespace VELIX
