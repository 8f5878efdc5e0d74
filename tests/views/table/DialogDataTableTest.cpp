#include "views/table/DialogDataTable.h"

#include "card/RecordData.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "tests/support/ViewTexts.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace VELIX {
namespace {

using Test::headingsOf;
using Test::hintOf;
using Test::ProfileBuilder;
using Test::RecordBuilder;
using Test::rowsOf;
using Test::selectedRow;

constexpr int kOil = 500;
constexpr int kSpeed = 501;
constexpr int kLatitude = 502;
constexpr int kLamp = 503;

struct DialogDataTableTest : ::testing::Test
{
    DialogDataTableTest()
    {
        builder.conversion("C", "F", 1.8, 32.0)
            .threshold("Hot", {{90.0, "yellow", "WARNING"}, {110.0, "#aa0000", "LIMIT"}})
            .enumeration("Lamp", {{0, "Off"}, {1, "On because of an overheated gearbox"}});
        builder.device("Lane A")
            .parameter(kOil, QStringLiteral("Oil"), "FLOAT")
            .set("unitMetric", "C")
            .set("unitImperial", "F")
            .set("precision", "1")
            .set("thresholdId", "Hot");
        builder.parameter(kSpeed, QStringLiteral("Speed"), "USHORT");
        builder.parameter(kLatitude, QStringLiteral("Latitude"), "FLOAT")
            .set("velixDataType", "Latitude")
            .set("precision", "4");
        builder.parameter(kLamp, QStringLiteral("Lamp"), "BLONG")
            .set("enumId", "Lamp")
            .set("startBit", "0")
            .set("endBit", "0");
    }

    void SetUp() override
    {
        ASSERT_TRUE(builder.load(profile));
        select({kOil, kSpeed});
        view.resize(500, 300);
        view.show();
    }
    void select(std::initializer_list<int> ids)
    {
        ProfileBuilder::select(profile, ids);
        view.updateProfile();
    }
    void show(const RecordBuilder& record)
    {
        data = record.data();
        view.updateRecord(data.get());
    }
    void showOil(std::initializer_list<std::pair<double, float>> samples)
    {
        show(RecordBuilder().id(kOil).floatValues(samples));
    }
    QTableWidget* table() { return view.findChild<QTableWidget*>(); }
    std::string text(int row, int column)
    {
        return table()->item(row, column)->text().toStdString();
    }
    std::string dump() { return headingsOf(*table()) + '\n' + rowsOf(*table()); }

    ProfileBuilder builder;
    std::shared_ptr<RecordData> data; // outlives the view
    Profile profile;
    DialogDataTable view{profile};
};

TEST_F(DialogDataTableTest, RowsAreTenthsOfASecondAndColumnsParameters)
{
    RecordBuilder record;
    record.at(10.0).id(kOil).floatValue(80.0F);
    record.at(10.04).id(kSpeed).ushortValue(7);
    record.at(10.1).id(kSpeed).ushortValue(8);
    record.at(3725.5).id(kOil).floatValue(80.25F);
    show(record);
    EXPECT_EQ(dump(), "Time | Oil [C] | Speed\n"
                      "00:00:10.000 | 80.0 | 7\n"
                      "00:00:10.100 | - | 8\n"
                      "01:02:05.500 | 80.2 | -");
    EXPECT_FALSE(table()->item(0, 0)->flags() & Qt::ItemIsEditable);
}

TEST_F(DialogDataTableTest, TheLastSampleOfATenthInFileOrderCounts)
{
    select({kOil});
    showOil({{2.0, 1}, {2.02, 2}, {1.0, 3}, {2.01, 4}}); // the clock ran backwards
    EXPECT_EQ(dump(), "Time | Oil [C]\n00:00:01.000 | 3.0\n00:00:02.000 | 4.0");
}

TEST_F(DialogDataTableTest, ThresholdsColourCellsAndTextsStayReadable)
{
    showOil({{1.0, 20}, {2.0, 95}, {3.0, 120}});
    EXPECT_EQ(table()->item(0, 1)->background().style(), Qt::NoBrush);
    EXPECT_EQ(table()->item(1, 1)->background().color(), QColor(Qt::yellow));
    EXPECT_LT(table()->item(1, 1)->foreground().color().lightness(), 80);
    EXPECT_GT(table()->item(2, 1)->foreground().color().lightness(), 200);
}

TEST_F(DialogDataTableTest, PositionsAreFilteredInOrderOfTimeOnEveryWalk)
{
    select({kLatitude});
    RecordBuilder record;
    record.id(kLatitude).at(7.0).floatValue(5230.0F); // a jump of four degrees
    for (int i = 0; i < 6; ++i) {
        record.at(1.0 + i).floatValue(4830.0F);
    }
    show(record);
    for (int walk = 0; walk < 2; ++walk) {
        EXPECT_EQ(text(0, 1), "48.5000");
        EXPECT_EQ(text(6, 1), "48.5000");
        view.updateProfile();
    }
}

TEST_F(DialogDataTableTest, TheCursorSelectsAndCentresItsRowInSilence)
{
    RecordBuilder record;
    record.id(kSpeed);
    for (int i = 0; i < 500; ++i) {
        record.at(10.0 + i * 0.1).ushortValue(static_cast<std::uint16_t>(i));
    }
    view.resize(120, 200);
    show(record);
    QCoreApplication::processEvents();
    QScrollBar* bar = table()->horizontalScrollBar();
    bar->setValue(bar->maximum());
    ASSERT_GT(bar->value(), 0);
    const QSignalSpy moved(&view, &DialogDataTable::signalTime);
    EXPECT_EQ(selectedRow(*table()), 0);
    const std::pair<double, int> rows[] = {{10.04, 0}, {10.06, 1}, {30.0, 200}, {0.0, 0},
                                           {1e9, 499}, {-5.0, 0},  {22.2, 122}};
    for (const auto& [time, row] : rows) {
        view.setTime(time);
        EXPECT_EQ(selectedRow(*table()), row) << time;
    }
    const QRect cell = table()->visualItemRect(table()->item(122, 0));
    EXPECT_NEAR(cell.center().y(), table()->viewport()->rect().center().y(), 2);
    EXPECT_EQ(bar->value(), bar->maximum()) << "the columns in sight stay";
    EXPECT_EQ(moved.count(), 0);
}

TEST_F(DialogDataTableTest, ColumnsHoldTheTextsOfSlowParametersAndRareStates)
{
    select({kOil, kSpeed, kLamp});
    RecordBuilder record;
    for (int i = 0; i < 960; ++i) { // 24 x 40 rows, the slow ones never at a multiple of 40
        record.at(i * 0.1).id(kSpeed).ushortValue(1);
        if (i % 40 == 7) {
            record.id(kOil).floatValue(-123456.0F).id(kLamp).blongValue(i == 487 ? 1 : 0);
        }
    }
    show(record);
    const QFontMetrics metrics = table()->fontMetrics();
    for (const int column : {1, 3}) {
        const QString widest = table()->item(487, column)->text();
        EXPECT_GT(table()->columnWidth(column), metrics.horizontalAdvance(widest)) << column;
    }
}

TEST_F(DialogDataTableTest, ARowThatTheUserSelectsMovesTheCursor)
{
    showOil({{1.0, 1}, {2.5, 2}, {4.0, 3}});
    QSignalSpy moved(&view, &DialogDataTable::signalTime);
    const QPoint second = table()->visualItemRect(table()->item(1, 1)).center();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, second);
    ASSERT_EQ(moved.count(), 1);
    EXPECT_DOUBLE_EQ(moved.takeFirst().at(0).toDouble(), 2.5);
    QTest::keyClick(table(), Qt::Key_Down);
    ASSERT_EQ(moved.count(), 1);
    EXPECT_DOUBLE_EQ(moved.takeFirst().at(0).toDouble(), 4.0);
}

TEST_F(DialogDataTableTest, ProfileChangesRefillAtTheCursor)
{
    showOil({{1.0, 100}, {2.0, 0}});
    view.setTime(2.0);
    profile.setCurrentUnit(eUnitImperial);
    select({kOil});
    EXPECT_EQ(dump(), "Time | Oil [F]\n00:00:01.000 | 212.0\n00:00:02.000 | 32.0");
    EXPECT_EQ(selectedRow(*table()), 1);

    ASSERT_TRUE(builder.load(profile)); // nothing is selected then
    EXPECT_EQ(text(0, 1), "212.0") << "cells outlive the profile that they were filled from";
    view.grab();
    view.updateProfile();
    EXPECT_EQ(headingsOf(*table()), "Time");
}

TEST_F(DialogDataTableTest, SaysWhatIsMissing)
{
    const auto says = [this](const char* words) {
        return hintOf(view).contains(QLatin1String(words));
    };
    EXPECT_TRUE(says("No record loaded"));
    showOil({{1.0, 100}});
    EXPECT_TRUE(hintOf(view).isEmpty());
    select({kSpeed});
    EXPECT_TRUE(says("no samples"));

    select({});
    EXPECT_TRUE(says("No parameter selected"));
    EXPECT_EQ(dump(), "Time\n");
    const QSignalSpy selectWanted(&view, &DialogDataTable::signalSelectParameters);
    const QSignalSpy installWanted(&view, &DialogDataTable::signalInstallProfile);
    emit view.findChild<WidgetHint*>()->signalLink();
    EXPECT_EQ(selectWanted.count(), 1);

    profile.clear();
    view.updateProfile();
    EXPECT_TRUE(says("No parameter profile"));
    emit view.findChild<WidgetHint*>()->signalLink();
    EXPECT_EQ(selectWanted.count(), 1);
    EXPECT_EQ(installWanted.count(), 1);
    view.updateRecord(nullptr);
    view.setTime(5.0);
    EXPECT_EQ(table()->rowCount(), 0);
}

TEST_F(DialogDataTableTest, LiveLayoutShowsTheLatestValues)
{
    showOil({{1.0, 20}, {2.0, 95}});
    view.setVelixMode(1);
    EXPECT_EQ(dump(), "Value\n95.0\n-");
    EXPECT_EQ(table()->verticalHeaderItem(0)->text().toStdString(), "Oil [C]");
    EXPECT_EQ(table()->item(0, 0)->background().color(), QColor(Qt::yellow));

    const RecordBuilder later = RecordBuilder().id(kSpeed).at(3.0).ushortValue(42);
    data->append(later.last());
    data->list(kSpeed).last = later.last();
    EXPECT_TRUE(QTest::qWaitFor([this] { return dump() == "Value\n95.0\n42"; }, 1000));

    view.setVelixMode(0);
    EXPECT_EQ(dump(), "Time | Oil [C] | Speed\n00:00:01.000 | 20.0 | -\n"
                      "00:00:02.000 | 95.0 | -\n00:00:03.000 | - | 42");
}

} // namespace
} // namespace VELIX
