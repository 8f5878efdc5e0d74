#include "tools/velix-card/InfoReport.h"

#include "card/CardContainer.h"
#include "card/FaultWord.h"
#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "profile/Profile.h"

#include <QJsonArray>

namespace VELIX {

namespace {

QJsonValue dateTime(const QDateTime& value)
{
    return value.isValid() ? QJsonValue(value.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzz")))
                           : QJsonValue();
}

QJsonValue color(const QColor& value)
{
    return value.isValid() ? QJsonValue(value.name(QColor::HexArgb)) : QJsonValue();
}

QJsonObject fileReport(const RecordInfo& info)
{
    return {
        {QStringLiteral("dateTime"), dateTime(info.dateTime)},
        {QStringLiteral("dateInvalid"), info.dateInvalid},
        {QStringLiteral("startTime"), info.startTime},
        {QStringLiteral("stopTime"), info.stopTime},
        {QStringLiteral("sampleCount"), static_cast<qint64>(info.sampleCount)},
        {QStringLiteral("busType"), info.busType},
        {QStringLiteral("ecuSerialNumber"), static_cast<qint64>(info.ecuSerialNumber)},
        {QStringLiteral("softwarePartA"), info.softwarePartA},
        {QStringLiteral("softwarePartB"), info.softwarePartB},
        {QStringLiteral("ecuType"), info.ecuType},
        {QStringLiteral("engineSerial"), info.engineSerial},
        {QStringLiteral("engineType"), info.engineType},
        {QStringLiteral("emuSwVersion"), info.emuSwVersion},
    };
}

QJsonObject cycleReport(const RecordCycle& cycle)
{
    QJsonArray files;
    for (const RecordFile& file : cycle.files) {
        files.append(CardContainer::name(file.recordInfo().fileName));
    }
    return {
        {QStringLiteral("name"), cycle.name},
        {QStringLiteral("dateTime"), dateTime(cycle.dateTime)},
        {QStringLiteral("files"), files},
        {QStringLiteral("stopTime"), cycle.stopTime},
    };
}

QJsonObject flightReport(const RecordFlight& flight)
{
    const FlightStatistic& s = flight.statistic;
    const QJsonObject statistic = {
        {QStringLiteral("flightTime"), s.flightTime},
        {QStringLiteral("fuelA"), s.fuelA},
        {QStringLiteral("fuelB"), s.fuelB},
        {QStringLiteral("fuel"), s.fuel},
        {QStringLiteral("minAlt"), s.minAlt},
        {QStringLiteral("maxAlt"), s.maxAlt},
        {QStringLiteral("climb"), s.climb},
        {QStringLiteral("climbRate"), s.climbRate},
        {QStringLiteral("descendRate"), s.descendRate},
        {QStringLiteral("maxSpeed"), s.maxSpeed},
        {QStringLiteral("timePer100"), s.timePer100},
        {QStringLiteral("fuelPer100"), s.fuelPer100},
        {QStringLiteral("distance"), s.distance},
        {QStringLiteral("distance15"), s.distance15},
    };
    return {
        {QStringLiteral("dateTime"), dateTime(flight.dateTime)},
        {QStringLiteral("startTime"), flight.startTime},
        {QStringLiteral("stopTime"), flight.stopTime},
        {QStringLiteral("takeoff"), flight.takeoffTime},
        {QStringLiteral("landing"), flight.landingTime},
        {QStringLiteral("statistic"), statistic},
    };
}

QJsonObject loadedReport(const CardContainer& card)
{
    QJsonObject ids;
    std::size_t indexSize = 0;
    for (const auto& [id, list] : card.recordData().ids()) {
        indexSize = std::max(indexSize, list.indexSize);
        const bool collective = id == RecordData::kSource0Id || id == RecordData::kSource1Id;
        if (!collective && !list.entries.empty()) {
            ids.insert(QString::number(id), static_cast<qint64>(list.entries.size()));
        }
    }
    return {
        {QStringLiteral("start"), card.startTime()},
        {QStringLiteral("stop"), card.stopTime()},
        {QStringLiteral("date"), dateTime(card.startDateTime())},
        {QStringLiteral("indexSize"), static_cast<qint64>(indexSize)},
        {QStringLiteral("ids"), ids},
    };
}

template <class Event>
QJsonArray eventReport(const std::vector<Event>& events)
{
    QJsonArray out;
    for (const Event& event : events) {
        out.append(QJsonObject{
            {QStringLiteral("time"), event.time},
            {QStringLiteral("key"), static_cast<qint64>(event.key)},
            {QStringLiteral("name"), QString::fromStdString(event.name)},
            {QStringLiteral("value"), QString::fromStdString(event.value)},
            {QStringLiteral("text"), event.text},
            {QStringLiteral("color"), color(event.color)},
        });
    }
    return out;
}

QJsonArray valueRows(CardContainer& card, const ProfileParameter& p,
                     const std::vector<double>& times)
{
    constexpr int kUntouched = -1;
    QJsonArray rows;
    for (const double time : times) {
        int state = kUntouched;
        QColor band;
        const double value = card.getValue(p, time, state, band);
        rows.append(QJsonArray{time, value, state == kUntouched ? QJsonValue() : QJsonValue(state),
                               color(band)});
    }
    return rows;
}

QJsonArray faultRows(const EntryList& entries, const std::vector<double>& times)
{
    QJsonArray rows;
    for (const double time : times) {
        const std::uint32_t word = faultWordAt(entries, time);
        rows.append(QJsonArray{time, QStringLiteral("%1").arg(word, 8, 16, QLatin1Char('0'))});
    }
    return rows;
}

} // namespace

QJsonObject cardReport(const CardContainer& card)
{
    QJsonObject files;
    for (const auto& [name, file] : card.recordFiles()) {
        files.insert(name, fileReport(file.recordInfo()));
    }
    QJsonObject cycles;
    for (const auto& [number, cycle] : card.recordCycles()) {
        cycles.insert(QString::number(number), cycleReport(cycle));
    }
    return {{QStringLiteral("files"), files}, {QStringLiteral("cycles"), cycles}};
}

QJsonObject recordReport(CardContainer& card, Profile& profile,
                         const std::vector<RecordFlight>& flights, const std::vector<double>& times)
{
    QJsonArray flightRows;
    for (const RecordFlight& flight : flights) {
        flightRows.append(flightReport(flight));
    }
    QJsonObject report = {
        {QStringLiteral("flights"), flightRows},
        {QStringLiteral("record"), loadedReport(card)},
        {QStringLiteral("limits"), eventReport(findLimits(card.recordData(), profile))},
        {QStringLiteral("warnings"), eventReport(findWarnings(card.recordData(), profile))},
    };
    if (times.empty()) {
        return report;
    }
    QJsonObject values;
    QJsonObject words;
    for (const ProfileDevice& device : profile.data().devices) {
        for (const auto& [id, p] : device.parameters) {
            values.insert(p.fullName, valueRows(card, p, times));
        }
        for (const FaultMatrix& matrix : device.errorMatrices) {
            words.insert(QString::number(matrix.id),
                         faultRows(card.recordData().entries(matrix), times));
        }
    }
    report.insert(QStringLiteral("getValue"), values);
    report.insert(QStringLiteral("faultWords"), words);
    return report;
}

} // namespace VELIX
