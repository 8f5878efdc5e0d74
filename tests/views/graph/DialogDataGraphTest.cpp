#include "views/graph/DialogDataGraph.h"

#include "card/RecordData.h"
#include "core/Property.h"
#include "profile/Profile.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "tests/support/ViewTexts.h"
#include "views/graph/DialogGraphSetup.h"
#include "views/graph/GraphStatisticTable.h"
#include "views/graph/widget/WidgetGraph.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <cmath>

namespace VELIX {
namespace {

using Test::FakeDialogs;
using Test::hintOf;
using Test::ProfileBuilder;
using Test::RecordBuilder;
using Test::rowsOf;

constexpr int kFirstId = 500;

struct DialogDataGraphTest : ::testing::Test
{
    DialogDataGraphTest()
    {
        settings.setConfigFile(folder.filePath(QStringLiteral("c.xml")).toStdString());
        builder.conversion("C", "F", 1.8, 32.0);
        builder.device("Lane A");
    }
    /// Parameters P0, P1, ... of the identifiers from 500 on, all selected.
    void parameters(int count)
    {
        for (int i = 0; i < count; ++i) {
            builder.parameter(kFirstId + i, QStringLiteral("P%1").arg(i), "FLOAT")
                .set("unitMetric", "C")
                .set("unitImperial", "F")
                .set("precision", "1");
        }
        ASSERT_TRUE(builder.load(profile));
        ProfileBuilder::selectAll(profile);
        view = std::make_unique<DialogDataGraph>(profile, settings, dialogs);
        view->resize(900, 600);
        view->show();
        QObject::connect(view.get(), &DialogDataGraph::signalNotice, view.get(),
                         [this](const QString& sentence) { notices.append(sentence); });
        QApplication::setActiveWindow(view.get());
        QApplication::processEvents();
    }
    /// A sample a second of P0, whose value is the time.
    void openRecord(double start, double stop)
    {
        RecordBuilder builder500;
        for (double t = start; t <= stop; t += 1.0) {
            builder500.at(t).id(kFirstId).floatValue(static_cast<float>(t));
        }
        open(builder500);
    }
    void open(const RecordBuilder& recorded)
    {
        data = recorded.data();
        view->updateRecord(data.get());
    }

    WidgetGraph& graph() { return *view->findChild<WidgetGraph*>(); }
    const GraphModel& model() const { return view->graph().model(); }
    double width() const { return model().xmax() - model().xmin(); }
    void expectRange(double from, double to, double tolerance = 1e-3)
    {
        EXPECT_NEAR(model().xmin(), from, tolerance);
        EXPECT_NEAR(model().xmax(), to, tolerance);
    }
    QAbstractButton* button(EGraphCommand id)
    {
        return view->findChild<QButtonGroup*>()->button(id);
    }
    QAction* action(const char* name) { return view->findChild<QAction*>(QLatin1String(name)); }
    /// Lets so many ticks of the repeat timer pass without waiting for them.
    void tick(int count)
    {
        for (int i = 0; i < count; ++i) {
            ASSERT_TRUE(QMetaObject::invokeMethod(view.get(), "slotTimeout"));
        }
    }
    void zoomTo(double from, double to)
    {
        graph().setVisibleRange(from, to);
        tick(10);
    }
    double valueAt(unsigned int trace, double time) const
    {
        double value = 0.0;
        return model().getValue(trace, time, value) ? value : std::nan("");
    }

    QTemporaryDir folder;
    Property settings;
    FakeDialogs dialogs;
    ProfileBuilder builder;
    Profile profile;
    std::shared_ptr<RecordData> data; // outlives the view
    QStringList notices;              ///< of the view
    std::unique_ptr<DialogDataGraph> view;
};

TEST_F(DialogDataGraphTest, ARecordOpensAtItsStartAndTheRangeFollowsTheCursor)
{
    parameters(1);
    EXPECT_TRUE(hintOf(*view).startsWith(QStringLiteral("No record loaded.")));
    openRecord(100.0, 1100.0);
    EXPECT_EQ(hintOf(*view), QString());
    expectRange(0.0, 1200.0);
    EXPECT_EQ(model().cursorTime(), 100.0);
    EXPECT_EQ(model().parameter(0).trace.entries().size(), 1001U);
    zoomTo(0.0, 100.0);
    for (const double time : {95.0, std::nan("")}) {
        view->setTime(time);
        expectRange(5.0, 105.0);
        EXPECT_EQ(model().cursorTime(), 95.0);
    }
    // By key it can leave the visible range.
    graph().setCursorPosition(104.99);
    QTest::keyClick(&graph(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_GT(model().cursorTime(), 105.0);
    EXPECT_LT(model().cursorTime(), model().xmax() - 5.0);
    view->updateRecord(nullptr);
    EXPECT_TRUE(model().parameter(0).trace.isEmpty());
}

TEST_F(DialogDataGraphTest, SamplesComeInOrderOfTimeAndUnit)
{
    parameters(1);
    RecordBuilder record;
    record.at(5.0).id(kFirstId).floatValue(50.0F);
    record.at(3.0).id(kFirstId).floatValue(30.0F);
    record.at(9.0).id(kFirstId).floatValue(90.0F);
    open(record);
    EXPECT_EQ(valueAt(0, 4.0), 30.0);
    EXPECT_EQ(model().parameter(0).unit, QStringLiteral("C"));
    EXPECT_EQ(model().parameter(0).precision, 1);

    // A new unit system: values and labels change, the range does not, in no mode.
    button(eGraphAuto)->click();
    zoomTo(2.0, 12.0);
    profile.setCurrentUnit(eUnitImperial);
    view->updateProfile();
    EXPECT_EQ(valueAt(0, 4.0), 86.0);
    EXPECT_EQ(model().parameter(0).unit, QStringLiteral("F"));
    expectRange(2.0, 12.0);
}

TEST_F(DialogDataGraphTest, OnlyAsManyParametersAsFitAreShownAndTheViewSaysSo)
{
    parameters(100);
    const auto* surplus = view->findChild<QLabel*>(QStringLiteral("labelSurplus"));
    EXPECT_EQ(model().nrActive(), 30U);
    EXPECT_TRUE(surplus->isVisible() && surplus->text().contains(QStringLiteral("100")));
    RecordBuilder record;
    for (const double time : {1.0, 2.0}) {
        record.at(time).id(kFirstId + 99).floatValue(1.0F).id(kFirstId + 29).floatValue(2.0F);
    }
    open(record);
    EXPECT_EQ(valueAt(29, 1.5), 2.0);
    for (const unsigned int kept : {2U, 0U}) {
        unsigned int selected = 0;
        for (auto& [id, parameter] : profile.data().devices.front().parameters) {
            parameter.selected = selected++ < kept;
        }
        view->updateProfile();
        EXPECT_EQ(model().nrActive(), kept);
        EXPECT_FALSE(surplus->isVisible());
    }
    EXPECT_TRUE(hintOf(*view).startsWith(QStringLiteral("No parameter selected.")));
    profile.clear();
    view->updateProfile();
    EXPECT_TRUE(hintOf(*view).startsWith(QStringLiteral("No parameter profile is installed.")));
}

TEST_F(DialogDataGraphTest, ZoomButtonsRepeatWhileTheyAreHeld)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    const std::pair<EGraphCommand, double> rows[] = {{eGraphZoomIn, 32.63}, {eGraphZoomOut, 110.3}};
    for (const auto& [command, expected] : rows) {
        zoomTo(0.0, 60.0);
        QTest::mousePress(button(command), Qt::LeftButton);
        tick(20);
        QTest::mouseRelease(button(command), Qt::LeftButton);
        tick(10);
        EXPECT_NEAR(width(), expected, 0.05);
        EXPECT_NEAR(view->data().xRange, expected, 0.05);
    }
    // That was one visit each, not twenty, and a range that rests is one.
    for (const double expected : {60.0, 32.63}) {
        QTest::keyClick(view.get(), Qt::Key_Left, Qt::AltModifier);
        EXPECT_NEAR(width(), expected, 0.05);
    }
    EXPECT_TRUE(action("actionGraphForward")->isEnabled());
}

TEST_F(DialogDataGraphTest, CommandsActWhenTheirButtonIsReleased)
{
    parameters(1);
    openRecord(100.0, 1100.0);
    zoomTo(0.0, 10.0);
    QTest::mousePress(button(eGraphZoomAll), Qt::LeftButton);
    expectRange(0.0, 10.0);
    QTest::mouseRelease(button(eGraphZoomAll), Qt::LeftButton);
    expectRange(0.0, 1200.0);
    EXPECT_EQ(view->data().xRange, 1000.0) << "without the margins";

    for (const double end : {300.0, 200.0}) {
        graph().setMarker(200.0, end);
        button(eGraphZoomMarker)->click();
        expectRange(200.0, end);
        EXPECT_EQ(notices.size(), end > 200.0 ? 0 : 1) << "nothing is to be seen in no range";
    }

    button(eGraphClear)->click();
    EXPECT_TRUE(model().parameter(0).trace.isEmpty());
    EXPECT_EQ(hintOf(*view), QStringLiteral("The graph has been cleared."));
    emit view->findChild<WidgetHint*>()->signalLink();
    EXPECT_FALSE(model().parameter(0).trace.isEmpty());
    EXPECT_EQ(hintOf(*view), QString());

    button(eGraphSetup)->click();
    EXPECT_TRUE(view->findChild<DialogGraphSetup*>()->isVisible());
}

TEST_F(DialogDataGraphTest, ModeButtonsShowTheModesOfTheGraph)
{
    parameters(1);
    const auto expectSplit = [this](bool split) {
        EXPECT_EQ(button(eGraphSplit)->isChecked(), split);
        EXPECT_EQ(button(eGraphSingle)->isChecked(), !split);
        EXPECT_EQ(model().displayMode() == GraphModel::DisplaySplit, split);
        EXPECT_EQ(view->data().displayMode, split ? 1 : 0);
    };
    expectSplit(true);
    for (const auto id : {eGraphSingle, eGraphSingle, eGraphSplit, eGraphSingle}) {
        button(id)->click(); // twice: switching the mode off is not possible
        expectSplit(id == eGraphSplit);
    }
    zoomTo(0.0, 10.0);
    button(eGraphReset)->click();
    EXPECT_EQ(model().displayMode(), GraphModel::DisplaySplit);
    EXPECT_EQ(view->data().displayMode, 1);
    EXPECT_DOUBLE_EQ(width(), 60.0);
    EXPECT_EQ(view->data().xRange, 60.0);
    EXPECT_TRUE(button(eGraphSingle)->isChecked()) << "reset leaves the buttons as they are";

    button(eGraphAuto)->click();
    EXPECT_EQ(model().graphMode(), GraphModel::GraphAutomatic);
    EXPECT_EQ(view->data().graphMode, 1);
    graph().setGraphMode(GraphModel::GraphManual);
    emit graph().signalManMode();
    EXPECT_FALSE(button(eGraphAuto)->isChecked());
}

TEST_F(DialogDataGraphTest, TheGraphKeepsItsDefaultsUntilTheSetupChanges)
{
    parameters(1);
    EXPECT_EQ(model().cursorMode(), GraphModel::CursorFloating);
    EXPECT_EQ(model().graphMode(), GraphModel::GraphManual);
    view->findChild<QCheckBox*>(QStringLiteral("boxLegendOn"))->click();
    EXPECT_TRUE(button(eGraphAuto)->isChecked());

    const DialogDataGraph next(profile, settings, dialogs); // starts with what was set up
    const DialogDataGraph& now = *view;
    EXPECT_EQ(next.data(), view->data());
    for (const DialogDataGraph* shown : {&now, &next}) {
        EXPECT_EQ(shown->graph().model().cursorMode(), GraphModel::CursorCenter);
        EXPECT_EQ(shown->graph().model().graphMode(), GraphModel::GraphAutomatic);
        EXPECT_EQ(shown->graph().look().grid, QColor(0xff, 0x66, 0x66));
        EXPECT_FALSE(shown->graph().look().legendOn);
        EXPECT_DOUBLE_EQ(shown->graph().model().range().span(), 60.0);
    }
}

TEST_F(DialogDataGraphTest, ValuesBetweenTheMarkersAreListed)
{
    parameters(2);
    openRecord(0.0, 100.0);
    const auto& statistic = *view->findChild<GraphStatisticTable*>();
    const auto& table = *view->findChild<QTableWidget*>();
    EXPECT_FALSE(statistic.isVisible());
    action("actionGraphStatistic")->trigger();
    graph().setMarker(20.5, 9.5);
    tick(1);
    EXPECT_EQ(rowsOf(table), "P0 | 10.0 | 20.0 | 15.0 | C\nP1 | --- | --- | --- | C");
    graph().setMarker(5.0, 5.0);
    zoomTo(-90.0, 60.5);
    EXPECT_EQ(table.item(0, 3)->text(), QStringLiteral("30.0"));
    EXPECT_EQ(statistic.heading(),
              QStringLiteral("In the visible range: -0:01:30.00 to 0:01:00.50, 150.50 s"));

    const DialogDataGraph next(profile, settings, dialogs);
    EXPECT_FALSE(next.findChild<GraphStatisticTable*>()->isHidden());
}

TEST_F(DialogDataGraphTest, SnapshotsAreSavedAndFailuresReported)
{
    parameters(1);
    button(eGraphSnapshot)->click(); // cancelled
    EXPECT_EQ(notices.size(), 0);
    for (const char* name : {"a.png", "no/such/folder/a.png"}) {
        dialogs.file = folder.filePath(QLatin1String(name));
        button(eGraphSnapshot)->click();
        ASSERT_EQ(notices.size(), 1);
        EXPECT_TRUE(notices.takeFirst().startsWith(
            QLatin1String(name[0] == 'a' ? "Snapshot saved" : "The snapshot could not")));
    }
    EXPECT_EQ(QImage(folder.filePath(QStringLiteral("a.png"))).size(), view->size());
    view->copySnapshot();
    EXPECT_EQ(QApplication::clipboard()->image().size(), view->size());
}

} // namespace
} // namespace VELIX
