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

TEST_F(WidgetMapPaintingTest, SaysAboveTheAttributionWhyThereAreNoTiles)
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

TEST_F(WidgetMapPaintingTest, ThePathUnderTheMouseIsMarkedAndNamed)
{
    load({{47.0, 8.0}, {47.1, 8.2}, {47.0, 8.4}});
    show();
    const double ratio = map().devicePixelRatioF();
    const QPointF onPath = windowOf(47.05, 8.1);
    const auto pixel = [](const QImage& image, const QPointF& place) {
        return QColor(image.pixel(place.toPoint())).name();
    };
    const auto hasLine = [&](const QImage& image, const QPointF& mouse, int line) {
        constexpr int kGap = 24;
        constexpr int kHeight = 17;
        int dark = 0;
        for (int x = -60; x <= 60; ++x) {
            for (int y = kGap + line * kHeight; y < kGap + (line + 1) * kHeight; ++y) {
                dark += qGray(image.pixel(((mouse + QPointF(x, y)) * ratio).toPoint())) < 80;
            }
        }
        return dark > 80;
    };
    const QString mark = Palette::light().accent.name();
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
        int marks = 0;
        for (int x = -20; x <= 20; ++x) {
            for (int y = -20; y <= 20; ++y) {
                marks += pixel(image, onPath + QPointF(x, y)) == mark ? 1 : 0;
            }
        }
        EXPECT_EQ(marks > 9, row.near) << row.name;
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
    /// Where the scale of colours stands: a column of them, which the path itself never makes.
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
            moved.centreLongitude + row.right * widget.width() * perPixel /
                                        std::cos(moved.centreLatitude * 0.017453292519943295);
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
