#pragma once

#include <QString>
#include <QTime>

class QDateTime;

namespace VELIX {

/// Converts the time of the common cursor into texts and slider positions.
///
/// Times are seconds or milliseconds on the record's time axis; what a clock shows of them wraps
/// after 24 hours. Dates are UTC, so that a debrief does not shift with the reader's time zone.
struct CursorTime
{
    static constexpr int kSliderSteps = 10000;

    /// Returns the whole milliseconds of a time in seconds, truncated; for times that are out of
    /// range the end of the range on their side.
    static qint64 milliseconds(double seconds);
    static QTime timeOfDay(qint64 ms);
    /// Returns "hh:mm:ss.zzz".
    static QString timeText(qint64 ms);
    /// Returns "dd.MM.yyyy hh:mm:ss" of a time after the start; the placeholder without a valid
    /// start.
    static QString dateTimeText(const QDateTime& start, double seconds);

    /// Returns the text that is shown while there is no time to show.
    static QString timePlaceholder();
    static QString dateTimePlaceholder();

    /// Returns the position of a time between start and stop, 0 to kSliderSteps; -1 if there is
    /// nothing between them.
    static int sliderPosition(double start, double stop, double seconds);
    /// Returns the time of a position, never after stop.
    static double sliderTime(double start, double stop, int position);
};

} // namespace VELIX
