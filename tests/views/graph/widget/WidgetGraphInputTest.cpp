#include "tests/views/graph/widget/GraphFixture.h"

#include <gtest/gtest.h>

using namespace VELIX;

namespace {

constexpr auto kLeft = Qt::LeftButton;
constexpr auto kMiddle = Qt::MiddleButton;
constexpr auto kRight = Qt::RightButton;

struct WidgetGraphInputTest : ::testing::Test, Test::GraphFixture<>
{
    void press(Qt::MouseButton button, const QPoint& at, Qt::KeyboardModifiers held = {})
    {
        QTest::mousePress(&graph, button, held, at);
    }
    void release(Qt::MouseButton button, const QPoint& at)
    {
        QTest::mouseRelease(&graph, button, Qt::NoModifier, at);
    }
    void click(const QPoint& at, Qt::KeyboardModifiers held = {})
    {
        QTest::mouseClick(&graph, kLeft, held, at);
    }
    void expectMarkers(double first, double second)
    {
        EXPECT_NEAR(model().marker1(), first, 0.5);
        EXPECT_NEAR(model().marker2(), second, 0.5);
    }

    QSignalSpy markers{&graph, &WidgetGraphBase::signalMarker};
    QSignalSpy cursor{&graph, &WidgetGraphBase::signalCursor};
};

TEST_F(WidgetGraphInputTest, LeftSetsBothMarkersAndShiftTheNearerOne)
{
    click(at(0.4));
    ASSERT_EQ(markers.count(), 1);
    EXPECT_NEAR(markers[0][0].toDouble(), time(at(0.4)), 1e-4);
    EXPECT_NEAR(markers[0][1].toDouble(), time(at(0.4)), 1e-4);
    EXPECT_TRUE(graph.markersOn());

    graph.setMarker(20.0, 60.0);
    click(at(0.35), Qt::ShiftModifier); // left of the midpoint, 40 s
    expectMarkers(35.0, 60.0);
    press(kLeft, at(0.9), Qt::ShiftModifier);
    expectMarkers(35.0, 90.0);
    move(at(0.1), kLeft); // the same marker, past the other
    expectMarkers(35.0, 10.0);
    markers.clear();
    release(kLeft, at(0.1));
    expectMarkers(10.0, 35.0);
    EXPECT_EQ(markers.count(), 1) << "those who follow the markers learn of the swap";
}

TEST_F(WidgetGraphInputTest, ShiftIsRememberedUntilReleaseOrLossOfFocus)
{
    for (const bool leave : {false, true}) {
        graph.setMarker(20.0, 60.0);
        QTest::keyPress(&graph, Qt::Key_Shift);
        click(at(0.1));
        expectMarkers(10.0, 60.0);
        QFocusEvent lost(QEvent::FocusOut);
        leave ? (void)QApplication::sendEvent(&graph, &lost)
              : QTest::keyRelease(&graph, Qt::Key_Shift);
        click(at(0.1));
        expectMarkers(10.0, 10.0);
    }
}

TEST_F(WidgetGraphInputTest, CtrlSetsTheCursorOnTheScaleOfTheBand)
{
    const QRect band = parts().band(1);
    const QPoint point(at(0.3).x(), band.top() + band.height() / 2);
    click(point, Qt::ControlModifier);
    ASSERT_EQ(cursor.count(), 1);
    EXPECT_NEAR(cursor[0][0].toDouble(), time(point), 1e-4);
    EXPECT_NEAR(cursor[0][1].toDouble(), 100.0, 2.5) << "the middle of 0..200";
    EXPECT_EQ(model().selectedTrace(), 1U);
    EXPECT_FALSE(graph.markersOn());
}

TEST_F(WidgetGraphInputTest, MiddleDragsTheCursorAlsoInTheCenterMode)
{
    graph.setCursorMode(GraphModel::CursorCenter);
    QSignalSpy finished(&graph, &WidgetGraphBase::signalMoveCursorFinished);
    press(kMiddle, at(0.2));
    press(kLeft, at(0.5)); // does not disturb the drag
    move(at(0.7), kMiddle);
    EXPECT_EQ(cursor.count(), 2);
    EXPECT_EQ(finished.count(), 0);
    release(kMiddle, at(0.7));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(markers.count(), 0);
    EXPECT_NEAR(model().cursorTime(), 70.0, 0.5);
    EXPECT_EQ(model().xmin(), 0.0) << "the range does not flee from the mouse";
}

TEST_F(WidgetGraphInputTest, RightPansFromTheRangeAtThePress)
{
    graph.setGraphMode(GraphModel::GraphAutomatic);
    QSignalSpy manual(&graph, &WidgetGraphBase::signalManMode);
    QSignalSpy changed(&graph, &WidgetGraphBase::signalRangeChanged);
    const QPoint start = at(0.5);
    const double moved = 30.0 * 100.0 / plot().width();
    press(kRight, start);
    EXPECT_EQ(manual.count(), 0);
    move(start - QPoint(50, 0), kRight);
    move(start - QPoint(30, 7), kRight);
    EXPECT_EQ(manual.count(), 2);
    EXPECT_NEAR(model().xmin(), moved, 1e-9);
    EXPECT_NEAR(model().xmax(), 100.0 + moved, 1e-9);
    EXPECT_EQ(model().graphMode(), GraphModel::GraphManual);
    release(kRight, start);
    EXPECT_EQ(changed.count(), 1);

    graph.setPanning(false);
    press(kRight, start);
    move(start + QPoint(40, 0), kRight);
    EXPECT_NEAR(model().xmin(), moved, 1e-9);
}

TEST_F(WidgetGraphInputTest, WheelZoomsAboutTheMouse)
{
    const QPoint point = at(0.25);
    const double pivot = time(point);
    EXPECT_TRUE(wheel(point, 120));
    EXPECT_NEAR(model().xmin(), pivot - 0.9 * pivot, 1e-9);
    EXPECT_NEAR(model().xmax(), pivot + 0.9 * (100.0 - pivot), 1e-9);
    wheel(point, -120);
    EXPECT_NEAR(model().range().span(), 100.0, 1e-9);

    EXPECT_FALSE(wheel(point, 120, Qt::ShiftModifier));
    press(kRight, point);
    EXPECT_FALSE(wheel(point, 120)) << "during a drag";
    release(kRight, point);
    EXPECT_NEAR(model().range().span(), 100.0, 1e-9);

    for (const double span : {100.0, 90.0, 90.0}) { // of a touch pad, in parts of a step
        wheel(point, 70, Qt::NoModifier, Qt::ScrollUpdate);
        EXPECT_NEAR(model().range().span(), span, 1e-9);
    }
}

TEST_F(WidgetGraphInputTest, KeysMoveTheCursorByPixels)
{
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers held;
        double pixels;
    } rows[] = {{Qt::Key_Right, Qt::NoModifier, 1.0},      {Qt::Key_Left, Qt::NoModifier, -1.0},
                {Qt::Key_Right, Qt::ShiftModifier, 10.0},  {Qt::Key_Left, Qt::ShiftModifier, -10.0},
                {Qt::Key_Right, Qt::ControlModifier, 0.0}, {Qt::Key_Left, Qt::AltModifier, 0.0}};
    graph.setCursorPosition(50.0);
    double expected = 50.0;
    for (const auto& row : rows) {
        QTest::keyClick(&graph, row.key, row.held);
        expected += row.pixels * 100.0 / plot().width();
        EXPECT_NEAR(model().cursorTime(), expected, 1e-9) << row.key;
    }
    EXPECT_EQ(cursor.count(), 4) << "arrows with Ctrl and Alt belong to the window";
}

TEST_F(WidgetGraphInputTest, UpAndDownWalkThroughTheBands)
{
    const QRect band = parts().band(1);
    click({at(0.5).x(), band.top() + 4}, Qt::ControlModifier);
    const double before = model().cursorValue();
    QTest::keyClick(&graph, Qt::Key_Up);
    EXPECT_NEAR(model().cursorValue() - before, model().scaleOf(1).span() / band.height(), 1e-6);
    QTest::keyClick(&graph, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(model().selectedTrace(), 0U);
    EXPECT_NEAR(model().cursorValue(), model().scaleOf(0).minimum, model().scaleOf(0).span() / 10);
    QTest::keyClick(&graph, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(model().selectedTrace(), 1U);
}

TEST_F(WidgetGraphInputTest, TheLegendSelectsHidesAndShows)
{
    for (const QPoint& point : {parts().legendEntry(1).center(), parts().handle(1).center(),
                                parts().timeAxis().center(), parts().valueAxis().center()}) {
        click(point);
        click(point, Qt::ControlModifier);
        EXPECT_EQ(model().selectedTrace(), 1U);
    }
    for (const bool shown : {false, true}) {
        QTest::mouseDClick(&graph, kLeft, Qt::NoModifier, parts().legendEntry(1).center());
        EXPECT_EQ(model().isShown(1), shown);
        EXPECT_EQ(parts().bandCount(), shown ? 3 : 2);
        EXPECT_EQ(graph.nrActive(), 3U) << "it stays in the legend";
    }
    QTest::mouseDClick(&graph, kLeft, Qt::NoModifier, parts().timeAxis().center());
    EXPECT_EQ(markers.count() + cursor.count(), 0);
}

TEST_F(WidgetGraphInputTest, HandlesDragTracesToOtherPositions)
{
    QSignalSpy moved(&graph, &WidgetGraphBase::signalMoveParameter);
    const QPoint from = parts().handle(0).center();
    const QPoint to = parts().handle(2).center();
    press(kLeft, from);
    move(to, kLeft);
    EXPECT_EQ(moved.count(), 0);
    release(kLeft, to);
    ASSERT_EQ(moved.count(), 1);
    EXPECT_EQ(moved[0], (QList<QVariant>{0, 2}));
    EXPECT_EQ(model().displayOrder(), (std::vector<unsigned int>{1, 2, 0}));
}

TEST_F(WidgetGraphInputTest, HoveringShowsValuesAndMovesNothing)
{
    graph.setCursorPosition(10.0);
    const QImage before = paint();
    move(at(0.6));
    EXPECT_EQ(model().cursorTime(), 10.0);
    const QRect beside(at(0.6).x() + 4, plot().top(), 90, plot().height());
    EXPECT_NE(before.copy(beside), paint().copy(beside)) << "values beside the mouse";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&graph, &leave);
    EXPECT_EQ(paint(), before);
}

} // namespace
