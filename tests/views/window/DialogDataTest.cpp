#include "views/window/DialogData.h"

#include "card/CardContainer.h"
#include "gui/look/Resources.h"
#include "profile/Profile.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"
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
#include <QTest>
#include <QTimeEdit>
#include <QToolButton>
#include <QTreeWidget>

namespace VELIX {
namespace {

using Test::CardFolder;
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
        load(record);
        ASSERT_TRUE(card.hasRecord());
    }
    void load(const RecordBuilder& record)
    {
        folder.add("1.CAN", record);
        ASSERT_TRUE(card.readContainer(folder.path()));
        window->releaseRecord();
        card.loadFiles({QStringLiteral("1.CAN")});
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
    std::string replayText() { return find<QToolButton>("buttonReplay")->text().toStdString(); }
    void click(const char* button) { QTest::mouseClick(find<QToolButton>(button), Qt::LeftButton); }
    template <class View>
    QTableWidget* tableOf()
    {
        return window->findChild<View*>()->template findChild<QTableWidget*>();
    }
    int tableRow() { return tableOf<DialogDataTable>()->selectionModel()->currentIndex().row(); }

    CardFolder folder;
    Profile profile;
    CardContainer card{profile};
    std::unique_ptr<DialogData> window;
};

TEST_F(DialogDataTest, ARecordStartsAtItsStartAndSliderAndTimeEditMoveTheCursor)
{
    load(100.0, 200.0);
    EXPECT_EQ(card.recordData().cursorTime, 100.0);
    EXPECT_EQ(displayed("displayDateTime"), "01.05.2024 10:01:40");
    EXPECT_EQ(displayed("displayTime"), "00:01:40.000");
    EXPECT_EQ(find<QTimeEdit>("editTime")->time(), QTime(0, 1, 40));
    EXPECT_FALSE(find<QToolButton>("buttonStop")->isEnabled());
    EXPECT_EQ(tableRow(), 0);
    EXPECT_EQ(card.recordData().limits.size(), 1U) << "for the exports";

    auto* slider = find<QSlider>("sliderPosition");
    slider->setValue(2500);
    EXPECT_EQ(window->cursorTime(), 125.0);
    EXPECT_EQ(card.recordData().cursorTime, 125.0);
    EXPECT_EQ(tableRow(), 25);
    for (const double part : {0.75, 0.25}) {
        const QPoint at(static_cast<int>(slider->width() * part), slider->height() / 2);
        QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, at);
        EXPECT_NEAR(window->cursorTime(), 100.0 + 100.0 * part, 1000.0 / slider->width());
    }
    find<QTimeEdit>("editTime")->setTime(QTime(0, 0, 10));
    EXPECT_EQ(window->cursorTime(), 10.0);
    EXPECT_EQ(slider->value(), 0);

    load(100.0, 100.0); // has no positions
    slider->setValue(5000);
    EXPECT_EQ(window->cursorTime(), 100.0);
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
    EXPECT_EQ(tableRow(), 0) << "it is the table that moved the cursor";
    tableOf<DialogDataLimit>()->clearSelection();
    EXPECT_EQ(window->cursorTime(), 140.0);
    tableOf<DialogDataLimit>()->selectRow(0);
    EXPECT_EQ(window->cursorTime(), 150.0);
    EXPECT_EQ(tableRow(), 50);
    emit window->findChild<DialogDataWarning*>()->signalTime(120.0);
    EXPECT_EQ(tableRow(), 20);

    const QSignalSpy notices(window.get(), &DialogData::signalNotice);
    emit window->findChild<DialogDataLimit*>()->signalNotice({});
    emit window->findChild<DialogDataWarning*>()->signalNotice({});
    EXPECT_EQ(notices.count(), 2);
}

TEST_F(DialogDataTest, ReplayRunsPausesAndReturnsToTheStart)
{
    load(100.0, 200.0);
    click("buttonReplay");
    EXPECT_EQ(replayText(), "Replay Pause");
    EXPECT_TRUE(find<QToolButton>("buttonStop")->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->cursorTime() > 100.1; }));
    click("buttonReplay");
    EXPECT_EQ(replayText(), "Replay Run");
    const double paused = window->cursorTime();
    QTest::qWait(60);
    EXPECT_EQ(window->cursorTime(), paused);
    click("buttonStop");
    EXPECT_EQ(replayText(), "Replay Start");
    EXPECT_EQ(window->cursorTime(), 100.0);
}

TEST_F(DialogDataTest, ReplayAtAnySpeedReturnsToTheStartBeyondTheEnd)
{
    load(100.0, 110.0);
    auto* slider = find<QSlider>("sliderSpeed");
    auto* box = find<QDoubleSpinBox>("boxSpeed");
    box->setValue(2.3);
    EXPECT_EQ(slider->value(), 229) << "2.3 x 100, truncated";
    EXPECT_EQ(box->value(), 2.3);
    slider->setValue(350);
    EXPECT_EQ(box->value(), 3.5);
    slider->setValue(10000);
    click("buttonReplay");
    EXPECT_TRUE(QTest::qWaitFor([this] { return replayText() == "Replay Start"; }));
    EXPECT_EQ(window->cursorTime(), 100.0);
}

TEST_F(DialogDataTest, RunningReplayGoesOnInTheNextRecordAndEndsWithoutOne)
{
    load(100.0, 200.0);
    click("buttonReplay");
    load(500.0, 600.0);
    EXPECT_EQ(replayText(), "Replay Pause");
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->cursorTime() > 500.0; }));
    EXPECT_LT(window->cursorTime(), 600.0);

    auto* cover = find<QWidget>("hintLoading");
    EXPECT_FALSE(cover->isVisible());
    window->releaseRecord();
    EXPECT_TRUE(cover->isVisible());
    EXPECT_EQ(cover->size(), find<QWidget>("viewStack")->size());
    EXPECT_EQ(tableOf<DialogDataTable>()->rowCount(), 0);
    EXPECT_EQ(tableOf<DialogDataLimit>()->rowCount(), 1) << "until the next record is there";
    load(RecordBuilder());
    EXPECT_EQ(tableOf<DialogDataLimit>()->rowCount(), 0);
    EXPECT_EQ(replayText(), "Replay Start");
    EXPECT_FALSE(cover->isVisible());
    EXPECT_EQ(displayed("displayTime"), "--:--:--.---");
    for (const char* name : {"buttonReplay", "buttonStop", "sliderPosition", "editTime"}) {
        EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
        EXPECT_TRUE(find<QWidget>(name)->toolTip().contains(QStringLiteral("Load"))) << name;
    }
    QTest::keyClick(window.get(), Qt::Key_Space);
    EXPECT_EQ(replayText(), "Replay Start");
}

TEST_F(DialogDataTest, KeysStepAndReplayWhereTheFocusHasNoUseForThem)
{
    load(100.0, 200.0);
    auto* table = tableOf<DialogDataTable>();
    table->setFocus();
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        double cursor;
    } rows[] = {{Qt::Key_Right, Qt::ControlModifier, 101.0},
                {Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier, 111.0},
                {Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier, 101.0},
                {Qt::Key_Left, Qt::ControlModifier, 100.0},
                {Qt::Key_Left, Qt::ControlModifier, 100.0}};
    for (const auto& row : rows) {
        QTest::keyClick(table, row.key, row.modifiers);
        EXPECT_EQ(window->cursorTime(), row.cursor);
    }
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_EQ(replayText(), "Replay Pause");
    auto* mapButton = find<QToolButton>("buttonMap2");
    mapButton->setFocus();
    QTest::keyClick(mapButton, Qt::Key_Space);
    EXPECT_TRUE(mapButton->isChecked());
    EXPECT_EQ(replayText(), "Replay Pause");
}

TEST_F(DialogDataTest, WidgetsThatUseTheSpaceBarKeepIt)
{
    QTreeWidget tree;
    auto* item = new QTreeWidgetItem(&tree, {QStringLiteral("parameter")});
    tree.setCurrentItem(item);
    EXPECT_FALSE(ReplayKeys::usesSpace(&tree));
    item->setCheckState(0, Qt::Unchecked);
    EXPECT_TRUE(ReplayKeys::usesSpace(&tree));
    const QLineEdit edit;
    EXPECT_TRUE(ReplayKeys::usesSpace(&edit) && ReplayKeys::usesSpace(find<QTimeEdit>("editTime")));
    EXPECT_FALSE(ReplayKeys::usesSpace(find<QSlider>("sliderPosition")));
}

TEST_F(DialogDataTest, MapButtonsDivideTheSpace)
{
    auto* splitter = find<QSplitter>("splitter");
    const auto sizesAfter = [&](const char* button) {
        click(button);
        return splitter->sizes();
    };
    EXPECT_TRUE(find<QToolButton>("buttonMap1")->isChecked());
    EXPECT_EQ(sizesAfter("buttonMap0").at(1), 0);
    const QList<int> below = sizesAfter("buttonMap2");
    EXPECT_EQ(splitter->orientation(), Qt::Vertical);
    EXPECT_GT(below.at(0), 100);
    EXPECT_NEAR(below.at(0), below.at(1), 1);
    splitter->setSizes({100, 300});
    const QList<int> beside = sizesAfter("buttonMap1");
    EXPECT_EQ(splitter->orientation(), Qt::Horizontal);
    EXPECT_LT(beside.at(0), beside.at(1)) << "a division that the user chose is kept";
}

TEST_F(DialogDataTest, EachTabShowsItsPage)
{
    auto* tabs = find<QTabBar>("tabBar");
    std::string pages;
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        pages += tabs->tabText(i).toStdString() + ": " +
                 find<QStackedWidget>("viewStack")->currentWidget()->objectName().toStdString() +
                 '\n';
    }
    EXPECT_EQ(pages, "Data: viewTable\nGraph: viewGraph\nFault Matrix: viewFaultMatrix\n"
                     "Limit/Warning: viewLimit\nWarning Lamps: viewWarning\n"
                     "Tow Statistic: viewStatistic\nEMU View: viewInstrument\n");
}

TEST_F(DialogDataTest, OnBoardOnlyTheReplayIsLeft)
{
    const DialogData onBoard(profile, card, true);
    const auto isHidden = [&onBoard](const char* name) {
        return onBoard.findChild<QWidget*>(QLatin1String(name))->isHidden();
    };
    EXPECT_TRUE(isHidden("displayTime") && isHidden("sliderPosition") && isHidden("editTime"));
    EXPECT_FALSE(isHidden("displayDateTime") || isHidden("buttonReplay") ||
                 isHidden("buttonStop") || isHidden("sliderSpeed") || isHidden("boxSpeed"));
}

} // namespace
} // namespace VELIX
