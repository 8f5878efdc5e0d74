#pragma once

#include "profile/FaultMatrix.h"
#include "views/fault/FaultTimeline.h"

#include <QPixmap>
#include <QWidget>

namespace VELIX {

/// Time bar of a fault matrix: over the whole record, when any bit of each error type was set, in
/// one band per type, the gravest on top; and the cursor.
class WidgetErrorTime : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetErrorTime(QWidget* parent = nullptr);

    /// Forgets the record.
    void setData(const FaultMatrix& matrix);
    /// Null for none. The record stays valid until the next call.
    void updateRecord(RecordData* record);
    /// Seconds on the record's time axis.
    void setTime(double seconds);

    /// Pixel of a time (s), also outside of the bar.
    int getX(float time) const { return mTimeline.getX(time, width()); }
    /// The time at a pixel and the names of the bits set there; what is so where there are none.
    QString tipText(int x) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int cursorX() const { return getX(static_cast<float>(mCursor)); }
    void forgetPicture();
    void drawPicture();
    void drawBands(QPainter& painter) const;
    void drawNote(QPainter& painter) const;

    FaultMatrix mMatrix;
    FaultTimeline mTimeline;
    double mCursor = 0.0; ///< seconds
    QPixmap mPicture;     ///< all but the cursor; null when it has to be drawn anew
};

} // namespace VELIX
