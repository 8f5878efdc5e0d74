// The limit list and the list of warning lamps, on real widgets.

#include "views/events/DialogDataEvents.h"

#include "card/RecordData.h"
#include "gui/look/Palette.h"
#include "gui/look/Resources.h"
#include "profile/Profile.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "tests/support/TestFile.h"
#include "tests/support/ViewTexts.h"
#include "views/events/DialogDataLimit.h"
#include "views/events/DialogDataWarning.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace VELIX {
namespace {

using Test::FakeDialogs;
using Test::headingsOf;
using Test::hintOf;
using Test::ProfileBuilder;
using Test::readFile;
using Test::RecordBuilder;
using Test::rowsOf;

constexpr int kOil = 500;
constexpr int kLamp = 501;

ProfileBuilder profileWithWarningAt(double degrees)
{
    ProfileBuilder builder;
    builder.threshold("Hot", {{degrees, "yellow", "WARNING"}, {110.0, "#aa0000", "LIMIT"}})
        .enumeration("WarningLamp", {{0, "off"}, {1, "amber"}, {2, "red"}, {3, "test"}})
        .device("Lane A")
        .parameter(kOil, QStringLiteral("Oil"), "FLOAT")
        .set("unitMetric", "C")
        .set("viewId", "oil view")
        .set("precision", "1")
        .set("thresholdId", "Hot")
        .parameter(kLamp, QStringLiteral("Fire"), "BSHORT")
        .set("enumId", "WarningLamp")
        .set("endBit", "7")
        .set("unitMetric", "lamp");
    return builder;
}

/// Cold, a warning at 10 s, a limit at 20 s, cold at 30 s and again hot at 40.0479 s; the lamp
/// goes 0, 1, 2, 3, 0.
RecordBuilder eventfulRecord()
{
    RecordBuilder record;
    record.at(0).id(kOil).floatValue(20).id(kLamp).bshortValue(0);
    record.at(10).id(kOil).floatValue(95).id(kLamp).bshortValue(1);
    record.at(20).id(kOil).floatValue(120).id(kLamp).bshortValue(2);
    record.at(30).id(kOil).floatValue(20).id(kLamp).bshortValue(3);
    record.at(40.0479).id(kOil).floatValue(95).id(kLamp).bshortValue(0);
    record.at(50).id(kOil).floatValue(95).id(kLamp).bshortValue(0);
    return record;
}

template <class View>
struct EventListTest : ::testing::Test
{
    void SetUp() override
    {
        initResources();
        ASSERT_TRUE(profileWithWarningAt(90).load(profile));
        view.resize(500, 120);
        view.show();
        QApplication::setActiveWindow(&view);
    }
    void show(const RecordBuilder& builder)
    {
        data = builder.data();
        view.updateRecord(data.get());
    }
    QTableWidget* table() { return view.template findChild<QTableWidget*>(); }
    QString hint()
    {
        EXPECT_NE(view.template findChild<WidgetHint*>()->isVisible(), table()->isVisible());
        return hintOf(view);
    }
    int selectedRow() { return VELIX::Test::selectedRow(*table()); }
    int rowAt(double seconds)
    {
        view.setTime(seconds);
        return selectedRow();
    }
    void click(int row)
    {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                          table()->visualItemRect(table()->item(row, 1)).center());
    }
    QAction* action(const char* text)
    {
        for (QAction* candidate : table()->actions()) {
            if (candidate->text() == QLatin1String(text)) {
                return candidate;
            }
        }
        return nullptr;
    }

    QTemporaryDir folder;
    FakeDialogs dialogs;
    Profile profile;
    std::shared_ptr<RecordData> data;
    View view{profile, dialogs};
};

using LimitListTest = EventListTest<DialogDataLimit>;
using LampListTest = EventListTest<DialogDataWarning>;

TEST_F(LimitListTest, ListsEventsAndKeepsThemInTheRecord)
{
    for (int i = 0; i < 2; ++i) { // refilled, not added to
        show(eventfulRecord());
        EXPECT_EQ(rowsOf(*table()), "00:00:10.000 | Lane A Oil 95.0 oil view\n"
                                    "00:00:20.000 | Lane A Oil 120.0 oil view\n"
                                    "00:00:40.047 | Lane A Oil 95.0 oil view");
        EXPECT_EQ(data->limits.size(), 3U);
        EXPECT_TRUE(data->warnings.empty()) << "those are the other list's";
    }
    EXPECT_EQ(headingsOf(*table()), "Time | Warning/Limit Exceed");
}

TEST_F(LampListTest, ListsLampsWithTheirMetricUnit)
{
    show(eventfulRecord());
    EXPECT_EQ(rowsOf(*table()), "00:00:10.000 | Lane A Fire 1: amber lamp\n"
                                "00:00:20.000 | Lane A Fire 2: red lamp\n"
                                "00:00:30.000 | Lane A Fire 3: test lamp");
    EXPECT_EQ(data->warnings.size(), 3U);
    EXPECT_TRUE(data->limits.empty());

    RecordBuilder dark;
    dark.at(0).id(kLamp).bshortValue(0);
    show(dark);
    EXPECT_EQ(hint(), QStringLiteral("No warning lamp was lit in this record."));
}

TEST_F(LimitListTest, RowsAndTimesFitAnyFont)
{
    show(eventfulRecord());
    for (const int pixels : {8, 12, 30}) {
        view.setStyleSheet(QStringLiteral("QWidget { font-size: %1px; }").arg(pixels));
        QApplication::processEvents();
        const QFontMetrics metrics = table()->fontMetrics();
        EXPECT_EQ(table()->rowHeight(0), std::max(15, metrics.height() + 1)) << pixels;
        const int text = metrics.horizontalAdvance(QStringLiteral("00:00:10.000"));
        EXPECT_GT(table()->columnWidth(0), std::max(text, 79)) << pixels;
    }
    EXPECT_GE(table()->columnWidth(0) + table()->columnWidth(1), table()->viewport()->width());
}

TEST_F(LimitListTest, ANarrowPaneScrollsInsteadOfCuttingValuesOff)
{
    show(eventfulRecord());
    const QString longest = table()->item(1, 1)->text();
    view.resize(160, 120);
    QApplication::processEvents();
    EXPECT_GT(table()->columnWidth(1), table()->fontMetrics().horizontalAdvance(longest));
    table()->horizontalScrollBar()->setValue(50);
    view.setTime(45.0);
    EXPECT_EQ(table()->horizontalScrollBar()->value(), 50) << "the cursor moves rows only";
    click(0);
    EXPECT_EQ(table()->horizontalScrollBar()->value(), 50) << "and so does the user";
    view.resize(500, 120);
    QApplication::processEvents();
    EXPECT_EQ(table()->columnWidth(0) + table()->columnWidth(1), table()->viewport()->width());
}

TEST_F(LampListTest, ColoursTintTheRowAndLeaveTheTextReadable)
{
    struct Row
    {
        int row;
        QColor ground; ///< invalid: none
    };
    const Row lamps[] = {{0, QColor(255, 150, 100, 60)}, {1, QColor(255, 100, 100, 60)}, {2, {}}};
    for (const Palette::Look look : {Palette::Look::Light, Palette::Look::Dark}) {
        Palette::apply(*qApp, look);
        show(eventfulRecord());
        EXPECT_EQ(table()->item(0, 0)->background().color(), QColor(230, 230, 230));
        EXPECT_GE(
            Palette::contrast(table()->item(0, 0)->foreground().color(), QColor(230, 230, 230)),
            4.5);
        for (const auto& [row, ground] : lamps) {
            const QTableWidgetItem* item = table()->item(row, 1);
            EXPECT_EQ(item->data(Qt::BackgroundRole).isValid(), ground.isValid()) << row;
            if (!ground.isValid()) {
                continue;
            }
            EXPECT_EQ(item->background().color(), ground) << row;
            QPixmap pixel(1, 1);
            pixel.fill(Palette::current().surface);
            QPainter(&pixel).fillRect(0, 0, 1, 1, item->background());
            EXPECT_GE(
                Palette::contrast(item->foreground().color(), pixel.toImage().pixelColor(0, 0)),
                4.5)
                << row;
        }
    }
    Palette::apply(*qApp, Palette::Look::Light);
}

TEST_F(LampListTest, TheSelectedRowKeepsItsColourInSight)
{
    show(eventfulRecord());
    view.setTime(20.0);
    const QImage picture = table()->viewport()->grab().toImage();
    const auto groundOf = [&](int row, int fromLeft) {
        const QRect cell = table()->visualItemRect(table()->item(row, 1));
        return picture.pixelColor(cell.left() + fromLeft, cell.center().y());
    };
    EXPECT_EQ(groundOf(1, 2), QColor(255, 100, 100));
    EXPECT_EQ(groundOf(1, 200), QColor(100, 100, 255));
    EXPECT_EQ(groundOf(0, 2), groundOf(0, 200)) << "others are tinted as a whole";
}

TEST_F(LimitListTest, TheCursorSelectsTheEventAtOrBeforeIt)
{
    RecordBuilder record = eventfulRecord();
    record.at(60).id(kOil).floatValue(20);
    record.at(70.01).id(kOil).floatValue(95).at(70.02).id(kOil).floatValue(120);
    show(record); // two events in the tenth of a second at 70 s
    const QSignalSpy moved(&view, &DialogDataEvents::signalTime);
    const std::pair<double, int> cases[] = {
        {-5.0, 0}, {0.0, 0},  {9.9, 0},  {10.0, 0}, {19.94, 0}, {19.96, 1}, {20.0, 1},
        {39.9, 1}, {40.0, 2}, {65.0, 2}, {70.0, 4}, {1e300, 4}, {70.01, 4},
    };
    for (const auto& [time, row] : cases) {
        EXPECT_EQ(rowAt(time), row) << time;
    }
    EXPECT_EQ(moved.count(), 0) << "the list does not echo";
}

TEST_F(LimitListTest, TheRowOfTheCursorIsCentred)
{
    RecordBuilder record;
    for (int second = 0; second < 400; ++second) {
        record.at(second).id(kOil).floatValue(second % 2 == 0 ? 20.0F : 95.0F);
    }
    show(record);
    for (const int row : {100, 50, 150}) {
        view.setTime(2 * row + 1);
        const QRect shown = table()->visualItemRect(table()->item(row, 0));
        EXPECT_NEAR(shown.center().y(), table()->viewport()->height() / 2.0, shown.height()) << row;
    }
    QTest::keyClick(table(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0);
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(table(), Qt::Key_Down);
    }
    EXPECT_EQ(selectedRow(), 30);
    EXPECT_EQ(table()->visualItemRect(table()->item(30, 0)).bottom() + 2,
              table()->viewport()->height())
        << "just in sight";

    view.hide();
    view.setTime(2 * 20 + 1); // a tab in the background
    view.show();
    view.resize(500, 300);
    QApplication::processEvents();
    const QRect shown = table()->visualItemRect(table()->item(20, 0));
    EXPECT_NEAR(shown.center().y(), table()->viewport()->height() / 2.0, shown.height());
}

TEST_F(LimitListTest, ASelectedRowMovesTheCursorToItsTimeInWholeMilliseconds)
{
    data = eventfulRecord().data();
    data->cursorTime = 25.0;
    const QSignalSpy moved(&view, &DialogDataEvents::signalTime);
    view.updateRecord(data.get());
    EXPECT_EQ(selectedRow(), 1) << "that of the record's cursor";
    EXPECT_EQ(moved.count(), 0);
    click(2); // 40.0479 s
    ASSERT_EQ(moved.count(), 1);
    EXPECT_EQ(moved.at(0).at(0).toDouble(), 40047 * 0.001) << "truncated, not rounded";
    EXPECT_EQ(selectedRow(), 2);
    QTest::keyClick(table(), Qt::Key_Up);
    ASSERT_EQ(moved.count(), 2);
    EXPECT_EQ(moved.at(1).at(0).toDouble(), 20.0);
    click(1); // it is selected already
    view.clear();
    EXPECT_EQ(moved.count(), 2);
}

TEST_F(LimitListTest, NoRecordLeavesTheRowsUntilTheListIsCleared)
{
    EXPECT_EQ(hint().left(16), QStringLiteral("No record loaded"));
    show(eventfulRecord());
    EXPECT_EQ(hint(), QString());
    view.updateRecord(nullptr);
    data.reset(); // what the rows show must not be read from it
    EXPECT_EQ(table()->rowCount(), 3);
    EXPECT_EQ(table()->item(1, 1)->text(), QStringLiteral("Lane A Oil 120.0 oil view"));
    EXPECT_EQ(rowAt(25.0), 0);
    view.updateProfile();
    EXPECT_EQ(table()->rowCount(), 3);
    view.clear();
    EXPECT_EQ(hint().left(16), QStringLiteral("No record loaded"));
}

TEST_F(LimitListTest, AnEmptyListSaysWhy)
{
    RecordBuilder cold;
    cold.at(0).id(kOil).floatValue(20).at(1).floatValue(21);
    show(cold);
    EXPECT_EQ(hint(), QStringLiteral("No limit or warning exceeded in this record."));
    EXPECT_EQ(rowAt(0.5), -1);
    profile.clear();
    view.updateProfile();
    EXPECT_EQ(hint(),
              QStringLiteral("No parameter profile is installed, so limits cannot be judged."));
}

TEST_F(LimitListTest, AProfileChangeFindsTheEventsAgain)
{
    show(eventfulRecord());
    view.setTime(20.0);
    data->cursorTime = 20.0;
    ASSERT_TRUE(profileWithWarningAt(100).load(profile));
    view.updateProfile();
    EXPECT_EQ(rowsOf(*table()), "00:00:20.000 | Lane A Oil 120.0 oil view");
    EXPECT_EQ(data->limits.size(), 1U);
    EXPECT_EQ(selectedRow(), 0);
}

TEST_F(LampListTest, AProfileChangeLeavesTheLampsAsTheyWere)
{
    show(eventfulRecord());
    const std::string before = rowsOf(*table());
    profile.clear();
    view.updateProfile();
    EXPECT_EQ(rowsOf(*table()), before);
    EXPECT_EQ(data->warnings.size(), 3U);
    show(eventfulRecord());
    EXPECT_EQ(table()->rowCount(), 0) << "the next record is judged by the new profile";
    EXPECT_EQ(hint().left(47), QStringLiteral("No parameter profile was installed when this re"));
}

TEST_F(LimitListTest, TheMenuCopiesARowAndShowsItInTheGraph)
{
    show(eventfulRecord());
    view.setTime(45.0);
    action("Copy")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(),
              QStringLiteral("Time\tWarning/Limit Exceed\n00:00:40.047\tLane A Oil 95.0 oil view"));

    EXPECT_FALSE(action("Show in graph")->isVisible()) << "nobody listens yet";
    double time = 0.0;
    QObject::connect(&view, &DialogDataEvents::signalShowInGraph, &view,
                     [&time](double seconds) { time = seconds; });
    EXPECT_TRUE(action("Show in graph")->isVisible());
    action("Show in graph")->trigger();
    EXPECT_EQ(time, 40047 * 0.001);
}

TEST_F(LimitListTest, TheListIsSavedAsATableAndFailuresAreTold)
{
    show(eventfulRecord());
    QSignalSpy notices(&view, &DialogDataEvents::signalNotice);
    const auto save = [&](const QString& file) {
        dialogs.file = file;
        action("Save as CSV ...")->trigger();
        return notices.isEmpty() ? QString() : notices.takeLast().first().toString();
    };
    EXPECT_EQ(save({}), QString()) << "cancelled";
    EXPECT_TRUE(dialogs.lastStart.endsWith(QStringLiteral("/VelixLimits.csv")));

    const QString file = folder.filePath(QStringLiteral("list.csv"));
    EXPECT_TRUE(save(file).contains(file));
    EXPECT_EQ(readFile(file).toStdString(), "Time;Parameter;Value\n"
                                            "00:00:10.000;Lane A Oil;95.0 oil view\n"
                                            "00:00:20.000;Lane A Oil;120.0 oil view\n"
                                            "00:00:40.047;Lane A Oil;95.0 oil view\n");
    EXPECT_TRUE(save(QStringLiteral("/dev/full")).contains(QStringLiteral("No space left")));
    EXPECT_EQ(dialogs.lastStart, folder.filePath(QStringLiteral("VelixLimits.csv")));
    EXPECT_TRUE(save(folder.filePath(QStringLiteral("missing/list.csv")))
                    .contains(QStringLiteral("could not be saved")));
}

} // namespace
} // namespace VELIX
