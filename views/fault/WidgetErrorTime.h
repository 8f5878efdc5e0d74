#pragma once

#include "profile/FaultMatrix.h"
#include "views/fault/FaultTimeline.h"

#include <QPixmap>
#include <QWidget>

namespace VELIX {

/// Time bar of a fault matrix: shows over the whole record when any bit of each error type was set,
/// in one band per type, the gravest on top; and the cursor.
class WidgetErrorTime : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetErrorTime(QWidget* parent = nullptr);

    /// Takes a matrix and forgets the record.
    void setData(const FaultMatrix& matrix);
    /// Takes a record, null for none, which must stay valid until the next call.
    void updateRecord(RecordData* record);
    /// Moves the cursor (seconds on the record's time axis) and paints it at once.
    void setTime(double seconds);

    /// Returns the pixel of a time (s), also outside of the bar.
    int getX(float time) const { return mTimeline.getX(time, width()); }
    /// Returns the time at a pixel and the names of the bits set there, or that there are none.
    QString tipText(int x) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int cursorX() const { return getX(static_cast<float>(mCursor)); }
    void forgetFrame();
    void drawFrame();
    void drawBands(QPainter& painter) const;
    void drawNote(QPainter& painter) const;

    FaultMatrix mMatrix;
    FaultTimeline mTimeline;
    double mCursor = 0.0; ///< seconds
    QPixmap mFrame;       ///< all but the cursor; null when it has to be drawn again
};

} // namespace VELIX
