#include "gui/look/Palette.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/TileServer.h"
#include "tests/views/map/MapFixture.h"
#include "views/map/model/MapNavigation.h"
#include "views/map/model/MapTexts.h"

#include <QProcess>

namespace VELIX {
namespace {

using Test::CapturedDiagnostics;
using Test::TileServer;

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
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        places.emplace_back(47.0 + 0.01 * std::sin(i / 5.0), 8.0 + i * 1e-4);
    }
    return places;
}

/// The pixels of an area that meet a condition.
template <class Condition>
int countOf(const QImage& image, const QRect& area, const Condition& condition)
{
    int count = 0;
    for (int x = area.left(); x <= area.right(); ++x) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            count += condition(image.pixel(x, y)) ? 1 : 0;
        }
    }
    return count;
}

struct WidgetMapPaintingTest : Test::MapFixture
{};

TEST_F(WidgetMapPaintingTest, DrawsThePathWhereThePositionsAre)
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
                const QRect around(static_cast<int>(place.x()) - 1, static_cast<int>(place.y()) - 1,
                                   3, 3);
                EXPECT_GE(countOf(image, around, isPath), 2)
                    << row.name << ", range " << range << ", point " << i;
            }
        }
    }
}

TEST_F(WidgetMapPaintingTest, TilesArriveUnderAttributionAndPath)
{
    TileServer server;
    settings.setString("TileServer", server.url().toStdString());
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return server.requests() > 0 && map().loadingTiles() == 0; }, 20000));
    EXPECT_TRUE(server.header("user-agent").startsWith("VELIX "));
    const QImage image = map().grabFramebuffer();
    const QRgb background = image.pixel(30, 300);
    bool isTile = false;
    for (const QByteArray& path : server.paths()) {
        const QList<QByteArray> parts = path.split('/');
        isTile = isTile || background == TileServer::tileColor(parts[1].toInt(), parts[2].toInt(),
                                                               parts[3].split('.')[0].toInt())
                                             .rgb();
    }
    EXPECT_TRUE(isTile) << std::hex << background;
    // Letters on their background, up to 5 pixels from the lower right corner.
    const auto isLetter = [](QRgb pixel) { return qGray(pixel) < 120; };
    const int width = image.width();
    const int height = image.height();
    EXPECT_GT(countOf(image, {width - 255, height - 22, 251, 18}, isLetter), 500);
    EXPECT_EQ(countOf(image, {width - 255, height - 4, 255, 4}, isLetter), 0);
    EXPECT_EQ(countOf(image, {width - 4, height - 22, 4, 22}, isLetter), 0);

    view->resize(200, 400);
    const QImage narrow = map().grabFramebuffer();
    const auto isDark = [](QRgb pixel) { return qGray(pixel) < 70; }; // as no tile is
    const int upper = narrow.height() - 38;
    EXPECT_EQ(countOf(narrow, {0, upper, 21, 14}, isDark), 0) << "the upper of two lines";
    EXPECT_GT(countOf(narrow, {21, upper, 79, 14}, isDark), 0) << "begins in sight";
}

TEST_F(WidgetMapPaintingTest, SaysAboveTheAttributionWhyThereAreNoTiles)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const auto letters = [this] {
        const QImage image = map().grabFramebuffer();
        return countOf(image, {image.width() - 100, image.height() - 46, 100, 18},
                       [](QRgb pixel) { return qGray(pixel) < 80; });
    };
    EXPECT_LT(letters(), 30) << "no server, no failure";
    CapturedDiagnostics lines;
    settings.setString("TileServer", "ftp://tiles.example/");
    EXPECT_TRUE(QTest::qWaitFor([&] { return letters() > 100; }, 5000));
    EXPECT_NE(lines.text().find("no map tile from ftp://tiles.example/"), std::string::npos);
    settings.setString("TileServer", "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return letters() < 30; }, 5000));
}

TEST_F(WidgetMapPaintingTest, ThePathUnderTheMouseIsMarkedAndNamed)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const double ratio = map().devicePixelRatioF();
    const QPointF onPath = windowOf(47.05, 8.1);
    const auto hasLine = [&](const QImage& image, const QPointF& mouse, int line) {
        constexpr int kGap = 24;
        constexpr int kHeight = 17;
        const QRectF area(mouse + QPointF(-60, kGap + line * kHeight), QSizeF(121, kHeight));
        const QRect pixels(QPointF(area.topLeft() * ratio).toPoint(),
                           (area.size() * ratio).toSize());
        const int dark = countOf(image, pixels, [](QRgb pixel) { return qGray(pixel) < 80; });
        return dark > 80 * ratio * ratio;
    };
    const QRgb mark = Palette::light().accent.rgb();
    const struct
    {
        const char* name;
        double beside; ///< logical pixels
        bool near;
    } rows[] = {
        {"on the path", 0.0, true}, {"near the path", 8.0, true}, {"off the path", 14.0, false}};
    for (const auto& row : rows) {
        const double along = std::sqrt(0.5) * row.beside; // away from it
        const QPointF place = onPath / ratio + QPointF(-along, -along);
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&map(), &move);
        const QImage image = map().grabFramebuffer();
        const QRect around(onPath.toPoint() - QPoint(20, 20), QSize(41, 41));
        EXPECT_EQ(
            countOf(image, around, [mark](QRgb pixel) { return QColor(pixel).rgb() == mark; }) > 9,
            row.near)
            << row.name;
        EXPECT_TRUE(hasLine(image, place, 0)) << row.name << ": where it is";
        EXPECT_EQ(hasLine(image, place, 1), row.near) << row.name << ": when it was there";
    }
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&map(), &leave);
    EXPECT_FALSE(hasLine(map().grabFramebuffer(), onPath / ratio, 0));
}

TEST_F(WidgetMapPaintingTest, TheScaleBarIsAsLongAsItSays)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    for (int step = 0; step < 6; ++step) {
        wheel(-120);
        const QImage image = map().grabFramebuffer();
        const double ratio = map().devicePixelRatioF();
        int longest = 0;
        for (int y = image.height() - qRound(24 * ratio); y < image.height(); ++y) {
            int run = 0;
            for (int x = 0; x < qRound(140 * ratio); ++x) {
                run = qGray(image.pixel(x, y)) < 60 ? run + 1 : 0;
                longest = std::max(longest, run);
            }
        }
        const MapScaleBar bar = MapTexts::scaleBar(110.0 * ratio * context().metresPerPixel, false);
        EXPECT_NEAR(longest * context().metresPerPixel, bar.metres, 2.0 * context().metresPerPixel)
            << bar.text.toStdString();
    }
}

TEST_F(WidgetMapPaintingTest, TheLegendKeepsOutOfTheWayOfTheAircraft)
{
    const std::vector<FlightPathPoint> points = pathOf({{47.0, 8.0}, {47.0, 8.4}});
    RecordData record;
    MapContext moved;
    WidgetMap widget(nullptr, moved, settings, {});
    widget.setFlightPath(&points);
    widget.setColoring(MapColoring::byAltitude(points, false));
    widget.setRecordData(&record);
    widget.resize(600, 400);
    widget.show();
    widget.grabFramebuffer(); // fitted
    /// Where the scale of colours is: a column of them, which the path itself never makes.
    const auto legend = [&widget] {
        const QImage image = widget.grabFramebuffer();
        for (int x = 0; x < image.width(); ++x) {
            int run = 0;
            for (int y = 0; y < image.height(); ++y) {
                run = isPath(image.pixel(x, y)) ? run + 1 : 0;
                if (run > 80 * widget.devicePixelRatioF()) {
                    return x < image.width() / 2 ? "left" : "right";
                }
            }
        }
        return "none";
    };
    const struct
    {
        const char* name;
        double right; ///< of the middle, part of the window
        double down;
        const char* place;
    } rows[] = {{"in the middle", 0.0, 0.0, "right"},
                {"lower right", 0.42, 0.2, "left"},
                {"back in the middle", 0.0, 0.0, "left"},
                {"lower left", -0.42, 0.2, "right"}};
    const double perPixel = moved.metresPerPixel / 111120.0;
    for (const auto& row : rows) {
        FlightPathPoint aircraft = points[0];
        aircraft.latitude = moved.centreLatitude - row.down * widget.height() * perPixel;
        aircraft.longitude =
            moved.centreLongitude +
            row.right * widget.width() * perPixel /
                std::cos(moved.centreLatitude * Tessel::Geodetic::kRadiansPerDegree);
        widget.setAcPosition(aircraft);
        EXPECT_STREQ(legend(), row.place) << row.name;
    }
}

/// The process starts itself again, since the ratio of a screen is fixed at start-up.
TEST(WidgetMapRatioTest, AllThatHoldsOnDenseScreensToo)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=*DrawsThePath*:*UnderTheMouse*:*ScaleBar*")});
    ASSERT_TRUE(child.waitForFinished(60000));
    const QByteArray said = child.readAll();
    EXPECT_TRUE(said.contains("[  PASSED  ] 3 tests.")) << said.constData();
}

} // namespace
} // namespace VELIX
