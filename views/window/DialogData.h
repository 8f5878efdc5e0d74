#pragma once

#include "views/replay/ReplayClock.h"
#include "views/window/CursorRoutes.h"

#include <QTimer>
#include <QWidget>

class QTime;
class DataHandler;

namespace VELIX {

class CardContainer;
class DataPages;
class DialogDataErrorMatrix;
class DialogDataGraph;
class DialogDataLimit;
class DialogDataMap;
class DialogDataStatistic;
class DialogDataTable;
class DialogDataView;
class DialogDataWarning;
class DialogService;
class MapSplitter;
class Printable;
class Profile;
class Property;
class ReplayControls;
class ReplayKeys;

/// The data window: it hosts all views of the open record, owns the common time cursor and the
/// replay that moves it, and informs every view of each change.
class DialogData : public QWidget
{
    Q_OBJECT

public:
    /// emuOnly: hides what only someone at a desk needs (time of day, position, time editor).
    /// Without a home: it reads the resources beside the program, but keeps no files.
    DialogData(const Profile& profile, CardContainer& card, bool emuOnly,
               QWidget* parent = nullptr);
    /// The same with settings, and with dialogs that ask the user on behalf of the views.
    DialogData(const Profile& profile, CardContainer& card, Property& settings,
               DialogService& dialogs, bool emuOnly, QWidget* parent = nullptr);
    DialogData(const Profile& profile, CardContainer& card, Property& settings,
               DialogService& dialogs, const DataHandler& paths, bool emuOnly,
               QWidget* parent = nullptr);

    /// Shows the record that the card holds now, if any; the cursor goes to its start.
    void updateRecord();
    /// Takes the record away from the views. To be called before the card loads, since that frees
    /// what they show.
    void releaseRecord();
    /// Takes over a change of the profile, its unit system or the selection of parameters.
    void updateProfile();
    /// Builds the layout of the fault matrix again, and nothing else.
    void loadProfile();

    /// Returns the page in front if it can be printed; else null.
    const Printable* printablePage() const;
    /// Returns the page of the manual about the view with the focus, or else about the page in
    /// front.
    QString helpTopic() const;

    /// Returns the seconds on the record's time axis.
    double cursorTime() const { return mClock.cursor(); }

signals:
    /// The user followed a link of a view that lacks something.
    void signalInstallProfile();
    void signalSelectParameters();
    /// Another page is in front.
    void signalPageChanged();
    /// A view reports a result or failure in words.
    void signalNotice(const QString& sentence);

private slots:
    void slotTimeoutReplay();
    void slotReplayMode();
    void slotReplayStop();
    void slotMapType(int id);
    void slotSlider(int value);
    void slotValue(const QTime& time);
    void slotReplaySpeed(int value);
    void slotReplaySpeed(double value);
    void slotCursor(float time, double value);
    void slotTableTime(double time);
    void slotLimitTime(double time);
    void slotWarningTime(double time);
    void slotShowInGraph(double time);

private:
    void createViews(Property& settings, DialogService& dialogs, const DataHandler& paths);
    void connectViews();
    void createPages();
    void createControls(bool emuOnly);

    void closeRecord();
    void setCursor(ECursorSource source, double seconds);
    void updateTime();
    void updateDisplay();

    const Profile& mProfile;
    CardContainer& mCard;
    ReplayClock mClock;
    CursorRoutes mRoutes;
    RecordData* mRecord = nullptr; ///< the card's working data; null without a record

    QTimer mReplayTimer;
    ReplayKeys* mKeys = nullptr;
    DataPages* mPages = nullptr;
    MapSplitter* mSplitter = nullptr;
    DialogDataTable* mTable = nullptr;
    DialogDataGraph* mGraph = nullptr;
    DialogDataView* mInstrument = nullptr;
    DialogDataErrorMatrix* mFaultMatrix = nullptr;
    DialogDataLimit* mLimit = nullptr;
    DialogDataWarning* mWarning = nullptr;
    DialogDataStatistic* mStatistic = nullptr;
    DialogDataMap* mMap = nullptr;
    ReplayControls* mControls = nullptr;
};

} // namespace VELIX
