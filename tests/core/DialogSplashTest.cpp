#include "core/DialogSplash.h"

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

using namespace VELIX;

namespace {

const QRgb kTextColor = qRgb(0, 0, 200);

/// The pixel rows, from top to bottom, that hold text.
std::set<int> textRows(const QImage& image)
{
    std::set<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == kTextColor) {
                rows.insert(y);
            }
        }
    }
    return rows;
}

TEST(DialogSplash, ShowsItsPicture)
{
    DialogSplash splash;
    EXPECT_TRUE(splash.isVisible());
    EXPECT_EQ(splash.pixmap().size(), QSize(536, 403));

    const QImage picture = splash.pixmap().toImage();
    std::set<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colors.insert(picture.pixel(x, y));
        }
    }
    EXPECT_EQ(colors.size(), 67U);
    EXPECT_TRUE(textRows(splash.grab().toImage()).empty());
}

TEST(DialogSplash, KeepsTheLastFifteenLines)
{
    DialogSplash splash;
    QStringList expected;
    for (int i = 1; i <= 20; ++i) {
        splash.addEntry(QString::number(i));
        if (i > 5) {
            expected.append(QString::number(i));
        }
    }
    EXPECT_EQ(splash.entries(), expected);
}

TEST(DialogSplash, WritesLinesFifteenPixelsApartFromTheTop)
{
    DialogSplash letters;
    letters.addEntry(QStringLiteral("EEE"));
    letters.addEntry(QStringLiteral("EEE"));
    const std::set<int> rows = textRows(letters.grab().toImage());
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(*rows.rbegin(), 30 + 15 - 1);
    EXPECT_TRUE(rows.count(30 - 1));
    EXPECT_FALSE(rows.count(30));
    EXPECT_GT(*rows.begin(), 30 - 15);
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
