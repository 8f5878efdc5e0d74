#pragma once

#include <QString>
#include <QTime>

class QDateTime;

namespace VELIX {

/// How the common cursor is written and where it stands on a slider.
///
/// Times are seconds or milliseconds on the record's time axis; what a clock shows of them wraps
/// after 24 hours. Dates are UTC, so that a debrief does not shift with the reader's time zone.
struct CursorTime
{
    static constexpr int kSliderSteps = 10000;

    /// Whole milliseconds of a time in seconds, truncated; the nearest number there is for times
    /// beyond all bounds.
    static qint64 milliseconds(double seconds);
    static QTime timeOfDay(qint64 ms);
    /// "hh:mm:ss.zzz"
    static QString timeText(qint64 ms);
    /// "dd.MM.yyyy hh:mm:ss" of a time after the start; the placeholder without a valid start.
    static QString dateTimeText(const QDateTime& start, double seconds);

    /// Shown while there is no time to show.
    static QString timePlaceholder();
    static QString dateTimePlaceholder();

    /// Position of a time between start and stop, 0 to kSliderSteps; -1 if there is nothing
    /// between them.
    static int sliderPosition(double start, double stop, double seconds);
    /// The time of a position, never behind stop.
    static double sliderTime(double start, double stop, int position);
};

} // namespace VELIX
