#include "views/statistic/DialogDataStatistic.h"

#include "card/RecordData.h"
#include "views/statistic/FlightText.h"
#include "views/statistic/TableTextEdit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextEdit>

#include <limits>

namespace VELIX {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

RecordFlight towFlight(double takeoff, double landing)
{
    RecordFlight flight;
    flight.dateTime = QDateTime(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC).addSecs(qint64(takeoff));
    flight.takeoffTime = takeoff;
    flight.landingTime = landing;
    FlightStatistic& s = flight.statistic;
    s.valid = true;
    s.fuelA = 3.25;
    s.fuelB = 3.0;
    s.fuel = 6.25;
    s.minAlt = 500.0;
    s.maxAlt = 1500.0;
    s.climb = 1000.0;
    s.climbRate = kNan;
    s.descendRate = 1.0 / 3.0;
    s.maxSpeed = 141.5;
    s.timePer100 = 120.9;
    s.fuelPer100 = -kInfinity;
    s.distance = 1234567.8;
    s.distance15 = 412.0;
    return flight;
}

struct DialogDataStatisticTest : ::testing::Test
{
    QTextEdit* edit() { return view.findChild<QTextEdit*>(); }
    /// All of the text for the data, as it is copied.
    std::string shown()
    {
        view.updateRecord(&data);
        edit()->selectAll();
        return TableTextEdit::plainText(edit()->textCursor()).toStdString();
    }

    RecordData data;
    DialogDataStatistic view;
};

TEST_F(DialogDataStatisticTest, AFlightIsATableOfNamesAndValues)
{
    data.flight = towFlight(600.2, 1800.9);
    const std::string figures = "Flight Time\t00:20:00\n"
                                "Total Fuel Lane A\t3.25 l\n"
                                "Total Fuel Lane B\t3 l\n"
                                "Total Fuel\t6.25 l\n"
                                "Minimum Alt\t500 m\n"
                                "Maximum Alt\t1500 m\n"
                                "Total Climb\t1000 m\n"
                                "Average Climb Rate\tnan m/s\n"
                                "Average Descend Rate\t0.333333 m/s\n"
                                "Max Ground Speed\t141.5 km/h\n"
                                "Time / 100m\t00:02:00\n"
                                "Fuel / 100m\t-inf l\n"
                                "Take Off Distance\t1.23457e+06 m\n"
                                "Take Off Distance 15m\t412 m";
    EXPECT_EQ(shown(), figures);
    EXPECT_TRUE(edit()->isReadOnly());

    data.flight.statistic.heightUnit = QStringLiteral("ft");
    data.flight.statistic.fuelUnit = QStringLiteral("gal");
    EXPECT_EQ(shown(), figures + "\nThe cycle was loaded in imperial units: read m as ft, l as "
                                 "gal. Only the take-off distances are in m all the same.")
        << "labels are fixed";
}

TEST_F(DialogDataStatisticTest, AWholeCycleListsItsFlights)
{
    data.cycleFlights = {towFlight(600.0, 1800.0), towFlight(3000.0, 89000.0)};
    data.cycleFlights[1].statistic.climb = 250.4;
    EXPECT_EQ(shown(), "No flight selected\n"
                       "The flights of this cycle. Choose one in the list of cycles to see all of "
                       "its figures.\n"
                       "Flight\tTake-off\tTime\tFuel\tClimb\n"
                       "1\t10:10:00\t00:20:00\t6.3 l\t1000 m\n"
                       "2\t10:50:00\t23:53:20\t6.3 l\t250 m\n"
                       "Total\t\t24:13:20\t12.5 l\t1250 m");

    data.cycleFlights.pop_back(); // one flight needs no sums; its clock may have no date
    data.cycleFlights[0].dateTime = QDateTime();
    data.cycleFlights[0].statistic.fuel = kNan;
    data.cycleFlights[0].statistic.heightUnit = QStringLiteral("ft");
    const std::string text = shown();
    EXPECT_EQ(text.substr(text.find("1\t")), "1\t00:10:00\t00:20:00\t\u2013\t1000 ft");
}

TEST(FlightText, TimesAreTruncatedToSecondsOfADay)
{
    const std::pair<double, const char*> rows[] = {
        {0.0, "00:00:00"},     {59.999, "00:00:59"}, {3661.0, "01:01:01"},
        {86400.0, "00:00:00"}, {-0.9, "00:00:00"},   {-1.0, "23:59:59"},
        {kInfinity, "inf"},    {kNan, "nan"},        {1e300, "20:45:52"},
    };
    for (const auto& [seconds, text] : rows) {
        EXPECT_EQ(FlightText::timeOfDay(seconds).toStdString(), text) << seconds;
    }
}

TEST_F(DialogDataStatisticTest, WithoutAFlightItSaysSo)
{
    EXPECT_EQ(edit()->toPlainText().trimmed(), QStringLiteral("No flight selected"));
    data.flight = towFlight(0.0, 10.0);
    EXPECT_NE(shown(), "No flight selected");
    data.flight.statistic.valid = false;
    EXPECT_EQ(shown(), "No flight selected");
}

TEST_F(DialogDataStatisticTest, ASelectionIsCopiedAsLinesOfCells)
{
    data.flight = towFlight(600.0, 1800.0);
    view.updateRecord(&data);
    QTextCursor two = edit()->document()->find(QStringLiteral("Total Fuel Lane A"));
    two.setPosition(two.selectionStart());
    two.setPosition(edit()->document()->find(QStringLiteral("3 l")).position(),
                    QTextCursor::KeepAnchor);
    edit()->setTextCursor(two);
    view.show();
    QApplication::setActiveWindow(&view);
    edit()->setFocus();
    QTest::keyClick(edit(), Qt::Key_C, Qt::ControlModifier);
    const QMimeData* mime = QApplication::clipboard()->mimeData();
    EXPECT_EQ(mime->text().toStdString(), "Total Fuel Lane A\t3.25 l\nTotal Fuel Lane B\t3 l");
    EXPECT_TRUE(mime->html().contains(QStringLiteral("<table")));
}

} // namespace
} // namespace VELIX
