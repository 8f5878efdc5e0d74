#include "tests/views/graph/widget/GraphFixture.h"

#include <gtest/gtest.h>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

template <class Widget>
class WidgetGraphInput : public ::testing::Test
{};
using Widgets = ::testing::Types<WidgetGraph, WidgetGraphES>;
TYPED_TEST_SUITE(WidgetGraphInput, Widgets);

TYPED_TEST(WidgetGraphInput, LeftSetsBothMarkers)
{
    GraphFixture<TypeParam> fixture;
    QSignalSpy spy(&fixture.graph, &WidgetGraphBase::signalMarker);
    const QPoint point = fixture.at(0.4, 0.5);
    QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::NoModifier, point);
    ASSERT_EQ(spy.count(), 1);
    const double time = fixture.time(point);
    EXPECT_NEAR(spy[0][0].toDouble(), time, 1e-4);
    EXPECT_NEAR(spy[0][1].toDouble(), time, 1e-4);
    EXPECT_TRUE(fixture.graph.markersOn());
}

TYPED_TEST(WidgetGraphInput, ShiftSetsTheNearerMarkerAndReleaseSortsThem)
{
    GraphFixture<TypeParam> fixture;
    fixture.graph.setMarker(20.0, 60.0);
    const QPoint left = fixture.at(0.35, 0.5); // left of the midpoint, 40 s
    QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::ShiftModifier, left);
    EXPECT_NEAR(fixture.graph.model().marker1(), fixture.time(left), 1e-9);
    EXPECT_EQ(fixture.graph.model().marker2(), 60.0);

    QTest::mousePress(&fixture.graph, Qt::LeftButton, Qt::ShiftModifier, fixture.at(0.9, 0.5));
    EXPECT_NEAR(fixture.graph.model().marker2(), 90.0, 0.5);
    fixture.move(fixture.at(0.1, 0.5), Qt::LeftButton); // the same marker, past the other
    EXPECT_NEAR(fixture.graph.model().marker2(), 10.0, 0.5);
    QSignalSpy spy(&fixture.graph, &WidgetGraphBase::signalMarker);
    QTest::mouseRelease(&fixture.graph, Qt::LeftButton, Qt::NoModifier, fixture.at(0.1, 0.5));
    EXPECT_NEAR(fixture.graph.model().marker1(), 10.0, 0.5);
    EXPECT_NEAR(fixture.graph.model().marker2(), fixture.time(left), 1e-9);
    EXPECT_EQ(spy.count(), 1) << "whoever follows the markers learns of the swap";
}

TYPED_TEST(WidgetGraphInput, ARememberedShiftCountsAsHeld)
{
    GraphFixture<TypeParam> fixture;
    fixture.graph.setMarker(20.0, 60.0);
    for (const double marker2 : {60.0, 10.0}) {
        QTest::keyEvent(marker2 > 10.0 ? QTest::Press : QTest::Release, &fixture.graph,
                        Qt::Key_Shift);
        QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::NoModifier, fixture.at(0.1, 0.5));
        EXPECT_NEAR(fixture.graph.model().marker2(), marker2, 0.5);
    }
}

TYPED_TEST(WidgetGraphInput, CtrlPlacesTheCursorOnTheScaleOfTheBand)
{
    GraphFixture<TypeParam> fixture;
    QSignalSpy spy(&fixture.graph, &WidgetGraphBase::signalCursor);
    const QRect band = fixture.graph.layoutOfParts().band(1);
    const QPoint point(fixture.at(0.3, 0.0).x(), band.top() + band.height() / 2);
    QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::ControlModifier, point);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_NEAR(spy[0][0].toDouble(), fixture.time(point), 1e-4);
    EXPECT_NEAR(spy[0][1].toDouble(), 100.0, 2.5) << "the middle of 0..200";
    EXPECT_EQ(fixture.graph.model().selectedTrace(), 1U);
    EXPECT_FALSE(fixture.graph.markersOn());
}

TYPED_TEST(WidgetGraphInput, MiddleDragsTheCursorAlsoInTheCenterMode)
{
    GraphFixture<TypeParam> fixture;
    fixture.graph.setCursorMode(GraphModel::CursorCenter);
    QSignalSpy moved(&fixture.graph, &WidgetGraphBase::signalCursor);
    QSignalSpy finished(&fixture.graph, &WidgetGraphBase::signalMoveCursorFinished);
    QTest::mousePress(&fixture.graph, Qt::MiddleButton, Qt::NoModifier, fixture.at(0.2, 0.5));
    fixture.move(fixture.at(0.7, 0.5), Qt::MiddleButton);
    EXPECT_EQ(moved.count(), 2);
    EXPECT_EQ(finished.count(), 0);
    QTest::mouseRelease(&fixture.graph, Qt::MiddleButton, Qt::NoModifier, fixture.at(0.7, 0.5));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_NEAR(fixture.graph.model().cursorTime(), 70.0, 0.5);
    EXPECT_EQ(fixture.graph.model().xmin(), 0.0) << "the range does not flee from the mouse";
}

TYPED_TEST(WidgetGraphInput, RightPansFromTheRangeAtThePress)
{
    GraphFixture<TypeParam> fixture;
    fixture.graph.setGraphMode(GraphModel::GraphAutomatic);
    QSignalSpy manual(&fixture.graph, &WidgetGraphBase::signalManMode);
    const QPoint press = fixture.at(0.5, 0.5);
    const double perPixel = 100.0 / fixture.plot().width();
    QTest::mousePress(&fixture.graph, Qt::RightButton, Qt::NoModifier, press);
    EXPECT_EQ(manual.count(), 0);
    fixture.move(press - QPoint(50, 0), Qt::RightButton);
    fixture.move(press - QPoint(30, 7), Qt::RightButton);
    EXPECT_EQ(manual.count(), 2);
    EXPECT_NEAR(fixture.graph.model().xmin(), 30.0 * perPixel, 1e-9);
    EXPECT_NEAR(fixture.graph.model().xmax(), 100.0 + 30.0 * perPixel, 1e-9);
    EXPECT_EQ(fixture.graph.model().graphMode(), GraphModel::GraphManual);
    QTest::mouseRelease(&fixture.graph, Qt::RightButton, Qt::NoModifier, press);

    fixture.graph.setPanning(false);
    QTest::mousePress(&fixture.graph, Qt::RightButton, Qt::NoModifier, press);
    fixture.move(press + QPoint(40, 0), Qt::RightButton);
    EXPECT_NEAR(fixture.graph.model().xmin(), 30.0 * perPixel, 1e-9);
}

TYPED_TEST(WidgetGraphInput, WheelZoomsAboutTheMouse)
{
    GraphFixture<TypeParam> fixture;
    const QPoint point = fixture.at(0.25, 0.5);
    const double pivot = fixture.time(point);
    EXPECT_TRUE(fixture.wheel(point, 120));
    EXPECT_NEAR(fixture.graph.model().xmin(), pivot - 0.9 * pivot, 1e-9);
    EXPECT_NEAR(fixture.graph.model().xmax(), pivot + 0.9 * (100.0 - pivot), 1e-9);
    fixture.wheel(point, 120);
    fixture.wheel(point, 120);
    for (int i = 0; i < 3; ++i) {
        fixture.wheel(point, -120);
    }
    EXPECT_NEAR(fixture.graph.model().range().span(), 100.0, 1e-9);

    fixture.wheel(point, 120, Qt::ShiftModifier);
    QTest::mousePress(&fixture.graph, Qt::RightButton, Qt::NoModifier, point);
    fixture.wheel(point, 120);
    EXPECT_NEAR(fixture.graph.model().range().span(), 100.0, 1e-9)
        << "neither with Shift nor during a drag";
}

TYPED_TEST(WidgetGraphInput, KeysMoveTheCursorByPixels)
{
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers held;
        double pixels;
    } rows[] = {{Qt::Key_Right, Qt::NoModifier, 1.0},      {Qt::Key_Left, Qt::NoModifier, -1.0},
                {Qt::Key_Right, Qt::ShiftModifier, 10.0},  {Qt::Key_Left, Qt::ShiftModifier, -10.0},
                {Qt::Key_Right, Qt::ControlModifier, 0.0}, {Qt::Key_Left, Qt::AltModifier, 0.0}};
    GraphFixture<TypeParam> fixture;
    fixture.graph.setCursorPosition(50.0);
    QSignalSpy spy(&fixture.graph, &WidgetGraphBase::signalCursor);
    const double perPixel = 100.0 / fixture.plot().width();
    double expected = 50.0;
    for (const auto& row : rows) {
        QTest::keyClick(&fixture.graph, row.key, row.held);
        expected += row.pixels * perPixel;
        EXPECT_NEAR(fixture.graph.model().cursorTime(), expected, 1e-9) << row.key;
    }
    EXPECT_EQ(spy.count(), 4) << "arrows with Ctrl and Alt belong to the window";
    EXPECT_NEAR(spy[0][0].toDouble(), 50.0 + perPixel, 1e-3);
}

TYPED_TEST(WidgetGraphInput, UpAndDownWalkThroughTheBands)
{
    GraphFixture<TypeParam> fixture;
    const QRect band = fixture.graph.layoutOfParts().band(1);
    const QPoint nearTop(fixture.at(0.5, 0.0).x(), band.top() + 4);
    QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::ControlModifier, nearTop);
    const double before = fixture.graph.model().cursorValue();
    QTest::keyClick(&fixture.graph, Qt::Key_Up);
    EXPECT_NEAR(fixture.graph.model().cursorValue() - before,
                fixture.graph.model().scaleOf(1).span() / band.height(), 1e-6);
    EXPECT_EQ(fixture.graph.model().selectedTrace(), 1U);
    QTest::keyClick(&fixture.graph, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(fixture.graph.model().selectedTrace(), 0U);
    EXPECT_NEAR(fixture.graph.model().cursorValue(), fixture.graph.model().scaleOf(0).minimum,
                fixture.graph.model().scaleOf(0).span() / 10.0);
    QTest::keyClick(&fixture.graph, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(fixture.graph.model().selectedTrace(), 1U);
}

TYPED_TEST(WidgetGraphInput, NoClickOutsideThePlotSetsMarkersOrCursor)
{
    GraphFixture<TypeParam> fixture;
    QSignalSpy markers(&fixture.graph, &WidgetGraphBase::signalMarker);
    QSignalSpy cursor(&fixture.graph, &WidgetGraphBase::signalCursor);
    const GraphLayout parts = fixture.graph.layoutOfParts();
    for (const QPoint& point : {parts.legendEntry(1).center(), parts.handle(1).center(),
                                parts.timeAxis().center(), parts.valueAxis().center()}) {
        QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::NoModifier, point);
        QTest::mouseClick(&fixture.graph, Qt::LeftButton, Qt::ControlModifier, point);
        QTest::mouseDClick(&fixture.graph, Qt::LeftButton, Qt::NoModifier, point);
    }
    EXPECT_EQ(markers.count() + cursor.count(), 0);
}

TYPED_TEST(WidgetGraphInput, DoubleClickInTheLegendHidesAndShows)
{
    GraphFixture<TypeParam> fixture;
    const auto doubleClick = [&fixture](int row) {
        QTest::mouseDClick(&fixture.graph, Qt::LeftButton, Qt::NoModifier,
                           fixture.graph.layoutOfParts().legendEntry(row).center());
    };
    doubleClick(1);
    EXPECT_FALSE(fixture.graph.model().isShown(1));
    EXPECT_EQ(fixture.graph.layoutOfParts().bandCount(), 2);
    EXPECT_EQ(fixture.graph.nrActive(), 3U) << "its place in the legend stays";
    doubleClick(1);
    EXPECT_TRUE(fixture.graph.model().isShown(1));
    EXPECT_EQ(fixture.graph.layoutOfParts().bandCount(), 3);
}

TYPED_TEST(WidgetGraphInput, HandlesDragTracesToOtherPlaces)
{
    GraphFixture<TypeParam> fixture;
    QSignalSpy spy(&fixture.graph, &WidgetGraphBase::signalMoveParameter);
    const GraphLayout parts = fixture.graph.layoutOfParts();
    QTest::mousePress(&fixture.graph, Qt::LeftButton, Qt::NoModifier, parts.handle(0).center());
    fixture.move(parts.handle(2).center(), Qt::LeftButton);
    EXPECT_EQ(spy.count(), 0);
    QTest::mouseRelease(&fixture.graph, Qt::LeftButton, Qt::NoModifier, parts.handle(2).center());
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy[0], (QList<QVariant>{0, 2}));
    EXPECT_EQ(fixture.graph.model().displayOrder(), (std::vector<unsigned int>{1, 2, 0}));
}

TYPED_TEST(WidgetGraphInput, HoveringMovesNothing)
{
    GraphFixture<TypeParam> fixture;
    fixture.graph.setCursorPosition(10.0);
    const QImage before = fixture.paint();
    const QPoint point = fixture.at(0.6, 0.5);
    fixture.move(point);
    EXPECT_EQ(fixture.graph.model().cursorTime(), 10.0);
    const QImage hovered = fixture.paint();
    const QRect beside(point.x() + 4, fixture.plot().top(), 90, fixture.plot().height());
    EXPECT_NE(before.copy(beside), hovered.copy(beside)) << "values beside the mouse";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&fixture.graph, &leave);
    EXPECT_EQ(fixture.paint(), before);
}

} // namespace
