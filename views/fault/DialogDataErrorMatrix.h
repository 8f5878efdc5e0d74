#pragma once

#include "views/common/DataView.h"

#include <QTimer>
#include <QWidget>

#include <map>

class QScrollArea;

namespace VELIX {

class Profile;
class WidgetFaultMatrix;
class WidgetHint;

/// The fault matrices of the profile, one panel under the other: which error bits are set at the
/// cursor, and when in the record any were.
///
/// Outside of mode 0 the cells also follow the messages received last, every 50 ms.
class DialogDataErrorMatrix : public QWidget, public DataView
{
    Q_OBJECT

public:
    explicit DialogDataErrorMatrix(const Profile& profile, QWidget* parent = nullptr);

    /// Makes the panels again from the profile; they have no record then. Of matrices with the same
    /// identifier all are on screen, but only the last one follows record and cursor.
    void loadProfile();

    void setTime(double seconds) override;
    void updateRecord(RecordData* record) override;
    /// Does nothing: units and selection do not matter here, and loadProfile() makes a new layout.
    void updateProfile() override {}

    /// Shows the record at the cursor in mode 0, else the messages received last.
    void setVelixMode(int mode);

signals:
    /// Never emitted: nothing in a matrix belongs to one moment. The other lists have it.
    void signalTime(double seconds);
    /// The user followed the link of a sentence that says what is missing.
    void signalInstallProfile();

private slots:
    void slotTimeoutUpdate();
    /// Counterpart of signalTime().
    void slotSelect() {}

private:
    void updateHint();

    const Profile& mProfile;
    RecordData* mRecord = nullptr;
    QTimer mUpdateTimer;
    int mMode = 0;
    QScrollArea* mScrollArea = nullptr;
    QWidget* mContainer = nullptr;
    WidgetHint* mHint = nullptr;
    std::map<int, WidgetFaultMatrix*> mPanels; ///< by matrix id
};

} // namespace VELIX
