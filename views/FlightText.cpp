#include "views/FlightText.h"

#include "card/RecordFlight.h"
#include "core/Truncate.h"

#include <QLocale>
#include <QTime>

#include <cmath>

namespace VELIX {

namespace {

const QString kTimeFormat = QStringLiteral("hh:mm:ss");

QString number(double value, int decimals, const QString& unit)
{
    if (!std::isfinite(value)) {
        return QStringLiteral("\u2013");
    }
    // A non-breaking thin space keeps number and unit on one line.
    return QLocale().toString(value, 'f', decimals) + QChar(0x202F) + unit;
}

/// A sum of flight times may exceed a day, which a time of day cannot show.
QString duration(double seconds)
{
    if (!(std::abs(seconds) < 1e9)) {
        return QStringLiteral("\u2013");
    }
    const int whole = static_cast<int>(std::abs(seconds));
    return QStringLiteral("%1%2:%3:%4")
        .arg(seconds <= -1.0 ? QStringLiteral("-") : QString())
        .arg(whole / 3600, 2, 10, QLatin1Char('0'))
        .arg(whole / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(whole % 60, 2, 10, QLatin1Char('0'));
}

/// Time of day, or the time on the unit's clock in a cycle without a date.
QString takeoff(const RecordFlight& flight)
{
    return flight.dateTime.isValid() ? flight.dateTime.toString(kTimeFormat)
                                     : FlightText::timeOfDay(flight.takeoffTime);
}

/// What names the row stands to the left, figures stand to the right.
QString cells(const QString& tag, const QStringList& texts)
{
    QString row = QStringLiteral("<tr>");
    QString side = QStringLiteral("left");
    for (const QString& text : texts) {
        row += QStringLiteral("<%1 align=\"%2\">%3</%1>").arg(tag, side, text.toHtmlEscaped());
        side = QStringLiteral("right");
    }
    return row + QStringLiteral("</tr>");
}

} // namespace

QString FlightText::timeOfDay(double seconds)
{
    if (!std::isfinite(seconds)) {
        return QStringLiteral("%1").arg(seconds);
    }
    return QTime(0, 0).addSecs(truncateToInt(seconds)).toString(kTimeFormat);
}

QString FlightText::flights(const std::vector<RecordFlight>& flights)
{
    if (flights.empty()) {
        return {};
    }
    QString table = QStringLiteral("<table>") +
                    cells(QStringLiteral("th"),
                          {tr("Flight"), tr("Take-off"), tr("Time"), tr("Fuel"), tr("Climb")});
    double time = 0.0;
    double fuel = 0.0;
    double climb = 0.0;
    int count = 0;
    for (const RecordFlight& flight : flights) {
        const FlightStatistic& s = flight.statistic;
        const double flightTime = flight.landingTime - flight.takeoffTime;
        table += cells(QStringLiteral("td"),
                       {QString::number(++count), takeoff(flight), duration(flightTime),
                        number(s.fuel, 1, QStringLiteral("l")),
                        number(s.climb, 0, QStringLiteral("m"))});
        time += flightTime;
        fuel += s.fuel;
        climb += s.climb;
    }
    if (count > 1) {
        table += cells(QStringLiteral("th"), {tr("Total"),
                                              {},
                                              duration(time),
                                              number(fuel, 1, QStringLiteral("l")),
                                              number(climb, 0, QStringLiteral("m"))});
    }
    return table + QStringLiteral("</table>");
}

} // namespace VELIX
