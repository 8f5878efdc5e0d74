#include "core/startup/DialogSplash.h"

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

using namespace VELIX;

namespace {

TEST(DialogSplash, WritesItsLastFifteenLinesFifteenPixelsApart)
{
    DialogSplash splash;
    EXPECT_TRUE(splash.isVisible());
    EXPECT_EQ(splash.pixmap().size(), QSize(536, 403));
    for (int i = 0; i < 20; ++i) {
        splash.addEntry(i < 5 ? QStringLiteral("gone") : QStringLiteral("E%1").arg(i));
    }
    ASSERT_EQ(splash.entries().size(), 15);
    EXPECT_FALSE(splash.entries().contains(QStringLiteral("gone")));

    const QImage image = splash.grab().toImage();
    std::set<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == qRgb(0, 0, 200)) {
                rows.insert(y);
            }
        }
    }
    for (int line = 0; line < 15; ++line) {
        const int baseline = 30 + 15 * line; // at the foot of the E
        EXPECT_TRUE(rows.count(baseline - 1)) << line;
        EXPECT_FALSE(rows.count(baseline)) << line;
    }
    EXPECT_EQ(*rows.rbegin(), 30 + 15 * 14 - 1);
}

TEST(DialogSplash, ClosesOnAMousePressAndWhenItsTimeIsOver)
{
    DialogSplash pressed;
    QTest::mousePress(&pressed, Qt::LeftButton);
    EXPECT_FALSE(pressed.isVisible());

    DialogSplash timed;
    timed.finish();
    QTest::qWait(100);
    EXPECT_TRUE(timed.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&timed] { return !timed.isVisible(); }, 10000));
}

} // namespace
