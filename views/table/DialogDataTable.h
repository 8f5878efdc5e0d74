#pragma once

#include "views/common/DataView.h"
#include "views/table/TableItems.h"
#include "views/table/TimeRows.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

namespace VELIX {

class CursorTable;
class EntryList;
class Profile;
class WidgetHint;

/// The record as a table: one row per tenth of a second with samples, one column per parameter
/// that the user selected. Follows the common cursor, and moves it when a row is selected.
///
/// In the live layout it shows the latest values instead, one row per parameter.
class DialogDataTable : public QWidget, public DataView
{
    Q_OBJECT

public:
    explicit DialogDataTable(const Profile& profile, QWidget* parent = nullptr);
    ~DialogDataTable() override;

    void setTime(double seconds) override;
    void updateRecord(RecordData* record) override;
    /// Rebuilds headings and cells from the record at hand, so that they never disagree; the row
    /// at the cursor stays.
    void updateProfile() override;

    /// 0: the record as a table; else the live layout, refreshed every 50 ms.
    void setVelixMode(int mode);

signals:
    /// The user selected the row of a time (seconds on the record's axis).
    void signalTime(double seconds);
    /// The user followed the link of a sentence that says what is missing.
    void signalInstallProfile();
    void signalSelectParameters();

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void slotSelect();
    void slotTimeout();

private:
    void createTable();
    void createHint();

    void takeColumns();
    void fillHeaders();
    void fillRecord();
    void clearCells();
    void calcTime();
    void fillTime();
    void fillColumn(int column, const TableColumn& context);
    void fillCoordinates(int column, const TableColumn& context);
    void fitColumns();
    void updateHint();
    const EntryList& entriesOf(const TableColumn& column) const;

    const Profile& mProfile;
    TimeRows mRows;
    std::vector<std::unique_ptr<TableColumn>> mColumns; ///< cells point into them
    RecordData* mRecord = nullptr;
    int mMode = 0;
    bool mSelecting = false; ///< the view itself selects and emits no signal
    double mTime = 0.0;      ///< seconds: the cursor
    QTimer mLiveTimer;
    CursorTable* mTable = nullptr;
    WidgetHint* mHint = nullptr;
    bool mOffersInstall = false; ///< what the link of the hint does
};

} // namespace VELIX
