#pragma once

#include "views/replay/ReplayClock.h"

#include <QWidget>

class QDateTime;
class QDoubleSpinBox;
class QLayout;
class QLCDNumber;
class QSlider;
class QTime;
class QTimeEdit;
class QToolButton;

namespace VELIX {

/// The displays of the cursor and the controls of the replay, below the views.
///
/// Its signals report what the user did; what the program shows in it emits none.
class ReplayControls : public QWidget
{
    Q_OBJECT

public:
    /// emuOnly: hides what only someone at a desk needs (time of day, position, time editor).
    explicit ReplayControls(bool emuOnly, QWidget* parent = nullptr);

    void showReplay(const ReplayClock& clock);
    /// Shows the cursor as date and time, as time of day and as position in the record.
    void showCursor(const ReplayClock& clock, const QDateTime& start);
    /// Enables the controls. Without a record there is nothing to replay: placeholders, and
    /// disabled controls whose tool tips say why.
    void setRecordOpen(bool open);

signals:
    void signalMode();
    void signalStop();
    void signalSlider(int position);
    void signalValue(const QTime& time);
    void signalSpeed(int percent);
    void signalSpeed(double factor);

protected:
    void changeEvent(QEvent* event) override;

private:
    static QStringList replayTexts();
    void fitWidths();
    QLayout* createDisplays();
    QLayout* createGrid();
    void createButtons();
    void createSliders();
    void connectControls();

    bool mUpdating = false; ///< the program itself writes the controls
    bool mOpen = false;
    QLCDNumber* mDateTimeDisplay = nullptr;
    QLCDNumber* mTimeDisplay = nullptr;
    QToolButton* mReplayButton = nullptr;
    QToolButton* mStopButton = nullptr;
    QSlider* mPositionSlider = nullptr;
    QTimeEdit* mTimeEdit = nullptr;
    QSlider* mSpeedSlider = nullptr;
    QDoubleSpinBox* mSpeedBox = nullptr;
};

} // namespace VELIX
