#pragma once

#include "card/RecordEvent.h"
#include "views/common/DataView.h"
#include "views/common/Printable.h"

#include <QWidget>

#include <cstdint>
#include <map>
#include <vector>

class QAction;
class QTableWidgetItem;

namespace VELIX {

class CursorTable;
class DialogService;
class Profile;
class WidgetHint;

/// A list of events of a record, one row each, in order of time. The row at the common cursor is
/// selected; selecting another one moves the cursor.
///
/// Lists differ in the events that they find, which are kept in the record for the exports.
class DialogDataEvents : public QWidget, public DataView, public Printable
{
    Q_OBJECT

public:
    void setTime(double seconds) override;
    /// Finds and lists the events of a record. Null leaves the rows as they are, since another
    /// record is about to be loaded.
    void updateRecord(RecordData* record) override;
    /// Empties the list, since no record is open any more; its hint says so.
    void clear();

    /// Asks for a file and writes the list to it.
    void saveCsv();

    QString printTitle() const override;
    QString unprintableReason() const override;
    std::unique_ptr<PrintLayout> printLayout(QPaintDevice& device,
                                             const QSizeF& room) const override;

signals:
    /// The user selected the row of a time (seconds on the record's axis, whole milliseconds).
    void signalTime(double seconds);
    /// The user wants to see what led to an event. Offered only if something is connected.
    void signalShowInGraph(double seconds);
    /// A result or failure in words.
    void signalNotice(const QString& sentence);

protected:
    using Events = std::vector<const RecordLimit*>;
    struct Texts
    {
        QString header;    ///< of the column with the events
        QString none;      ///< shown if the record has no events
        QString noProfile; ///< shown if there was no profile to find them with
        QString fileName;  ///< suggested for the list as a file
    };

    DialogDataEvents(const Profile& profile, DialogService& dialogs, const Texts& texts,
                     QWidget* parent);
    ~DialogDataEvents() override;

    /// Fills the record's own list and gives its events by time.
    virtual Events findEvents(RecordData& record, const Profile& profile) const = 0;
    RecordData* record() const { return mRecord; }

    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void connectNotify(const QMetaMethod& signal) override;

private slots:
    void slotSelect();

private:
    void createTable();
    void createActions();

    void clearRows();
    void fillTime();
    void fillEvents();
    void fitCells();
    void fitEvents();
    void stretchEvents();
    void updateHint();
    void copy() const;
    void showInGraph();
    const QTableWidgetItem* selectedTime() const;

    std::map<std::uint32_t, std::uint32_t> mKeyToRow; ///< tenths of a second
    RecordData* mRecord = nullptr;
    bool mBusy = false; ///< the view itself fills or selects and emits no signal
    CursorTable* mTable = nullptr;

    const Profile& mProfile;
    DialogService& mDialogs;
    const Texts mTexts;
    Events mEvents;      ///< the record's own
    int mEventWidth = 0; ///< pixels that the longest event needs
    QString mFolder;     ///< where a list was saved last
    WidgetHint* mHint = nullptr;
    QAction* mShowInGraph = nullptr;
};

} // namespace VELIX
