#pragma once

#include "card/FlightPathPoint.h"
#include "views/common/DataView.h"
#include "views/map/MapSelection.h"
#include "views/map/model/MapContext.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <string>
#include <utility>
#include <vector>

class QAction;
class QButtonGroup;
class QLabel;
class QToolBar;

namespace VELIX {

class CardContainer;
class MapValues;
class ParameterSample;
class Profile;
class Property;
class WidgetMap;
struct ProfileParameter;

/// The map beside the views: the path of the record, the aircraft at the cursor, and the values of
/// some parameters there.
class DialogDataMap : public QWidget, public DataView
{
    Q_OBJECT

public:
    /// The card brings the path of its working data. dataPath: folder for tiles and terrain, empty
    /// if nothing is to be kept.
    DialogDataMap(const Profile& profile, const CardContainer& card, Property& settings,
                  const std::string& dataPath, QWidget* parent = nullptr);
    ~DialogDataMap() override;

    void setTime(double seconds) override;
    void updateRecord(RecordData* record) override;
    void updateProfile() override;

    /// The aircraft at a time (s); the empty point where the record has no position.
    FlightPathPoint calcPositionAtTime(double seconds) const;
    /// Shows a sentence over the map until the next record, or none, is shown.
    void showHint(const QString& sentence);
    /// Moves the parts over the map to their positions.
    void updateGeometry();

    const MapContext& mapContext() const { return mContext; }
    WidgetMap& map() { return *mMap; }

signals:
    /// As the other views have it; the map does not move the cursor.
    void signalTime(double seconds);

private slots:
    void slotCommandToggled(int id, bool checked);
    void slotUpdateMode();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// A line of the value panel.
    struct DataEntry
    {
        const ProfileParameter* parameter = nullptr; ///< of the profile; taken again after changes
        QString label;
        QString value;
        QColor color; ///< of the threshold passed; invalid within the thresholds
    };

    using TextAndUnit = std::pair<QString, QString>;

    void createOverlay();
    void createTools();
    void fillDataLabel();
    void fillDataValue();
    void fillEntry(DataEntry& entry) const;
    [[nodiscard]] TextAndUnit textOf(const ParameterSample& sample, int& state,
                                     QColor& color) const;
    void colorPath();
    void takePath();
    void updateHint();

    const Profile& mProfile;
    const CardContainer& mCard;
    MapContext mContext; ///< with the mode "Center AC"
    MapSelection mSelection;
    RecordData* mRecord = nullptr;
    double mTime = 0.0; ///< s: the cursor

    WidgetMap* mMap = nullptr;
    QWidget* mPanel = nullptr;
    MapValues* mValues = nullptr;
    std::vector<DataEntry> mEntries;
    QToolBar* mToolBar = nullptr;
    QButtonGroup* mCommands = nullptr;
    QAction* mCenter = nullptr;
    QAction* mFit = nullptr;
    QLabel* mHint = nullptr;
};

} // namespace VELIX
