// The bar of a fault matrix that shows when which errors were set.

#include "views/fault/WidgetErrorTime.h"

#include "profile/FaultMatrix.h"
#include "tests/support/RecordBuilder.h"
#include "tests/views/fault/FaultWords.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace VELIX {
namespace {

using Test::RecordBuilder;

constexpr int kId = 0x4F0;
constexpr int kWidth = 960;

struct WidgetErrorTimeTest : ::testing::Test
{
    WidgetErrorTimeTest()
    {
        FaultMatrix matrix;
        matrix.id = kId;
        const auto add = [&matrix](int bit, const char* name, int type) {
            matrix.bits[bit].name = QString::fromUtf8(name);
            matrix.bits[bit].errorType = type;
        };
        add(0, "Self Test", eErrorInfo);
        add(4, "Oil Hot", eErrorWarning);
        add(12, "Spare", eErrorNone);
        add(31, "Over\nspeed <b>", eErrorFault);
        bar.setData(matrix);
        bar.resize(kWidth, bar.height());
        bar.show();
    }
    /// Words in a record from 0 to 100 s.
    void load(std::initializer_list<std::pair<double, std::uint32_t>> words)
    {
        record = VELIX::Test::faultWords(kId, words).data();
        bar.updateRecord(record.get());
    }

    std::shared_ptr<RecordData> record;
    WidgetErrorTime bar;
};

TEST_F(WidgetErrorTimeTest, HasABandForEachTypeAndTheCursor)
{
    load({{20, 0x80000000U}, {40, 0x10U}, {60, 0x1U}, {80, 0x20U}, {90, 0}});
    bar.setTime(50);
    ASSERT_EQ(bar.height(), 30);
    const QColor fault(255, 150, 150);
    const QColor warning(255, 200, 150);
    const QColor info(150, 150, 255);
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    const QColor grey(200, 200, 200);
    const struct
    {
        int x;
        int y;
        QColor color;
    } rows[] = {{96, 5, white},   {288, 5, fault},    {288, 15, white}, {288, 25, white},
                {432, 5, white},  {432, 15, warning}, {432, 25, white}, {672, 5, white},
                {672, 15, white}, {672, 25, info},    {816, 5, white},  {816, 15, white},
                {816, 25, white}, {288, 10, grey},    {672, 20, grey},  {288, 0, grey},
                {288, 29, grey},  {480, 0, black},    {480, 29, black}, {0, 14, grey},
                {959, 14, grey},  {191, 5, white},    {192, 5, fault}};
    QImage image = bar.grab().toImage();
    for (const auto& row : rows) {
        EXPECT_EQ(image.pixelColor(row.x, row.y), row.color) << row.x << " " << row.y;
    }
    for (const double outside : {-10.0, 1000.0, 1e300}) {
        bar.setTime(outside);
        image = bar.grab().toImage();
        for (int x = 0; x < kWidth; ++x) {
            ASSERT_NE(image.pixelColor(x, 14), black) << outside;
        }
    }
}

TEST_F(WidgetErrorTimeTest, TipsSayTimeAndNames)
{
    load({{20, 0xFFFFFFFFU}, {40, 0}, {60, 0x00000001U}, {90, 0}});
    const auto tip = [this](int x) {
        QHelpEvent help(QEvent::ToolTip, {x, 5}, bar.mapToGlobal({x, 5}));
        QApplication::sendEvent(&bar, &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tip(288), QStringLiteral("00:00:30.000\nFault: Over\nspeed <b>\nWarning: Oil Hot\n"
                                       "Info: Self Test\nSpare"));
    EXPECT_FALSE(Qt::mightBeRichText(tip(288)));
    EXPECT_EQ(tip(672), QStringLiteral("00:01:10.000\nInfo: Self Test"));
    EXPECT_EQ(tip(480), QStringLiteral("00:00:50.000\nNo error set"));

    record = RecordBuilder().at(1).id(7).ulongValue(0).at(2).ulongValue(0).data();
    bar.updateRecord(record.get());
    EXPECT_EQ(tip(480), QStringLiteral("The record has no messages of this matrix."));
    bar.updateRecord(nullptr);
    EXPECT_EQ(bar.tipText(480), QString());
}

} // namespace
} // namespace VELIX
