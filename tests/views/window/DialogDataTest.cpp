#include "views/window/DialogData.h"

#include "card/CardContainer.h"
#include "gui/look/Resources.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/events/DialogDataLimit.h"
#include "views/events/DialogDataWarning.h"
#include "views/replay/ReplayKeys.h"
#include "views/table/DialogDataTable.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLCDNumber>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeEdit>
#include <QToolButton>
#include <QTreeWidget>

namespace VELIX {
namespace {

using Test::ProfileBuilder;
using Test::RecordBuilder;

constexpr int kOil = 500;

struct DialogDataTest : ::testing::Test
{
    void SetUp() override
    {
        initResources();
        ProfileBuilder builder;
        builder.threshold("Hot", {{90.0, "yellow", "WARNING"}});
        builder.device("Lane A").parameter(kOil, QStringLiteral("Oil"), "FLOAT");
        builder.set("thresholdId", "Hot");
        ASSERT_TRUE(builder.load(profile));
        ProfileBuilder::selectAll(profile);
        window = std::make_unique<DialogData>(profile, card, false);
        window->updateProfile();
        window->resize(900, 700);
        window->show();
        QApplication::setActiveWindow(window.get());
    }
    /// One sample a second in [from, to], hot in the middle.
    void load(double from, double to)
    {
        RecordBuilder record;
        record.date(RecordBuilder::utc(2024, 5, 1, 10, 0, 0)).id(kOil);
        for (double time = from; time <= to; time += 1.0) {
            record.at(time).floatValue(time == (from + to) / 2 ? 95.0F : 20.0F);
        }
        ASSERT_TRUE(record.write(folder.filePath(QStringLiteral("1.CAN"))));
        ASSERT_TRUE(card.readContainer(folder.path()));
        window->releaseRecord();
        ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
        window->updateRecord();
    }
    template <class T>
    T* find(const char* name)
    {
        return window->findChild<T*>(QLatin1String(name));
    }
    std::string displayed(const char* name)
    {
        return find<QLCDNumber>(name)->accessibleDescription().toStdString();
    }
    QToolButton* replay() { return find<QToolButton>("buttonReplay"); }
    template <class View>
    QTableWidget* tableOf()
    {
        return window->findChild<View*>()->template findChild<QTableWidget*>();
    }
    int tableRow() { return tableOf<DialogDataTable>()->selectionModel()->currentIndex().row(); }

    QTemporaryDir folder;
    Profile profile;
    CardContainer card{profile};
    std::unique_ptr<DialogData> window;
};

TEST_F(DialogDataTest, WithoutARecordNothingCanBeReplayed)
{
    EXPECT_EQ(displayed("displayDateTime"), "--.--.---- --:--:--");
    EXPECT_EQ(displayed("displayTime"), "--:--:--.---");
    for (const char* name : {"buttonReplay", "buttonStop", "sliderPosition", "editTime"}) {
        EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
        EXPECT_TRUE(find<QWidget>(name)->toolTip().contains(QStringLiteral("Load"))) << name;
    }
    QTest::keyClick(window.get(), Qt::Key_Space);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Start"));
    window->updateRecord(); // the card has none
    EXPECT_FALSE(replay()->isEnabled());
}

TEST_F(DialogDataTest, ARecordStartsAtItsStart)
{
    load(100.0, 200.0);
    EXPECT_EQ(window->cursorTime(), 100.0);
    EXPECT_EQ(card.recordData().cursorTime, 100.0);
    EXPECT_EQ(displayed("displayDateTime"), "01.05.2024 10:01:40");
    EXPECT_EQ(displayed("displayTime"), "00:01:40.000");
    EXPECT_EQ(find<QTimeEdit>("editTime")->time(), QTime(0, 1, 40));
    EXPECT_EQ(find<QSlider>("sliderPosition")->value(), 0);
    EXPECT_TRUE(replay()->isEnabled());
    EXPECT_FALSE(find<QToolButton>("buttonStop")->isEnabled());
    EXPECT_EQ(tableRow(), 0);
    ASSERT_EQ(card.recordData().limits.size(), 1U); // for the exports
    EXPECT_EQ(card.recordData().limits[0].time, 150.0);
}

TEST_F(DialogDataTest, ARecordOfOneMomentHasNoPositions)
{
    load(100.0, 100.0);
    EXPECT_EQ(window->cursorTime(), 100.0);
    find<QSlider>("sliderPosition")->setValue(5000);
    EXPECT_EQ(window->cursorTime(), 100.0);
}

TEST_F(DialogDataTest, SliderAndTimeEditMoveTheCursor)
{
    load(100.0, 200.0);
    auto* slider = find<QSlider>("sliderPosition");
    slider->setValue(2500);
    EXPECT_EQ(window->cursorTime(), 125.0);
    EXPECT_EQ(tableRow(), 25);
    EXPECT_EQ(card.recordData().cursorTime, 125.0);

    find<QTimeEdit>("editTime")->setTime(QTime(0, 0, 10));
    EXPECT_EQ(window->cursorTime(), 10.0);
    EXPECT_EQ(slider->value(), 0);
    EXPECT_EQ(tableRow(), 0);
}

TEST_F(DialogDataTest, EverySliderPositionCanBeReachedByKey)
{
    load(0.3, 77.3);
    auto* slider = find<QSlider>("sliderPosition");
    for (int position = 1; position <= 200; ++position) {
        QTest::keyClick(slider, Qt::Key_Right);
        ASSERT_EQ(slider->value(), position);
    }
}

TEST_F(DialogDataTest, ViewsMoveTheCursorAndTheOthersFollow)
{
    load(100.0, 200.0); // a warning at 150 s
    emit window->findChild<DialogDataTable*>()->signalTime(140.0);
    EXPECT_EQ(window->cursorTime(), 140.0);
    EXPECT_EQ(displayed("displayTime"), "00:02:20.000");
    EXPECT_EQ(tableRow(), 0); // it is the table that moved the cursor
    tableOf<DialogDataLimit>()->clearSelection();
    EXPECT_EQ(window->cursorTime(), 140.0);
    tableOf<DialogDataLimit>()->selectRow(0);
    EXPECT_EQ(window->cursorTime(), 150.0);
    EXPECT_EQ(tableRow(), 50);
    emit window->findChild<DialogDataWarning*>()->signalTime(120.0);
    EXPECT_EQ(tableRow(), 20);
    ASSERT_TRUE(QMetaObject::invokeMethod(window.get(), "slotCursor", Q_ARG(float, 150.1F),
                                          Q_ARG(double, 3.0)));
    EXPECT_EQ(window->cursorTime(), static_cast<double>(150.1F));
}

TEST_F(DialogDataTest, ViewsTellWhatWentWrong)
{
    const QSignalSpy notices(window.get(), &DialogData::signalNotice);
    emit window->findChild<DialogDataLimit*>()->signalNotice(QStringLiteral("full"));
    emit window->findChild<DialogDataWarning*>()->signalNotice(QStringLiteral("gone"));
    EXPECT_EQ(notices.count(), 2);
}

TEST_F(DialogDataTest, ReplayRunsPausesAndReturnsToTheStart)
{
    load(100.0, 200.0);
    QTest::mouseClick(replay(), Qt::LeftButton);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Pause"));
    EXPECT_TRUE(find<QToolButton>("buttonStop")->isEnabled());
    QTRY_VERIFY(window->cursorTime() > 100.1);
    QTest::mouseClick(replay(), Qt::LeftButton);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Run"));
    const double paused = window->cursorTime();
    QTest::qWait(60);
    EXPECT_EQ(window->cursorTime(), paused);
    QTest::mouseClick(find<QToolButton>("buttonStop"), Qt::LeftButton);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Start"));
    EXPECT_EQ(window->cursorTime(), 100.0);
}

TEST_F(DialogDataTest, ReplayBeyondTheEndStopsAtTheStart)
{
    load(100.0, 110.0);
    find<QSlider>("sliderSpeed")->setValue(10000);
    EXPECT_EQ(find<QDoubleSpinBox>("boxSpeed")->value(), 100.0);
    QTest::mouseClick(replay(), Qt::LeftButton);
    QTRY_COMPARE(replay()->text(), QStringLiteral("Replay Start"));
    EXPECT_EQ(window->cursorTime(), 100.0);
}

TEST_F(DialogDataTest, SpeedSliderAndBoxShowTheSameSpeed)
{
    load(100.0, 110.0);
    find<QDoubleSpinBox>("boxSpeed")->setValue(2.3);
    EXPECT_EQ(find<QSlider>("sliderSpeed")->value(), 229); // 2.3 x 100, truncated
    EXPECT_EQ(find<QDoubleSpinBox>("boxSpeed")->value(), 2.3);
    find<QSlider>("sliderSpeed")->setValue(350);
    EXPECT_EQ(find<QDoubleSpinBox>("boxSpeed")->value(), 3.5);
}

TEST_F(DialogDataTest, RunningReplayGoesOnInTheNextRecordAndEndsWithoutOne)
{
    load(100.0, 200.0);
    QTest::mouseClick(replay(), Qt::LeftButton);
    load(500.0, 600.0);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Pause"));
    QTRY_VERIFY(window->cursorTime() > 500.0);
    EXPECT_LT(window->cursorTime(), 600.0);

    EXPECT_FALSE(find<QWidget>("hintLoading")->isVisible());
    window->releaseRecord();
    EXPECT_TRUE(find<QWidget>("hintLoading")->isVisible());
    EXPECT_EQ(find<QWidget>("hintLoading")->size(), find<QWidget>("viewStack")->size());
    EXPECT_EQ(tableOf<DialogDataTable>()->rowCount(), 0);
    EXPECT_EQ(tableOf<DialogDataLimit>()->rowCount(), 1) << "until the next record is there";
    ASSERT_TRUE(RecordBuilder().write(folder.filePath(QStringLiteral("1.CAN"))));
    ASSERT_TRUE(card.readContainer(folder.path()));
    card.loadFiles({QStringLiteral("1.CAN")});
    window->updateRecord();
    EXPECT_EQ(tableOf<DialogDataLimit>()->rowCount(), 0);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Start"));
    EXPECT_FALSE(replay()->isEnabled());
    EXPECT_FALSE(find<QWidget>("hintLoading")->isVisible());
    EXPECT_EQ(displayed("displayTime"), "--:--:--.---");
}

TEST_F(DialogDataTest, KeysStepAndReplayWhereTheFocusHasNoUseForThem)
{
    load(100.0, 200.0);
    auto* table = tableOf<DialogDataTable>();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(window->cursorTime(), 101.0);
    QTest::keyClick(table, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window->cursorTime(), 111.0);
    QTest::keyClick(table, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(table, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(window->cursorTime(), 100.0);
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Pause"));
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Run"));

    auto* mapButton = find<QToolButton>("buttonMap2");
    mapButton->setFocus();
    QTest::keyClick(mapButton, Qt::Key_Space);
    EXPECT_TRUE(mapButton->isChecked());
    EXPECT_EQ(replay()->text(), QStringLiteral("Replay Run"));
}

TEST_F(DialogDataTest, WidgetsThatUseTheSpaceBarKeepIt)
{
    QTreeWidget tree;
    auto* plain = new QTreeWidgetItem(&tree, {QStringLiteral("flight")});
    auto* check = new QTreeWidgetItem(&tree, {QStringLiteral("parameter")});
    check->setCheckState(0, Qt::Unchecked);
    tree.setCurrentItem(plain);
    EXPECT_FALSE(ReplayKeys::usesSpace(&tree));
    tree.setCurrentItem(check);
    EXPECT_TRUE(ReplayKeys::usesSpace(&tree));
    EXPECT_TRUE(ReplayKeys::usesSpace(find<QTimeEdit>("editTime")));
    const QLineEdit edit;
    EXPECT_TRUE(ReplayKeys::usesSpace(&edit));
    EXPECT_FALSE(ReplayKeys::usesSpace(find<QSlider>("sliderPosition")));
    EXPECT_FALSE(ReplayKeys::usesSpace(nullptr));
}

TEST_F(DialogDataTest, AClickOnThePositionSliderGoesThere)
{
    load(100.0, 200.0);
    auto* slider = find<QSlider>("sliderPosition");
    const double pixel = 100.0 / slider->width();
    for (const double part : {0.75, 0.25}) {
        const QPoint at(static_cast<int>(slider->width() * part), slider->height() / 2);
        QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, at);
        EXPECT_NEAR(window->cursorTime(), 100.0 + 100.0 * part, 10.0 * pixel);
    }
}

TEST_F(DialogDataTest, MapButtonsDivideTheSpace)
{
    auto* splitter = find<QSplitter>("splitter");
    const auto click = [&](const char* name) {
        QTest::mouseClick(find<QToolButton>(name), Qt::LeftButton);
        return splitter->sizes();
    };
    EXPECT_TRUE(find<QToolButton>("buttonMap1")->isChecked());
    EXPECT_EQ(click("buttonMap0").at(1), 0);
    const QList<int> below = click("buttonMap2");
    EXPECT_EQ(splitter->orientation(), Qt::Vertical);
    EXPECT_GT(below.at(0), 100);
    EXPECT_NEAR(below.at(0), below.at(1), 1);
    splitter->setSizes({100, 300});
    const double share = splitter->sizes().at(0) * 1.0 / splitter->height();
    const QList<int> beside = click("buttonMap1");
    EXPECT_EQ(splitter->orientation(), Qt::Horizontal);
    EXPECT_LT(beside.at(0), beside.at(1)); // a division that the user chose is kept
    EXPECT_LT(share, 0.5);
}

TEST_F(DialogDataTest, EachTabShowsItsPage)
{
    auto* tabs = find<QTabBar>("tabBar");
    auto* stack = find<QStackedWidget>("viewStack");
    const char* labels[] = {"Data",          "Graph",         "Fault Matrix", "Limit/Warning",
                            "Warning Lamps", "Tow Statistic", "EMU View"};
    const char* pages[] = {"viewTable",   "viewGraph",     "viewFaultMatrix", "viewLimit",
                           "viewWarning", "viewStatistic", "viewInstrument"};
    ASSERT_EQ(tabs->count(), 7);
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        EXPECT_EQ(tabs->tabText(i).toStdString(), labels[i]);
        EXPECT_FALSE(tabs->tabIcon(i).isNull());
        EXPECT_EQ(stack->currentWidget()->objectName().toStdString(), pages[i]);
    }
}

TEST_F(DialogDataTest, OnBoardOnlyTheReplayIsLeft)
{
    const DialogData onBoard(profile, card, true);
    for (const char* name : {"displayTime", "sliderPosition", "editTime"}) {
        EXPECT_TRUE(onBoard.findChild<QWidget*>(QLatin1String(name))->isHidden()) << name;
    }
    for (const char* name :
         {"displayDateTime", "buttonReplay", "buttonStop", "sliderSpeed", "boxSpeed"}) {
        EXPECT_FALSE(onBoard.findChild<QWidget*>(QLatin1String(name))->isHidden()) << name;
    }
}

} // namespace
} // namespace VELIX
