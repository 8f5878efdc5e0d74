#pragma once

#include "profile/FaultMatrix.h"

#include <QFrame>

#include <array>
#include <cstddef>
#include <cstdint>

class QLabel;
class WidgetErrorItem;

namespace VELIX {

class RecordData;
class RecordTable;
class WidgetErrorTime;

/// The panel of one fault matrix: its name, its time bar and a cell for each of its 32 bits, bit 31
/// at the left. A cell is lit while its bit is set at the cursor.
class WidgetFaultMatrix : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetFaultMatrix(QWidget* parent = nullptr);

    void setData(const FaultMatrix& matrix);
    /// Takes a record, which must stay valid until the next call; null for none: all cells go out.
    void updateRecord(RecordData* record);
    /// Moves the cursor of the time bar (s), which is painted at once.
    void moveBar(double seconds);
    /// Moves the time bar and shows the bits that are set at a time (s); before the first and after
    /// the last sample none is.
    void setTime(double seconds);
    /// Shows the bits of the message received last.
    void updateLiveData();

    /// Returns the cell of a bit, 0 to 31; null before setData().
    const WidgetErrorItem* item(int bit) const { return mItems[static_cast<std::size_t>(bit)]; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr int kBits = 32;

    void createTitle();
    void createTable();
    void fitColumns();
    void showAssigned();
    void showWord(std::uint32_t word);
    void showFocus(bool focused);

    FaultMatrix mMatrix;
    RecordData* mRecord = nullptr;
    std::array<WidgetErrorItem*, kBits> mItems{}; ///< by bit
    QLabel* mTitle = nullptr;
    WidgetErrorTime* mTime = nullptr;
    RecordTable* mTable = nullptr;
    bool mScrolled = false; ///< the user chose the visible columns
};

} // namespace VELIX
