#include "views/statistic/FlightText.h"

#include "card/RecordFlight.h"
#include "core/Truncate.h"

#include <QLocale>
#include <QTime>

#include <cmath>

namespace VELIX {

namespace {

const QString kTimeFormat = QStringLiteral("hh:mm:ss");
const QString kNoGap = QStringLiteral(" style=\"padding-right: 0px;\""); // nothing follows

QString number(double value, int decimals, const QString& unit)
{
    if (!std::isfinite(value)) {
        return QStringLiteral("\u2013");
    }
    // A non-breaking thin space keeps number and unit on one line.
    return QLocale().toString(value, 'f', decimals) + QChar(0x202F) + unit;
}

QString fuelText(const FlightStatistic& s, double fuel)
{
    return number(fuel, 1, s.fuelUnit.isEmpty() ? QStringLiteral("l") : s.fuelUnit);
}

QString climbText(const FlightStatistic& s, double climb)
{
    return number(climb, 0, s.heightUnit.isEmpty() ? QStringLiteral("m") : s.heightUnit);
}

/// Writes a sum of flight times, which may exceed a day and so cannot be written as a time of day.
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

/// Returns the time of day, or in a cycle without a date the time on the unit's clock.
QString takeoff(const RecordFlight& flight)
{
    return flight.dateTime.isValid() ? flight.dateTime.toString(kTimeFormat)
                                     : FlightText::timeOfDay(flight.takeoffTime);
}

/// Writes a row: the first cell names it and is aligned to the left, figures to the right.
QString cells(const QString& tag, const QStringList& texts)
{
    QString row = QStringLiteral("<tr>");
    QString side = QStringLiteral("left");
    for (const QString& text : texts) {
        row +=
            QStringLiteral("<%1 align=\"%2\"%3>%4</%1>")
                .arg(tag, side, &text == &texts.last() ? kNoGap : QString(), text.toHtmlEscaped());
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
    QString table = QStringLiteral("<table cellspacing=\"0\">") +
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
                        fuelText(s, s.fuel), climbText(s, s.climb)});
        time += flightTime;
        fuel += s.fuel;
        climb += s.climb;
    }
    if (count > 1) {
        const FlightStatistic& units = flights.front().statistic; // one load, one unit system
        table += cells(
            QStringLiteral("th"),
            {tr("Total"), {}, duration(time), fuelText(units, fuel), climbText(units, climb)});
    }
    return table + QStringLiteral("</table>");
}

QString FlightText::unitNote(const FlightStatistic& statistic)
{
    QStringList units;
    const auto add = [&units](const char* label, const QString& unit) {
        if (!unit.isEmpty()) {
            units.append(tr("%1 as %2").arg(QLatin1String(label), unit.toHtmlEscaped()));
        }
    };
    add("m", statistic.heightUnit);
    add("km/h", statistic.speedUnit);
    add("l", statistic.fuelUnit);
    return units.isEmpty()
               ? QString()
               : tr("The cycle was loaded in imperial units: read %1. Only the take-off "
                    "distances are in m all the same.")
                     .arg(units.join(QStringLiteral(", ")));
}

} // namespace VELIX
