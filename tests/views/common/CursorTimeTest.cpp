#include "views/common/CursorTime.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include <limits>

namespace VELIX {
namespace {

TEST(CursorTimeTest, TimesOfDayAreTruncatedAndWrap)
{
    const struct
    {
        double seconds;
        const char* text;
    } rows[] = {
        {0.0, "00:00:00.000"},
        {10.0, "00:00:10.000"},
        {61.9999, "00:01:01.999"},
        {86399.999, "23:59:59.999"},
        {86400.0 + 5.5, "00:00:05.500"},
        {40.0 * 86400.0 + 1.0, "00:00:01.000"}, // more milliseconds than an int holds
        {-1.0, "23:59:59.000"},
        {std::numeric_limits<double>::quiet_NaN(), "00:00:00.000"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(CursorTime::timeText(CursorTime::milliseconds(row.seconds)).toStdString(),
                  row.text)
            << row.seconds;
    }
}

TEST(CursorTimeTest, DatesAreThoseOfUtcWhateverTheReadersTimeZone)
{
    // A night at which clocks change in many places.
    const QDateTime start(QDate(2024, 3, 10), QTime(6, 59, 58), Qt::UTC);
    EXPECT_EQ(CursorTime::dateTimeText(start, 1.999).toStdString(), "10.03.2024 06:59:59");
    EXPECT_EQ(CursorTime::dateTimeText(start, 86400.0).toStdString(), "11.03.2024 06:59:58");
    EXPECT_EQ(CursorTime::dateTimeText(QDateTime(), 5.0), CursorTime::dateTimePlaceholder());
    EXPECT_FALSE(CursorTime::dateTimeText(start, 1e300).isEmpty());
}

TEST(CursorTimeTest, SliderPositionsAreTruncatedAndStayOnTheSlider)
{
    EXPECT_EQ(CursorTime::sliderPosition(100.0, 200.0, 150.0), 5000);
    EXPECT_EQ(CursorTime::sliderPosition(100.0, 200.0, 100.0199), 1);
    EXPECT_EQ(CursorTime::sliderPosition(100.0, 200.0, 0.0), 0);
    EXPECT_EQ(CursorTime::sliderPosition(100.0, 200.0, 1e300), 10000);
    EXPECT_EQ(CursorTime::sliderPosition(100.0, 100.0, 100.0), -1);
    EXPECT_EQ(CursorTime::sliderTime(100.0, 200.0, 2500), 125.0);
    EXPECT_EQ(CursorTime::sliderTime(3.2, 3217.06038603125, CursorTime::kSliderSteps),
              3217.06038603125)
        << "not a rounding step behind it";
}

} // namespace
} // namespace VELIX
