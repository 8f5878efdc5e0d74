#include "gui/card/CardTexts.h"

#include "card/RecordCycle.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include <limits>

using namespace VELIX;

namespace {

QDateTime utc(int hour, int minute, int second)
{
    return {QDate(2024, 3, 2), QTime(hour, minute, second), Qt::UTC};
}

RecordFile fileFrom(double start)
{
    RecordInfo info;
    info.startTime = start;
    RecordFile file;
    file.setRecordInfo(info);
    return file;
}

} // namespace

TEST(CardTexts, ClockDoesNotWrapAndSurvivesDamage)
{
    const struct
    {
        double seconds;
        const char* text;
    } rows[] = {{0.0, "00:00:00"},
                {59.99, "00:00:59"},
                {3661.5, "01:01:01"},
                {90000.0, "25:00:00"},
                {-5.0, "00:00:00"},
                {std::numeric_limits<double>::quiet_NaN(), "00:00:00"},
                {std::numeric_limits<double>::infinity(), "277777777:46:40"}};
    for (const auto& row : rows) {
        EXPECT_EQ(CardTexts::clock(row.seconds), QLatin1String(row.text)) << row.seconds;
    }
}

TEST(CardTexts, CycleShowsNameStartAndLengthFromFirstStartToLastStop)
{
    RecordCycle cycle;
    EXPECT_EQ(CardTexts::cycle(cycle), QStringLiteral(" Unknown Date (00:00:00)"));
    cycle.name = QStringLiteral("Cycle 3");
    cycle.dateTime = utc(8, 1, 2);
    cycle.files = {fileFrom(100.0), fileFrom(2000.0)};
    cycle.stopTime = 3761.0;
    EXPECT_EQ(CardTexts::cycle(cycle), QStringLiteral("Cycle 3 2.3.2024 8:01:02 (01:01:01)"));
}

TEST(CardTexts, FlightShowsTakeOffAndFlightTime)
{
    RecordFlight flight;
    flight.takeoffTime = 4000.0;
    flight.landingTime = 4605.0;
    EXPECT_EQ(CardTexts::flight(2, flight), QStringLiteral("Flight 2 01:06:40 (00:10:05)"));
    flight.dateTime = utc(23, 59, 58);
    EXPECT_EQ(CardTexts::flight(2, flight), QStringLiteral("Flight 2 23:59:58 (00:10:05)"));
}

TEST(CardTexts, FileListsItsHeader)
{
    RecordInfo info;
    info.startTime = 10.0;
    info.stopTime = 70.0;
    info.busType = -1;
    info.ecuSerialNumber = 4000000000U;
    info.softwarePartA = QStringLiteral("A1");
    info.softwarePartB = QStringLiteral("B1");
    info.ecuType = QStringLiteral("E");
    info.emuSwVersion = QStringLiteral("V1");
    info.engineSerial = QStringLiteral("S");
    info.engineType = QStringLiteral("T");
    info.sampleCount = 12;
    EXPECT_EQ(CardTexts::details(info).join(QLatin1Char('\n')).toStdString(),
              "Start Time: 00:00:10\nStop Time: 00:01:10\nBus Type: -1\n"
              "ECU Serial Number: 4000000000\nSoftware Part Nr. A: A1\nSoftware Part Nr. B: B1\n"
              "ECU Type: E\nEMU SW Version: V1\nEngine Serial Nr.: S\nEngine Type: T\n"
              "Samples Total: 12");
}
