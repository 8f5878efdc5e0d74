#pragma once

#include "views/common/DataView.h"
#include "views/common/Printable.h"
#include "views/graph/GraphCommandBar.h"
#include "views/graph/GraphFeed.h"
#include "views/graph/GraphSettings.h"
#include "views/graph/GraphVisits.h"
#include "views/graph/model/GraphData.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QLabel;
class WidgetGraph;

namespace VELIX {

class DialogGraphSetup;
class DialogService;
class GraphStatisticTable;
class Profile;
class Property;
class WidgetHint;
struct ProfileParameter;

/// The record as traces over time, one for each selected parameter as far as there is room. Follows
/// the common cursor by paging the visible range, and moves it.
class DialogDataGraph : public QWidget, public DataView, public Printable
{
    Q_OBJECT

public:
    DialogDataGraph(const Profile& profile, Property& settings, DialogService& dialogs,
                    QWidget* parent = nullptr);
    ~DialogDataGraph() override;

    void setTime(double seconds) override;
    void updateRecord(RecordData* record) override;
    /// Names the traces again and fills them from the record held; cursor and range stay.
    void updateProfile() override;

    /// Hands all samples of a parameter to a trace, in order of time.
    void fillIndex(int index, const ProfileParameter& parameter);
    /// Shows on the mode buttons which modes the graph is in.
    void updateControls();
    /// Asks for a file and saves the view there as it is on screen.
    void saveSnapshot();
    void copySnapshot();
    /// Shows the 30 s around an event (s on the record's axis).
    void showAround(double seconds);

    QString printTitle() const override;
    QString unprintableReason() const override;
    bool printsWide() const override { return true; }
    std::unique_ptr<PrintLayout> printLayout(QPaintDevice& device,
                                             const QSizeF& room) const override;

    const WidgetGraph& graph() const { return *mGraph; }
    const GraphData& data() const { return mData; }

signals:
    /// The user moved the graph's cursor to a time (s) and value.
    void signalCursor(float time, double value);
    /// A result or failure as a sentence for the user.
    void signalNotice(const QString& sentence);
    /// The user followed the link of a sentence that says what is missing.
    void signalInstallProfile();
    void signalSelectParameters();

private slots:
    void slotCommandPress(int id);
    void slotCommandRelease(int id);
    void slotTimeout();
    void slotManMode();
    void slotGraphSetup();

private:
    void createGraph();
    void createCommands();
    void createHint();
    void createLayout();

    void pageTo(double seconds);
    void setRange(const GraphTimeRange& range);
    void zoomAll();
    void zoomToMarkers();
    void setXrange(double seconds);
    void updateHint();
    void followHint();
    void updateSurplus(std::size_t selected);

    void stepHistory(bool forward);
    void updateHistoryActions();
    void showStatistic(bool on);

    const Profile& mProfile;
    DialogService& mDialogs;
    GraphSettings mSettings;
    GraphData mData;
    int mCommand = eGraphNoCommand; ///< the button held down
    RecordData* mRecord = nullptr;
    QTimer mRepeatTimer;
    GraphVisits mVisits;

    GraphCommandBar* mCommands = nullptr;
    QLabel* mSurplus = nullptr;
    WidgetGraph* mGraph = nullptr;
    std::unique_ptr<GraphFeed> mFeed;
    WidgetHint* mHint = nullptr;
    enum class Offer { SelectParameters, InstallProfile, Refill };
    Offer mOffer = Offer::SelectParameters; ///< what the link of the hint does
    bool mCleared = false;                  ///< the user took the samples away
    GraphStatisticTable* mStatistic = nullptr;
    DialogGraphSetup* mSetup = nullptr;
};

} // namespace VELIX
