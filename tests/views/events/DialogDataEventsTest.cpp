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
    QTableWidgetItem* event(int row) { return table()->item(row, 1); }
    std::string hint() { return hintOf(view).toStdString(); }
    int selectedRow() { return VELIX::Test::selectedRow(*table()); }
    int rowAt(double seconds)
    {
        view.setTime(seconds);
        return selectedRow();
    }
    void click(int row)
    {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                          table()->visualItemRect(event(row)).center());
    }
    /// An action of the menu: copy, save, show in the graph.
    QAction* action(int index) { return table()->actions().at(index); }

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
    show(eventfulRecord());
    view.updateProfile(); // refilled, not added to
    EXPECT_EQ(headingsOf(*table()), "Time | Warning/Limit Exceed");
    EXPECT_EQ(rowsOf(*table()), "00:00:10.000 | Lane A Oil 95.0 oil view\n"
                                "00:00:20.000 | Lane A Oil 120.0 oil view\n"
                                "00:00:40.047 | Lane A Oil 95.0 oil view");
    EXPECT_EQ(data->limits.size(), 3U);
    EXPECT_TRUE(data->warnings.empty()) << "those are the other list's";

    data->cursorTime = 20.0;
    ASSERT_TRUE(profileWithWarningAt(100).load(profile));
    view.updateProfile(); // finds them again
    EXPECT_EQ(rowsOf(*table()), "00:00:20.000 | Lane A Oil 120.0 oil view");
    EXPECT_EQ(data->limits.size(), 1U);
    EXPECT_EQ(selectedRow(), 0);
}

TEST_F(LampListTest, ListsLampsAndKeepsThemWhateverTheProfileSays)
{
    show(eventfulRecord());
    EXPECT_EQ(headingsOf(*table()), "Time | Warning Lamps");
    profile.clear();
    view.updateProfile();
    EXPECT_EQ(rowsOf(*table()), "00:00:10.000 | Lane A Fire 1: amber lamp\n"
                                "00:00:20.000 | Lane A Fire 2: red lamp\n"
                                "00:00:30.000 | Lane A Fire 3: test lamp");
    EXPECT_EQ(data->warnings.size(), 3U);
    EXPECT_TRUE(data->limits.empty());
    show(eventfulRecord());
    EXPECT_EQ(hint().substr(0, 47), "No parameter profile was installed when this re");
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
}

TEST_F(LimitListTest, ANarrowPaneScrollsInsteadOfCuttingValuesOff)
{
    show(eventfulRecord());
    const QString longest = event(1)->text();
    view.resize(140, 120);
    QApplication::processEvents();
    EXPECT_GT(table()->columnWidth(1), table()->fontMetrics().horizontalAdvance(longest));
    QScrollBar* bar = table()->horizontalScrollBar();
    bar->setValue(30);
    view.setTime(45.0);
    EXPECT_EQ(bar->value(), 30) << "the cursor moves rows only";
    click(0);
    EXPECT_EQ(bar->value(), 30) << "and so does the user";
    view.resize(500, 120);
    QApplication::processEvents();
    EXPECT_EQ(table()->columnWidth(0) + table()->columnWidth(1), table()->viewport()->width());
}

TEST_F(LampListTest, ColoursTintTheRowAndLeaveTheTextReadable)
{
    for (const Palette::Look look : {Palette::Look::Light, Palette::Look::Dark}) {
        Palette::apply(*qApp, look);
        show(eventfulRecord());
        EXPECT_EQ(table()->item(0, 0)->background().color(), QColor(230, 230, 230));
        EXPECT_EQ(event(0)->background().color(), QColor(255, 150, 100, 60));
        EXPECT_EQ(event(0)->foreground().color().lightness() > 128, look == Palette::Look::Dark);
        EXPECT_FALSE(event(2)->data(Qt::BackgroundRole).isValid()) << "no colour, no tint";
    }
    Palette::apply(*qApp, Palette::Look::Light);
}

TEST_F(LampListTest, TheSelectedRowKeepsItsColourInSight)
{
    show(eventfulRecord());
    view.setTime(20.0);
    const QImage image = table()->viewport()->grab().toImage();
    const auto background = [&](int row, int fromLeft) {
        const QRect cell = table()->visualItemRect(event(row));
        return image.pixelColor(cell.left() + fromLeft, cell.center().y());
    };
    EXPECT_EQ(background(1, 2), QColor(255, 100, 100));
    EXPECT_EQ(background(1, 200), QColor(100, 100, 255));
    EXPECT_EQ(background(0, 2), background(0, 200)) << "others are tinted as a whole";
}

TEST_F(LimitListTest, TheCursorSelectsTheEventAtOrBeforeIt)
{
    RecordBuilder record = eventfulRecord();
    record.at(60).id(kOil).floatValue(20);
    record.at(70.01).floatValue(95).at(70.02).floatValue(120);
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
    record.id(kOil);
    for (int second = 0; second < 400; ++second) {
        record.at(second).floatValue(second % 2 == 0 ? 20.0F : 95.0F);
    }
    show(record);
    const auto expectCentred = [this](int row) {
        const QRect shown = table()->visualItemRect(event(row));
        EXPECT_NEAR(shown.center().y(), table()->viewport()->height() / 2.0, shown.height()) << row;
    };
    for (const int row : {100, 50, 150}) {
        view.setTime(2 * row + 1);
        expectCentred(row);
    }
    QTest::keyClick(table(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0);
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(table(), Qt::Key_Down);
    }
    EXPECT_EQ(table()->visualItemRect(event(30)).bottom() + 2, table()->viewport()->height())
        << "just in sight";

    view.hide();
    view.setTime(2 * 20 + 1); // a tab in the background
    view.show();
    view.resize(500, 300);
    QApplication::processEvents();
    expectCentred(20);
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
    click(2); // it is selected already
    view.clear();
    EXPECT_EQ(moved.count(), 1);
}

TEST_F(LimitListTest, AnEmptyListSaysWhy)
{
    EXPECT_EQ(hint().substr(0, 16), "No record loaded");
    show(eventfulRecord());
    EXPECT_EQ(hint(), "");
    view.updateRecord(nullptr);
    data.reset(); // what the rows show must not be read from it
    view.updateProfile();
    EXPECT_EQ(event(1)->text(), QStringLiteral("Lane A Oil 120.0 oil view"))
        << "until it is cleared";
    EXPECT_EQ(rowAt(25.0), 0);
    view.clear();
    EXPECT_EQ(hint().substr(0, 16), "No record loaded");

    show(RecordBuilder().at(0).id(kOil).floatValue(20));
    EXPECT_EQ(hint(), "No limit or warning exceeded in this record.");
    EXPECT_EQ(rowAt(0.5), -1);
    profile.clear();
    view.updateProfile();
    EXPECT_EQ(hint(), "No parameter profile is installed, so limits cannot be judged.");
}

TEST_F(LimitListTest, TheMenuCopiesARowAndShowsItInTheGraph)
{
    show(eventfulRecord());
    view.setTime(45.0);
    action(0)->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(),
              QStringLiteral("Time\tWarning/Limit Exceed\n00:00:40.047\tLane A Oil 95.0 oil view"));

    EXPECT_FALSE(action(2)->isVisible()) << "nothing is connected yet";
    double time = 0.0;
    QObject::connect(&view, &DialogDataEvents::signalShowInGraph, &view,
                     [&time](double seconds) { time = seconds; });
    EXPECT_TRUE(action(2)->isVisible());
    action(2)->trigger();
    EXPECT_EQ(time, 40047 * 0.001);
}

TEST_F(LimitListTest, TheListIsSavedAndFailuresAreReported)
{
    show(eventfulRecord());
    QSignalSpy notices(&view, &DialogDataEvents::signalNotice);
    const auto noticeAfterSaving = [&](const QString& file) {
        dialogs.file = file;
        action(1)->trigger();
        return notices.isEmpty() ? QString() : notices.takeLast().first().toString();
    };
    EXPECT_EQ(noticeAfterSaving({}), QString()) << "cancelled";
    EXPECT_TRUE(dialogs.lastStart.endsWith(QStringLiteral("/VelixLimits.csv")));

    const QString file = folder.filePath(QStringLiteral("list.csv"));
    EXPECT_TRUE(noticeAfterSaving(file).contains(file));
    EXPECT_EQ(readFile(file).count('\n'), 4) << "the headings and three events";
    EXPECT_TRUE(noticeAfterSaving(folder.filePath(QStringLiteral("missing/list.csv")))
                    .contains(QStringLiteral("could not be saved")));
    EXPECT_EQ(dialogs.lastStart, folder.filePath(QStringLiteral("VelixLimits.csv")));
}

} // namespace
} // namespace VELIX
