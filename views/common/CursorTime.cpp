#include "views/common/CursorTime.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr qint64 kDayMs = 86'400'000;
constexpr double kLongestMs = 1e15; // thirty thousand years: beyond that dates make no sense

} // namespace

qint64 CursorTime::milliseconds(double seconds)
{
    const double ms = seconds * 1000.0;
    if (!(std::abs(ms) < kLongestMs)) {
        return ms > 0.0 ? static_cast<qint64>(kLongestMs) : 0;
    }
    return static_cast<qint64>(ms);
}

QTime CursorTime::timeOfDay(qint64 ms)
{
    const qint64 inDay = (ms % kDayMs + kDayMs) % kDayMs;
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(inDay));
}

QString CursorTime::timeText(qint64 ms)
{
    return timeOfDay(ms).toString(QStringLiteral("hh:mm:ss.zzz"));
}

QString CursorTime::dateTimeText(const QDateTime& start, double seconds)
{
    if (!start.isValid()) {
        return dateTimePlaceholder();
    }
    return start.toUTC()
        .addMSecs(milliseconds(seconds))
        .toString(QStringLiteral("dd.MM.yyyy hh:mm:ss"));
}

QString CursorTime::timePlaceholder()
{
    return QStringLiteral("--:--:--.---");
}

QString CursorTime::dateTimePlaceholder()
{
    return QStringLiteral("--.--.---- --:--:--");
}

int CursorTime::sliderPosition(double start, double stop, double seconds)
{
    if (!(stop > start)) {
        return -1;
    }
    const double position = (seconds - start) / (stop - start) * kSliderSteps;
    if (!(position > 0.0)) {
        return 0;
    }
    return position < kSliderSteps ? static_cast<int>(position) : kSliderSteps;
}

double CursorTime::sliderTime(double start, double stop, int position)
{
    // Rounding must not put the end after the record, where there is nothing to show.
    return std::min(start + (stop - start) / kSliderSteps * position, stop);
}

} // namespace VELIX
