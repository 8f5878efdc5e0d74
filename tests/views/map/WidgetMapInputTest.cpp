#include "tests/support/CapturedDiagnostics.h"
#include "tests/views/map/MapFixture.h"

#include <QNativeGestureEvent>
#include <QTouchEvent>

namespace VELIX {
namespace {

using Test::CapturedDiagnostics;

struct WidgetMapInputTest : Test::MapFixture
{};

TEST_F(WidgetMapInputTest, ZoomsAndPansWithinItsLimits)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const auto under = placeAt({150.0, 100.0});
    const double range = context().visibleRange;
    CapturedDiagnostics lines;
    wheel(120);
    EXPECT_NE(lines.text().find("wheelEvent angleDelta 0 120\nwheelEvent mouseButtons 0x0\n"
                                "wheelEvent inverted 0\n"),
              std::string::npos);
    EXPECT_NEAR(context().visibleRange, range / 1.1, 1e-6);
    EXPECT_NEAR(placeAt({150.0, 100.0}).first, under.first, 1e-6);
    EXPECT_NEAR(placeAt({150.0, 100.0}).second, under.second, 1e-6);

    QTest::mouseDClick(&map(), Qt::LeftButton, {}, {150, 100});
    EXPECT_NEAR(context().visibleRange, range / 2.2, 1e-6);
    for (int i = 0; i < 40; ++i) {
        QTest::mouseDClick(&map(), Qt::LeftButton, {}, {150, 100});
    }
    EXPECT_EQ(context().visibleRange, 50.0);

    const double east = context().centreLongitude;
    wheel(0, Qt::MouseEventSynthesizedBySystem, {-30, 0}); // a touch pad moves the map
    EXPECT_EQ(context().visibleRange, 50.0);
    EXPECT_GT(std::remainder(context().centreLongitude - east, 360.0), 0.0);
}

TEST_F(WidgetMapInputTest, KeysActWhileTheyAreHeld)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const MapContext before = context();
    QTest::keyPress(&map(), Qt::Key_Plus);
    QTest::keyPress(&map(), Qt::Key_Up);
    const unsigned int painted = map().paintCount();
    ASSERT_TRUE(QTest::qWaitFor([&] { return map().paintCount() > painted + 3; }));
    QTest::keyRelease(&map(), Qt::Key_Plus);
    QTest::keyRelease(&map(), Qt::Key_Up);
    EXPECT_LT(context().visibleRange, before.visibleRange / 1.06);
    EXPECT_GT(context().centreLatitude, before.centreLatitude);

    // A plus sign above another key: Shift is let go first.
    QTest::keyPress(&map(), Qt::Key_Shift);
    QTest::keyPress(&map(), Qt::Key_Plus, Qt::ShiftModifier);
    QTest::keyRelease(&map(), Qt::Key_Shift);
    QTest::keyRelease(&map(), Qt::Key_Equal);
    map().grabFramebuffer();
    const double released = context().visibleRange;
    map().grabFramebuffer();
    EXPECT_EQ(context().visibleRange, released);

    const bool shading = context().shading;
    QTest::keyClick(&map(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(context().shading, shading);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, {}, true);
    QApplication::sendEvent(&map(), &repeated);
    EXPECT_NE(context().shading, shading);
    QKeyEvent over(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    over.ignore();
    QApplication::sendEvent(&map(), &over);
    EXPECT_TRUE(over.isAccepted()) << "it would save the project";
}

TEST_F(WidgetMapInputTest, DraggingLeavesTheAircraftAndAClickDoesNot)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    center()->trigger();
    ASSERT_TRUE(context().centreAircraft);
    view->setTime(11.0);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return std::abs(context().centreLatitude - 47.1) < 1e-4; }, 60000));
    QTest::mouseClick(&map(), Qt::LeftButton, {}, {300, 200});
    EXPECT_TRUE(center()->isChecked());

    const auto grabbed = placeAt({300.0, 200.0});
    QTest::mousePress(&map(), Qt::LeftButton, {}, {300, 200});
    QMouseEvent drag(QEvent::MouseMove, QPointF(340.0, 230.0), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&map(), &drag);
    EXPECT_TRUE(context().dragging);
    EXPECT_FALSE(context().centreAircraft);
    EXPECT_FALSE(center()->isChecked());
    EXPECT_NEAR(windowOf(grabbed.first, grabbed.second).x(), 340.0, 0.1);
    EXPECT_NEAR(windowOf(grabbed.first, grabbed.second).y(), 230.0, 0.1);
    QMouseEvent lost(QEvent::MouseMove, QPointF(345.0, 230.0), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&map(), &lost);
    EXPECT_FALSE(context().dragging) << "the button was released outside";
}

TEST_F(WidgetMapInputTest, GesturesZoomAboutTheirPlaceWithinTheLimits)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const auto send = [this](Qt::NativeGestureType type, double value) {
        const QPointF place(150.0, 100.0);
        QNativeGestureEvent event(type, nullptr, place, place, map().mapToGlobal(place.toPoint()),
                                  value, 0, 0);
        QApplication::sendEvent(&map(), &event);
    };
    const auto under = placeAt({150.0, 100.0});
    const double range = context().visibleRange;
    CapturedDiagnostics lines;
    send(Qt::BeginNativeGesture, 0.0);
    EXPECT_TRUE(context().animating);
    send(Qt::ZoomNativeGesture, 0.25);
    EXPECT_NEAR(context().visibleRange, range / 1.25, 1e-6);
    EXPECT_NEAR(placeAt({150.0, 100.0}).first, under.first, 1e-6);
    EXPECT_NEAR(placeAt({150.0, 100.0}).second, under.second, 1e-6);
    send(Qt::EndNativeGesture, 0.0);
    EXPECT_FALSE(context().animating);
    EXPECT_EQ(lines.text(), "Gesture 0 value 0.000000\nBEGIN 0\nGesture 3 value 0.250000\n"
                            "Gesture 1 value 0.000000\nEND 1\n");
    for (const auto& [value, limit] : {std::make_pair(100.0, 50.0), std::make_pair(-5.0, 7.0e7)}) {
        for (int i = 0; i < 30; ++i) {
            send(Qt::ZoomNativeGesture, value);
        }
        EXPECT_EQ(context().visibleRange, limit) << value;
    }
}

TEST_F(WidgetMapInputTest, TwoFingersZoomByTheirSpreadAndKeepThePlaceBetweenThem)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const auto send = [this](QEvent::Type type, Qt::TouchPointState state, double middle,
                             double spread) {
        QList<QTouchEvent::TouchPoint> fingers;
        for (const double side : {-0.5, 0.5}) {
            fingers << QTouchEvent::TouchPoint(fingers.size());
            fingers.last().setPos({middle + side * spread, 150.0});
            fingers.last().setState(state);
        }
        QTouchEvent event(type, nullptr, Qt::NoModifier, state, fingers);
        QApplication::sendEvent(&map(), &event);
    };
    const auto between = placeAt({200.0, 150.0});
    const double range = context().visibleRange;
    send(QEvent::TouchBegin, Qt::TouchPointPressed, 200.0, 50.0);
    EXPECT_TRUE(context().animating);
    send(QEvent::TouchUpdate, Qt::TouchPointMoved, 240.0, 100.0);
    EXPECT_NEAR(context().visibleRange, range / 2.0, 1e-6);
    EXPECT_NEAR(windowOf(between.first, between.second).x(), 240.0, 0.1);
    send(QEvent::TouchEnd, Qt::TouchPointReleased, 240.0, 100.0);
    EXPECT_FALSE(context().animating);
}

} // namespace
} // namespace VELIX
