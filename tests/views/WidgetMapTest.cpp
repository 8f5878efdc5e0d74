#include "views/WidgetMap.h"
#include "card/CardContainer.h"
#include "core/Property.h"
#include "gui/Resources.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "tests/support/TileServer.h"
#include "views/DialogDataMap.h"
#include "views/MapNavigation.h"
#include "views/MapValues.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

namespace VELIX {
namespace {

using Test::CapturedDiagnostics;
using Test::ProfileBuilder;
using Test::RecordBuilder;
using Test::TileServer;

constexpr int kOil = 500;
constexpr int kLatitude = 501;
constexpr int kLongitude = 502;

bool isPath(QRgb pixel)
{
    // Violet to pink, which no tile of the test server has.
    return qBlue(pixel) > qGreen(pixel) + 60 && qGreen(pixel) < 120;
}

/// Degrees as hundreds and minutes, as the unit writes them.
float recorded(double degrees)
{
    const double whole = std::trunc(degrees);
    return static_cast<float>(whole * 100.0 + (degrees - whole) * 60.0);
}

std::vector<FlightPathPoint> pathOf(const std::vector<std::pair<double, double>>& places)
{
    std::vector<FlightPathPoint> path;
    for (const auto& [latitude, longitude] : places) {
        FlightPathPoint point;
        point.latitude = latitude;
        point.longitude = longitude;
        path.push_back(point);
    }
    return path;
}

/// A path that turns with each point.
std::vector<std::pair<double, double>> wave(int count)
{
    std::vector<std::pair<double, double>> places;
    for (int i = 0; i < count; ++i) {
        places.emplace_back(47.0 + 0.01 * std::sin(i / 5.0), 8.0 + i * 1e-4);
    }
    return places;
}

struct WidgetMapTest : ::testing::Test
{
    void SetUp() override
    {
        initResources();
        settings.setString("TileServer", "");
        ProfileBuilder builder;
        builder.threshold("Hot", {{90.0, "yellow", "WARNING"}});
        builder.device("EMU").parameter(kOil, QStringLiteral("Oil"), "FLOAT");
        builder.set("thresholdId", "Hot").set("precision", "1").set("unitMetric", "C");
        builder.parameter(kLatitude, QStringLiteral("Lat"), "FLOAT");
        builder.set("velixDataType", "Latitude");
        builder.parameter(kLongitude, QStringLiteral("Lon"), "FLOAT");
        builder.set("velixDataType", "Longitude");
        ASSERT_TRUE(builder.load(profile));
        profile.data().devices[0].parameters.at(kOil).selected = true;
    }
    void TearDown() override { view.reset(); }

    /// Positions one second apart from second 10 on.
    void load(const std::vector<std::pair<double, double>>& places)
    {
        RecordBuilder record;
        double time = 10.0;
        for (const auto& [latitude, longitude] : places) {
            record.at(time).id(kOil).floatValue(time > 11.5 ? 95.0F : 20.0F);
            record.id(kLatitude).floatValue(recorded(latitude));
            record.id(kLongitude).floatValue(recorded(longitude));
            time += 1.0;
        }
        ASSERT_TRUE(record.write(folder.filePath(QStringLiteral("1.CAN"))));
        ASSERT_TRUE(card.readContainer(folder.path()));
        ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
    }
    void show()
    {
        view =
            std::make_unique<DialogDataMap>(profile, card, settings, folder.path().toStdString());
        if (card.hasRecord()) {
            view->updateRecord(&card.recordData());
            view->setTime(card.recordData().startTime);
        }
        view->resize(600, 400);
        view->show();
        QApplication::setActiveWindow(view.get());
        map().setFocus();
        ASSERT_TRUE(QTest::qWaitFor([this] { return map().paintCount() > 1; }));
    }
    WidgetMap& map() { return view->map(); }
    const MapContext& context() { return view->mapContext(); }
    QPointF windowOf(double latitude, double longitude)
    {
        double x = 0.0;
        double y = 0.0;
        map().latLong2Window(latitude, longitude, &x, &y);
        return {x, y};
    }
    QAction* center() { return view->findChild<QAction*>(QStringLiteral("actionCenterAc")); }
    void wheel(int delta, Qt::MouseEventSource source = Qt::MouseEventNotSynthesized,
               const QPoint& pixels = {})
    {
        const QPointF place(150.0, 100.0);
        QWheelEvent event(place, map().mapToGlobal(place.toPoint()), pixels, {0, delta},
                          Qt::NoButton, Qt::NoModifier, Qt::ScrollUpdate, false, source);
        QApplication::sendEvent(&map(), &event);
    }
    std::pair<double, double> placeAt(const QPointF& window)
    {
        // Half a pixel around tells where it is, without another operation of the widget.
        const double perPixel = context().metresPerPixel / 111120.0;
        double lat = context().centreLatitude;
        double lon = context().centreLongitude;
        for (int i = 0; i < 20; ++i) {
            const QPointF off = window - windowOf(lat, lon);
            lat -= off.y() * perPixel;
            lon += off.x() * perPixel / std::cos(lat * 0.017453292519943295);
        }
        return {lat, lon};
    }

    QTemporaryDir folder;
    Property settings;
    Profile profile;
    CardContainer card{profile};
    std::unique_ptr<DialogDataMap> view;
};

TEST_F(WidgetMapTest, DrawsThePathWhereThePositionsAre)
{
    const struct
    {
        const char* name;
        std::vector<std::pair<double, double>> path;
    } rows[] = {{"a short flight", {{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}}},
                {"across the antimeridian", {{-17.0, 179.5}, {-17.3, -179.9}, {-17.0, -179.5}}},
                {"far from its start", {{47.0, 8.0}, {40.0, 20.0}, {39.999, 20.001}, {39.9, 20.0}}},
                {"of thousands of points", wave(9000)}};
    for (const auto& row : rows) {
        const std::vector<FlightPathPoint> points = pathOf(row.path);
        RecordData record;
        MapContext moved;
        WidgetMap widget(nullptr, moved, settings, {});
        widget.setFlightPath(&points);
        widget.setRecordData(&record);
        widget.resize(600, 400);
        widget.show();
        for (const double range : {0.0, 20000.0, 50.0}) {
            for (std::size_t i = 1; i < points.size(); i += 1 + points.size() / 5) {
                if (range > 0.0) {
                    moved.visibleRange = range;
                    MapNavigation::setCentre(moved, points[i].latitude, points[i].longitude);
                }
                const QImage image = widget.grabFramebuffer(); // at first fitted to the path
                QPointF place;
                widget.latLong2Window(points[i].latitude, points[i].longitude, &place.rx(),
                                      &place.ry());
                ASSERT_TRUE(QRectF(image.rect()).contains(place)) << row.name;
                int inked = 0;
                for (int dx = -1; dx <= 1; ++dx) {
                    for (int dy = -1; dy <= 1; ++dy) {
                        const QPoint pixel(static_cast<int>(place.x()) + dx,
                                           static_cast<int>(place.y()) + dy);
                        inked += isPath(image.pixel(pixel)) ? 1 : 0;
                    }
                }
                EXPECT_GE(inked, 2) << row.name << ", range " << range << ", point " << i;
            }
        }
    }
}

TEST_F(WidgetMapTest, TheAircraftPointsAlongItsCourse)
{
    load({{47.0, 8.0}, {47.0, 8.1}, {47.0, 8.2}, {46.9, 8.2}, {46.8, 8.2}});
    show();
    const auto bodyAt = [this](double time) {
        view->setTime(time);
        const QImage image = map().grabFramebuffer();
        const QPointF place = windowOf(map().acPosition().latitude, map().acPosition().longitude);
        // Where the wings are: half a span beside the middle.
        const auto isBody = [&](double dx, double dy) {
            const QPoint pixel((place + QPointF(dx, dy)).toPoint());
            const QRgb color = image.pixel(pixel);
            return qBlue(color) > 150 && qRed(color) < 110;
        };
        return std::make_pair(isBody(0, -11) || isBody(0, 11), isBody(-11, 0) || isBody(11, 0));
    };
    // The body lies along the course, and the wings, which are swept, do not reach that line.
    EXPECT_TRUE(bodyAt(11.0).second) << "eastwards";
    EXPECT_TRUE(bodyAt(13.0).first) << "southwards";
    EXPECT_NEAR(map().acPosition().course, 180.0, 1.0);
    EXPECT_NEAR(view->calcPositionAtTime(10.5).longitude, 8.05, 1e-4);
    EXPECT_EQ(view->calcPositionAtTime(9.0).time, 0.0);
}

TEST_F(WidgetMapTest, ZoomsAndPansWithinItsLimits)
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
        wheel(120);
    }
    EXPECT_EQ(context().visibleRange, 50.0);
    for (int i = 0; i < 200; ++i) {
        wheel(-120);
    }
    EXPECT_EQ(context().visibleRange, 7.0e7);

    const double east = context().centreLongitude;
    wheel(0, Qt::MouseEventSynthesizedBySystem, {-30, 0}); // a touch pad moves the map
    EXPECT_EQ(context().visibleRange, 7.0e7);
    EXPECT_GT(std::remainder(context().centreLongitude - east, 360.0), 0.0);
}

TEST_F(WidgetMapTest, KeysActWhileTheyAreHeld)
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

TEST_F(WidgetMapTest, DraggingLeavesTheAircraftAndAClickDoesNot)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    QSignalSpy moved(view.get(), &DialogDataMap::signalTime);
    center()->trigger();
    ASSERT_TRUE(context().centreAircraft);
    view->setTime(11.0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::abs(context().centreLatitude - 47.1) < 1e-4; }));
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
    EXPECT_EQ(moved.count(), 0);
}

TEST_F(WidgetMapTest, TilesArriveUnderAttributionAndPath)
{
    TileServer server;
    settings.setString("TileServer", server.url().toStdString());
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return server.requests() > 0 && map().loadingTiles() == 0; }, 20000));
    EXPECT_TRUE(server.header("user-agent").startsWith("VELIX "));
    const QImage image = map().grabFramebuffer();
    const QRgb ground = image.pixel(30, 300);
    bool isTile = false;
    for (const QByteArray& path : server.paths()) {
        const QList<QByteArray> parts = path.split('/');
        isTile = isTile || ground == TileServer::tileColor(parts[1].toInt(), parts[2].toInt(),
                                                           parts[3].split('.')[0].toInt())
                                         .rgb();
    }
    EXPECT_TRUE(isTile) << std::hex << ground;
    // Letters on their ground, up to 5 pixels from the lower right corner.
    int dark = 0;
    for (int x = image.width() - 255; x < image.width(); ++x) {
        for (int y = image.height() - 22; y < image.height(); ++y) {
            const bool letter = qGray(image.pixel(x, y)) < 120;
            dark += letter ? 1 : 0;
            EXPECT_FALSE(letter && (x >= image.width() - 4 || y >= image.height() - 4));
        }
    }
    EXPECT_GT(dark, 500);

    view->resize(200, 400);
    const QImage narrow = map().grabFramebuffer();
    int first = narrow.width();
    for (int x = 0; x < narrow.width(); ++x) {
        for (int y = narrow.height() - 38; y < narrow.height() - 24; ++y) {
            first = qGray(narrow.pixel(x, y)) < 70 ? std::min(first, x) : first; // no tile's
        }
    }
    EXPECT_GT(first, 20) << "the upper of two lines begins in sight";
    EXPECT_LT(first, 100);
}

TEST_F(WidgetMapTest, SaysAboveTheAttributionWhyThereAreNoTiles)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const auto letters = [this] {
        const QImage image = map().grabFramebuffer();
        int dark = 0;
        for (int x = image.width() - 100; x < image.width(); ++x) {
            for (int y = image.height() - 46; y < image.height() - 28; ++y) {
                dark += qGray(image.pixel(x, y)) < 80 ? 1 : 0;
            }
        }
        return dark;
    };
    EXPECT_LT(letters(), 30) << "no server, no failure";
    CapturedDiagnostics lines;
    settings.setString("TileServer", "ftp://tiles.example/");
    EXPECT_TRUE(QTest::qWaitFor([&] { return letters() > 100; }, 5000));
    EXPECT_NE(lines.text().find("no map tile from ftp://tiles.example/"), std::string::npos);
    settings.setString("TileServer", "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return letters() < 30; }, 5000));
}

TEST_F(WidgetMapTest, ShowsValuesAtTheCursorAndSaysWhatIsMissing)
{
    show();
    auto* hint = view->findChild<QLabel*>(QStringLiteral("mapHint"));
    ASSERT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains(QStringLiteral("No record open")));
    EXPECT_FALSE(center()->isEnabled());
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    view->updateRecord(&card.recordData());
    view->setTime(10.0);
    EXPECT_FALSE(hint->isVisible());
    EXPECT_EQ(view->minimumWidth(), 200);
    const auto* values = dynamic_cast<MapValues*>(
        view->findChild<QWidget*>(QStringLiteral("mapPanel"))->findChild<QWidget*>());
    ASSERT_NE(values, nullptr);
    EXPECT_EQ(values->rows(), (std::vector<MapValues::Row>{
                                  {QStringLiteral("Oil:"), QStringLiteral("20.0\u2009C"), {}}}));
    view->setTime(12.0);
    EXPECT_EQ(values->rows()[0].value, QStringLiteral("95.0\u2009C"));
    EXPECT_EQ(values->rows()[0].ground, QColor(Qt::yellow));

    RecordBuilder record;
    record.at(1.0).id(kOil).floatValue(20.0F).at(2.0).floatValue(20.0F);
    ASSERT_TRUE(record.write(folder.filePath(QStringLiteral("1.CAN"))));
    view->updateRecord(nullptr);
    ASSERT_EQ(card.loadFiles({QStringLiteral("1.CAN")}), 1);
    view->updateRecord(&card.recordData());
    EXPECT_TRUE(hint->text().contains(QStringLiteral("no positions")));
}

TEST_F(WidgetMapTest, AStillMapRestsAndKeepsItsSize)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    QTest::qWait(400); // beyond the resizing after the first show
    EXPECT_EQ(map().size(), QSize(600, 400));
    const unsigned int painted = map().paintCount();
    QTest::qWait(2500);
    EXPECT_GE(map().paintCount(), painted + 2);
    EXPECT_LE(map().paintCount(), painted + 4);
}

} // namespace
} // namespace VELIX
