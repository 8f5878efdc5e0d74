#include "gui/card/CardTexts.h"

#include "card/RecordCycle.h"

#include <QDateTime>

#include <cstdint>

namespace VELIX {

namespace {

const QString kLine = QStringLiteral("%1: %2");
const QString kTimeFormat = QStringLiteral("hh:mm:ss");

double length(const RecordCycle& cycle)
{
    return cycle.files.empty() ? 0.0 : cycle.stopTime - cycle.files.front().recordInfo().startTime;
}

} // namespace

QString CardTexts::cycle(const RecordCycle& cycle)
{
    return QStringLiteral("%1 %2 (%3)")
        .arg(cycle.name, dateTime(cycle.dateTime), clock(length(cycle)));
}

QString CardTexts::flight(int number, const RecordFlight& flight)
{
    const QString takeoff = flight.dateTime.isValid() ? flight.dateTime.toString(kTimeFormat)
                                                      : clock(flight.takeoffTime);
    return tr("Flight %1 %2 (%3)")
        .arg(QString::number(number), takeoff, clock(flight.landingTime - flight.takeoffTime));
}

QString CardTexts::flightDetails(const RecordFlight& flight)
{
    const QString day = flight.dateTime.isValid()
                            ? flight.dateTime.toString(QStringLiteral("dd.MM.yyyy"))
                            : tr("Unknown Date");
    return tr("%1: take-off at %2, landing at %3 after power-up")
        .arg(day, clock(flight.takeoffTime), clock(flight.landingTime));
}

QString CardTexts::dateTime(const QDateTime& dateTime)
{
    return dateTime.isValid() ? dateTime.toString(QStringLiteral("d.M.yyyy h:mm:ss"))
                              : tr("Unknown Date");
}

QString CardTexts::summary(const RecordInfo& info)
{
    return tr("Start Time: ") + clock(info.startTime) + QStringLiteral(", ") + tr("Stop Time: ") +
           clock(info.stopTime);
}

QStringList CardTexts::details(const RecordInfo& info)
{
    return {
        kLine.arg(tr("Start Time"), clock(info.startTime)),
        kLine.arg(tr("Stop Time"), clock(info.stopTime)),
        kLine.arg(tr("Bus Type"), QString::number(info.busType)),
        kLine.arg(tr("ECU Serial Number"), QString::number(info.ecuSerialNumber)),
        kLine.arg(tr("Software Part Nr. A"), info.softwarePartA),
        kLine.arg(tr("Software Part Nr. B"), info.softwarePartB),
        kLine.arg(tr("ECU Type"), info.ecuType),
        kLine.arg(tr("EMU SW Version"), info.emuSwVersion),
        kLine.arg(tr("Engine Serial Nr."), info.engineSerial),
        kLine.arg(tr("Engine Type"), info.engineType),
        kLine.arg(tr("Samples Total"), QString::number(info.sampleCount)),
    };
}

QString CardTexts::clock(double seconds)
{
    // A damaged clock may hold years, or no number at all.
    constexpr double kLimit = 1e12;
    const auto total =
        seconds > 0.0 ? static_cast<std::int64_t>(seconds < kLimit ? seconds : kLimit) : 0;
    const auto twoDigits = [](std::int64_t value) {
        return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
    };
    return twoDigits(total / 3600) + QLatin1Char(':') + twoDigits(total / 60 % 60) +
           QLatin1Char(':') + twoDigits(total % 60);
}

} // namespace VELIX
