#include "views/DialogDataGraph.h"

#include "card/RecordData.h"
#include "core/Property.h"
#include "gui/WidgetHint.h"
#include "profile/Profile.h"
#include "tests/gui/FakeDialogs.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/DialogGraphSetup.h"
#include "views/GraphStatisticTable.h"
#include "views/WidgetGraph.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <limits>

namespace VELIX {
namespace {

using Test::FakeDialogs;
using Test::ProfileBuilder;
using Test::RecordBuilder;

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
    void parameters(int count, const char* unit = "C")
    {
        for (int i = 0; i < count; ++i) {
            builder.parameter(kFirstId + i, QStringLiteral("P%1").arg(i), "FLOAT")
                .set("unitMetric", unit)
                .set("unitImperial", "F")
                .set("precision", "1");
        }
        ASSERT_TRUE(builder.load(profile));
        ProfileBuilder::selectAll(profile);
        view = std::make_unique<DialogDataGraph>(profile, settings, dialogs);
        view->resize(900, 600);
        view->show();
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
        view->findChild<WidgetGraph*>()->setVisibleRange(from, to);
        tick(10);
    }
    double valueAt(unsigned int trace, double time) const
    {
        double value = 0.0;
        return model().getValue(trace, time, value) ? value
                                                    : std::numeric_limits<double>::quiet_NaN();
    }
    QString hint() const
    {
        const auto* sentence = view->findChild<WidgetHint*>();
        return sentence->isVisible() ? sentence->hint() : QString();
    }
    QString cell(int row, int column)
    {
        return view->findChild<QTableWidget*>()->item(row, column)->text();
    }

    QTemporaryDir folder;
    Property settings;
    FakeDialogs dialogs;
    ProfileBuilder builder;
    Profile profile;
    std::shared_ptr<RecordData> data; // outlives the view
    std::unique_ptr<DialogDataGraph> view;
};

TEST_F(DialogDataGraphTest, ARecordOpensWithMarginsAndTheCursorAtItsStart)
{
    parameters(1);
    openRecord(100.0, 1100.0);
    expectRange(0.0, 1200.0);
    EXPECT_EQ(model().cursorTime(), 100.0);
    EXPECT_EQ(valueAt(0, 500.5), 500.0);
    EXPECT_EQ(model().parameter(0).trace.entries().size(), 1001U);
    view->updateRecord(nullptr);
    EXPECT_TRUE(model().parameter(0).trace.isEmpty());
    EXPECT_TRUE(hint().startsWith(QStringLiteral("No record loaded.")));
}

TEST_F(DialogDataGraphTest, TheRangeIsPagedWithTheCursor)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    zoomTo(0.0, 100.0);
    view->setTime(50.0);
    expectRange(0.0, 100.0);
    view->setTime(95.0);
    expectRange(5.0, 105.0);
    EXPECT_EQ(model().cursorTime(), 95.0);
    view->setTime(3.0);
    expectRange(-7.0, 93.0);
    view->setTime(std::numeric_limits<double>::quiet_NaN());
    expectRange(-7.0, 93.0);
}

TEST_F(DialogDataGraphTest, KeysDoNotLoseTheCursorBeyondTheVisibleRange)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    zoomTo(0.0, 100.0);
    auto* graph = view->findChild<WidgetGraph*>();
    graph->setCursorPosition(99.99);
    QTest::keyClick(graph, Qt::Key_Right, Qt::ShiftModifier);
    const double cursor = model().cursorTime();
    EXPECT_GT(cursor, 100.0);
    expectRange(cursor - 90.0, cursor + 10.0);
    QTest::keyClick(graph, Qt::Key_Right, Qt::ShiftModifier);
    expectRange(cursor - 90.0, cursor + 10.0);
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

    // A new unit system: values and labels change, cursor and range do not.
    zoomTo(2.0, 12.0);
    view->setTime(6.0);
    profile.setCurrentUnit(eUnitImperial);
    view->updateProfile();
    EXPECT_EQ(valueAt(0, 4.0), 86.0);
    EXPECT_EQ(model().parameter(0).unit, QStringLiteral("F"));
    EXPECT_EQ(model().cursorTime(), 6.0);
    expectRange(2.0, 12.0);
}

TEST_F(DialogDataGraphTest, OnlyAsManyParametersAsFitAreShownAndTheViewSaysSo)
{
    parameters(100);
    const auto* surplus = view->findChild<QLabel*>(QStringLiteral("labelSurplus"));
    EXPECT_EQ(model().nrActive(), 30U);
    EXPECT_TRUE(surplus->isVisible());
    EXPECT_TRUE(surplus->text().contains(QStringLiteral("100")));
    EXPECT_EQ(model().parameter(29).name, QStringLiteral("P29"));
    RecordBuilder record;
    record.at(1.0).id(kFirstId + 99).floatValue(1.0F).id(kFirstId + 29).floatValue(2.0F);
    record.at(2.0).id(kFirstId + 99).floatValue(1.0F).id(kFirstId + 29).floatValue(2.0F);
    open(record);
    EXPECT_EQ(valueAt(29, 1.5), 2.0);

    int kept = 0;
    for (auto& [id, parameter] : profile.data().devices.front().parameters) {
        parameter.selected = kept++ < 2;
    }
    view->updateProfile();
    EXPECT_EQ(model().nrActive(), 2U);
    EXPECT_FALSE(surplus->isVisible());
}

TEST_F(DialogDataGraphTest, SaysWhatIsMissing)
{
    parameters(1);
    EXPECT_TRUE(hint().startsWith(QStringLiteral("No record loaded.")));
    openRecord(0.0, 10.0);
    EXPECT_EQ(hint(), QString());
    profile.data().devices.front().parameters.begin()->second.selected = false;
    view->updateProfile();
    EXPECT_EQ(hint(), QStringLiteral("No parameter selected. Choose parameters in the list on the "
                                     "left and confirm."));
    profile.clear();
    view->updateProfile();
    EXPECT_TRUE(hint().startsWith(QStringLiteral("No parameter profile is installed.")));
}

TEST_F(DialogDataGraphTest, OddRecordsAreShownWithoutHarm)
{
    parameters(2);
    RecordBuilder one;
    one.at(7.0).id(kFirstId).floatValue(1.0F);
    open(one);
    EXPECT_GT(width(), 0.0);
    EXPECT_TRUE(model().range().contains(7.0));
    RecordBuilder odd;
    odd.at(1.0).id(kFirstId).floatValue(std::numeric_limits<float>::quiet_NaN());
    odd.at(1.0).id(kFirstId).floatValue(std::numeric_limits<float>::infinity());
    odd.at(100000.0).id(kFirstId).floatValue(4.0F);
    open(odd);
    QTest::qWait(50);
    view->resize(1, 1);
    QTest::qWait(50);
    view->setTime(-1e9);
    view->setTime(1e9);
    view->findChild<WidgetGraph*>()->setMarker(-1e6, 1e6);
    QTest::qWait(50);
    EXPECT_EQ(model().parameter(0).trace.entries().size(), 3U);
}

TEST_F(DialogDataGraphTest, ZoomButtonsRepeatWhileTheyAreHeld)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    zoomTo(0.0, 60.0);
    QTest::mousePress(button(eGraphZoomIn), Qt::LeftButton);
    tick(20);
    EXPECT_NEAR(width(), 32.6, 0.05);
    EXPECT_NEAR(view->data().xRange, 32.6, 0.05);
    QTest::mouseRelease(button(eGraphZoomIn), Qt::LeftButton);
    const double released = width();
    tick(5);
    EXPECT_EQ(width(), released);

    zoomTo(0.0, 4999.0);
    QTest::mousePress(button(eGraphZoomOut), Qt::LeftButton);
    tick(1);
    QTest::mouseRelease(button(eGraphZoomOut), Qt::LeftButton);
    EXPECT_NEAR(width(), 5153.6, 0.1);
}

TEST_F(DialogDataGraphTest, CommandsActWhenTheirButtonIsReleased)
{
    parameters(1);
    openRecord(100.0, 1100.0);
    auto* graph = view->findChild<WidgetGraph*>();
    zoomTo(0.0, 10.0);
    QTest::mousePress(button(eGraphZoomAll), Qt::LeftButton);
    expectRange(0.0, 10.0);
    QTest::mouseRelease(button(eGraphZoomAll), Qt::LeftButton);
    expectRange(0.0, 1200.0);
    EXPECT_EQ(view->data().xRange, 1000.0) << "without the margins";

    QSignalSpy notice(view.get(), &DialogDataGraph::signalNotice);
    graph->setMarker(200.0, 300.0);
    button(eGraphZoomMarker)->click();
    expectRange(200.0, 300.0);
    EXPECT_TRUE(notice.isEmpty());
    graph->setMarker(250.0, 250.0);
    button(eGraphZoomMarker)->click();
    EXPECT_EQ(notice.count(), 1) << "nothing is to be seen in that range";

    button(eGraphClear)->click();
    EXPECT_TRUE(model().parameter(0).trace.isEmpty());
    EXPECT_EQ(hint(), QStringLiteral("The graph has been cleared."));
    emit view->findChild<WidgetHint*>()->signalLink();
    EXPECT_FALSE(model().parameter(0).trace.isEmpty());
    EXPECT_EQ(hint(), QString());

    button(eGraphSingle)->click();
    EXPECT_EQ(model().displayMode(), GraphModel::DisplaySingle);
    EXPECT_EQ(view->data().displayMode, 0);
    button(eGraphReset)->click();
    EXPECT_EQ(model().displayMode(), GraphModel::DisplaySplit);
    EXPECT_EQ(view->data().displayMode, 1);
    EXPECT_DOUBLE_EQ(width(), 60.0);
    EXPECT_EQ(view->data().xRange, 60.0);
    EXPECT_TRUE(button(eGraphSingle)->isChecked()) << "reset leaves the buttons as they are";

    button(eGraphSetup)->click();
    EXPECT_TRUE(view->findChild<DialogGraphSetup*>()->isVisible());
}

TEST_F(DialogDataGraphTest, ModeButtonsShowTheModesOfTheGraph)
{
    parameters(1);
    openRecord(0.0, 100.0);
    EXPECT_TRUE(button(eGraphSplit)->isChecked());
    EXPECT_FALSE(button(eGraphSingle)->isChecked());
    button(eGraphSingle)->click();
    EXPECT_FALSE(button(eGraphSplit)->isChecked());
    button(eGraphSingle)->click(); // switching the mode off is not possible
    EXPECT_TRUE(button(eGraphSingle)->isChecked());
    button(eGraphSplit)->click();
    EXPECT_EQ(view->data().displayMode, 1);

    button(eGraphAuto)->click();
    EXPECT_EQ(model().graphMode(), GraphModel::GraphAutomatic);
    EXPECT_EQ(view->data().graphMode, 1);
    auto* graph = view->findChild<WidgetGraph*>();
    graph->setGraphMode(GraphModel::GraphManual);
    emit graph->signalManMode();
    EXPECT_FALSE(button(eGraphAuto)->isChecked());
}

TEST_F(DialogDataGraphTest, TheGraphKeepsItsDefaultsUntilTheSetupChanges)
{
    parameters(1);
    EXPECT_EQ(model().cursorMode(), GraphModel::CursorFloating);
    EXPECT_EQ(model().graphMode(), GraphModel::GraphManual);
    view->findChild<QCheckBox*>(QStringLiteral("boxLegendOn"))->click();
    EXPECT_EQ(model().cursorMode(), GraphModel::CursorCentre);
    EXPECT_EQ(model().graphMode(), GraphModel::GraphAutomatic);
    EXPECT_TRUE(button(eGraphAuto)->isChecked());
    EXPECT_FALSE(view->graph().look().legendOn);
    EXPECT_EQ(view->graph().look().grid, QColor(0xff, 0x66, 0x66));
    EXPECT_DOUBLE_EQ(width(), 60.0);

    // The next run starts with what was set up.
    const DialogDataGraph next(profile, settings, dialogs);
    EXPECT_EQ(next.data(), view->data());
    EXPECT_EQ(next.graph().model().cursorMode(), GraphModel::CursorCentre);
    EXPECT_FALSE(next.graph().look().legendOn);
}

TEST_F(DialogDataGraphTest, VisitedRangesAreSteppedThroughByKeys)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    EXPECT_FALSE(action("actionGraphBack")->isEnabled());
    zoomTo(100.0, 200.0);
    QTest::mousePress(button(eGraphZoomIn), Qt::LeftButton);
    tick(10); // one visit, not ten
    QTest::mouseRelease(button(eGraphZoomIn), Qt::LeftButton);
    tick(10);
    const double zoomed = width();
    QTest::keyClick(view.get(), Qt::Key_Left, Qt::AltModifier);
    expectRange(100.0, 200.0);
    QTest::keyClick(view.get(), Qt::Key_Left, Qt::AltModifier);
    expectRange(-100.0, 1100.0);
    QTest::keyClick(view.get(), Qt::Key_Left, Qt::AltModifier);
    expectRange(-100.0, 1100.0);
    QTest::keyClick(view.get(), Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(view.get(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_NEAR(width(), zoomed, 1e-3);
    EXPECT_FALSE(action("actionGraphForward")->isEnabled());
}

TEST_F(DialogDataGraphTest, RangesThatFollowTheCursorAreNoVisits)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    zoomTo(0.0, 100.0);
    for (int i = 0; i < 500; ++i) {
        view->setTime(i * 2.0);
        tick(1);
    }
    tick(10);
    EXPECT_GT(model().xmin(), 800.0);
    QTest::keyClick(view.get(), Qt::Key_Left, Qt::AltModifier);
    expectRange(-100.0, 1100.0);
}

TEST_F(DialogDataGraphTest, AnEventIsShownWithItsSurroundings)
{
    parameters(1);
    openRecord(0.0, 1000.0);
    view->showAround(300.0);
    expectRange(285.0, 315.0);
}

TEST_F(DialogDataGraphTest, TheCursorOfTheGraphIsPassedOn)
{
    parameters(1);
    openRecord(0.0, 100.0);
    QSignalSpy cursor(view.get(), &DialogDataGraph::signalCursor);
    emit view->findChild<WidgetGraph*>()->signalCursor(12.5F, 3.0);
    ASSERT_EQ(cursor.count(), 1);
    EXPECT_EQ(cursor.first().at(0).toFloat(), 12.5F);
}

TEST_F(DialogDataGraphTest, ValuesBetweenTheMarkersAreListed)
{
    parameters(2);
    openRecord(0.0, 100.0);
    EXPECT_FALSE(view->findChild<GraphStatisticTable*>()->isVisible());
    action("actionGraphStatistic")->trigger();
    view->findChild<WidgetGraph*>()->setMarker(20.5, 9.5);
    tick(1);
    EXPECT_EQ(cell(0, 0), QStringLiteral("P0"));
    EXPECT_EQ(cell(0, 1), QStringLiteral("10.0"));
    EXPECT_EQ(cell(0, 2), QStringLiteral("20.0"));
    EXPECT_EQ(cell(0, 3), QStringLiteral("15.0"));
    EXPECT_EQ(cell(1, 1), QStringLiteral("---"));
    view->findChild<WidgetGraph*>()->setMarker(5.0, 5.0);
    zoomTo(39.5, 60.5);
    EXPECT_EQ(cell(0, 3), QStringLiteral("50.0"));
    EXPECT_EQ(view->findChild<GraphStatisticTable*>()->heading(),
              QStringLiteral("In the visible range: 0:00:39.50 to 0:01:00.50, 21.00 s"));
    zoomTo(-90.0, 60.0);
    EXPECT_TRUE(view->findChild<GraphStatisticTable*>()->heading().contains(
        QStringLiteral(": -0:01:30.00 to ")));

    const DialogDataGraph next(profile, settings, dialogs);
    EXPECT_FALSE(next.findChild<GraphStatisticTable*>()->isHidden());
}

/// Whether the lower half of a picture, where the graph is, has more than one colour.
bool showsSomething(const QImage& picture)
{
    for (int y = picture.height() / 2; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, picture.height() / 2)) {
                return true;
            }
        }
    }
    return false;
}

TEST_F(DialogDataGraphTest, SnapshotsAreSavedInTheFormatOfTheirSuffix)
{
    parameters(1);
    openRecord(0.0, 100.0);
    QTest::qWait(100);
    QSignalSpy notice(view.get(), &DialogDataGraph::signalNotice);
    for (const char* name : {"a.bmp", "b.png", "c.JPG", "d.unknown"}) {
        const QString path = folder.filePath(QLatin1String(name));
        dialogs.file = path;
        button(eGraphSnapshot)->click();
        const QImage picture(path);
        EXPECT_EQ(picture.size(), view->size()) << name;
        EXPECT_TRUE(showsSomething(picture)) << name;
        EXPECT_TRUE(notice.takeFirst().first().toString().contains(path)) << name;
    }
    QFile bitmap(folder.filePath(QStringLiteral("d.unknown")));
    ASSERT_TRUE(bitmap.open(QIODevice::ReadOnly));
    EXPECT_EQ(bitmap.read(2), QByteArray("BM"));

    dialogs.file = folder.filePath(QStringLiteral("e.svg"));
    view->saveSnapshot();
    QSvgRenderer svg(dialogs.file);
    ASSERT_TRUE(svg.isValid());
    QImage drawn(view->graph().size(), QImage::Format_RGB32);
    QPainter painter(&drawn);
    svg.render(&painter);
    painter.end();
    EXPECT_TRUE(showsSomething(drawn));
    QFile text(dialogs.file);
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    const QByteArray lines = text.readAll();
    EXPECT_TRUE(lines.contains("<polyline")) << "traces are lines, not a picture of them";
    EXPECT_FALSE(lines.contains("<image"));
}

TEST_F(DialogDataGraphTest, AFailedSnapshotIsTold)
{
    parameters(1);
    openRecord(0.0, 100.0);
    QSignalSpy notice(view.get(), &DialogDataGraph::signalNotice);
    dialogs.file.clear(); // cancelled
    view->saveSnapshot();
    EXPECT_EQ(notice.count(), 0);
    dialogs.file = folder.filePath(QStringLiteral("no/such/folder/a.png"));
    view->saveSnapshot();
    ASSERT_EQ(notice.count(), 1);
    EXPECT_TRUE(notice.first().first().toString().contains(dialogs.file));

    view->copySnapshot();
    EXPECT_EQ(QApplication::clipboard()->image().size(), view->size());
}

} // namespace
} // namespace VELIX
