#include "core/MapSettings.h"
#include "core/Property.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"
#include "views/map/model/MapChanges.h"
#include "views/map/model/MapColoring.h"
#include "views/map/model/MapContext.h"
#include "views/map/model/MapFollower.h"
#include "views/map/model/MapNavigation.h"
#include "views/map/model/MapPath.h"
#include "views/map/model/MapPathOutline.h"
#include "views/map/model/MapTexts.h"
#include "views/map/model/MapTileNotice.h"
#include "views/map/model/MapTrack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace VELIX {
namespace {

using Test::CapturedDiagnostics;
using Test::ProfileBuilder;
using Test::RecordBuilder;

FlightPathPoint at(double time, double latitude, double longitude, double course = 0.0)
{
    FlightPathPoint point;
    point.time = time;
    point.latitude = latitude;
    point.longitude = longitude;
    point.altitude = 100.0 * time;
    point.course = course;
    return point;
}

/// From Fiji eastwards across the antimeridian.
const std::vector<FlightPathPoint> kAcross{at(10.0, -17.0, 179.0, 350.0),
                                           at(20.0, -17.5, -179.0, 10.0)};

TEST(MapTrackTest, FindsTheAircraftBetweenItsPositions)
{
    const struct
    {
        const char* name;
        double time;
        double latitude;
        double longitude;
        double course;
    } rows[] = {{"before the record", 4.9, 0.0, 0.0, 0.0},
                {"before the first position", 5.0, -17.0, 179.0, 350.0},
                {"at a position", 10.0, -17.0, 179.0, 350.0},
                {"west of north", 12.5, -17.125, 179.5, 355.0},
                {"the short way round", 17.5, -17.375, -179.5, 5.0},
                {"on the antimeridian", 15.0, -17.25, 180.0, 0.0},
                {"after the last position", 25.0, -17.5, -179.0, 10.0},
                {"after the record", 25.1, 0.0, 0.0, 0.0},
                {"no time", std::nan(""), 0.0, 0.0, 0.0}};
    for (const auto& row : rows) {
        const FlightPathPoint point = MapTrack::positionAt(kAcross, 5.0, 25.0, row.time);
        EXPECT_NEAR(point.latitude, row.latitude, 1e-9) << row.name;
        EXPECT_NEAR(std::remainder(point.longitude - row.longitude, 360.0), 0.0, 1e-9) << row.name;
        EXPECT_NEAR(point.course, row.course, 1e-9) << row.name;
    }
    EXPECT_TRUE(MapTrack::isEmpty(MapTrack::positionAt({}, 0.0, 9.0, 5.0)));
}

TEST(MapNavigationTest, NoStepLeavesTheRangesOfTheMap)
{
    using namespace MapNavigation;
    const std::pair<double, double> rows[] = {
        {keyZoomed(1030.0, 1), 1000.0},      {keyZoomed(1000.0, -1), 1030.0},
        {wheelZoomed(1100.0, 1), 1000.0},    {wheelZoomed(1000.0, 0), 1100.0},
        {wheelZoomed(1000.0, -120), 1100.0}, {keyZoomed(50.5, 1), 50.0},
        {keyZoomed(6.9e7, -1), 7.0e7},       {wheelZoomed(51.0, 120), 50.0},
        {wheelZoomed(6.9e7, -120), 7.0e7},   {clampedRange(std::nan("")), 7.0e7}};
    for (const auto& [range, expected] : rows) {
        EXPECT_DOUBLE_EQ(range, expected);
    }
    MapContext context;
    setRange(context, 10.0, 400, 300);
    EXPECT_EQ(context.visibleRange, 50.0);
    EXPECT_EQ(context.verticalRange, 37.5);
    EXPECT_EQ(context.metresPerPixel, 0.125);
    EXPECT_EQ(context.halfDiagonal, 31.25);

    context.visibleRange = 111120.0;
    setCentre(context, 60.0, 179.99);
    keyPan(context, 1, 1);
    EXPECT_NEAR(context.centreLatitude, 60.015, 1e-12);
    EXPECT_NEAR(context.centreLongitude, -179.98, 1e-6);
}

TEST(MapNavigationTest, FitsTheWholePath)
{
    constexpr double kDegree = 1.2 * 60.0 * 1852.0;
    const struct
    {
        MapExtent extent;
        double aspect;
        double latitude;
        double longitude;
        double range;
    } rows[] = {{{47.0, 47.1, 8.0, 9.0}, 2.0, 47.05, 8.5, kDegree},
                {{47.0, 48.0, 8.0, 8.1}, 2.0, 47.5, 8.05, 2.0 * kDegree}, // too high for the window
                {MapPath(kAcross).extent(), 1.0, -17.25, 180.0, 2.0 * kDegree},
                {{47.0, 47.0, 8.0, 8.0}, 1.0, 47.0, 8.0, 500.0}}; // it never left its stand
    for (const auto& row : rows) {
        MapContext context;
        MapNavigation::fit(context, row.extent, row.aspect);
        EXPECT_NEAR(context.centreLatitude, row.latitude, 0.01);
        EXPECT_NEAR(std::remainder(context.centreLongitude - row.longitude, 360.0), 0.0, 1e-9);
        EXPECT_NEAR(context.visibleRange, row.range, 1e-6) << row.latitude;
    }
}

TEST(MapChangesTest, DrawsWhatChangedOnceAndOtherwiseWhenTheFrameIsOld)
{
    using Part = MapChanges::Part;
    MapChanges changes;
    EXPECT_TRUE(changes.isDue(false, 0.0)) << "the first frame";
    changes.mark(Part::Lines);
    EXPECT_TRUE(changes.take(Part::Lines));
    EXPECT_FALSE(changes.take(Part::Lines) || changes.take(Part::View));
    changes.beginFrame(100.0);
    const struct
    {
        bool moving;
        bool loading;
        double now;
        bool isDue;
    } rows[] = {{false, false, 100.9, false}, {false, false, 101.1, true},
                {false, false, 98.9, true},   {true, false, 100.0, true},
                {false, true, 100.03, false}, {false, true, 100.05, true}};
    for (const auto& row : rows) {
        changes.setLoading(row.loading);
        EXPECT_EQ(changes.isDue(row.moving, row.now), row.isDue) << row.now;
    }
    changes.setLoading(false);
    changes.mark(Part::View);
    EXPECT_TRUE(changes.isDue(false, 100.0));
}

TEST(MapFollowerTest, GlidesTheShortWayAndArrives)
{
    MapContext context;
    MapNavigation::setCentre(context, 10.0, 179.5);
    context.visibleRange = 50000.0;
    MapFollower follower;
    follower.setRange(2000.0);
    ASSERT_TRUE(follower.step(context, 10.0, -179.5));
    const double first = 1.0 - std::exp(-0.02 / 0.2); // of the way, with each frame
    EXPECT_NEAR(std::remainder(context.centreLongitude - 179.5, 360.0), first, 1e-9);
    EXPECT_NEAR(context.visibleRange, 50000.0 - 48000.0 * first, 1e-6);
    int frames = 1;
    while (follower.step(context, 10.0, -179.5)) {
        ASSERT_LT(++frames, 200);
    }
    EXPECT_GT(frames, 50);
    EXPECT_DOUBLE_EQ(context.centreLongitude, -179.5);
    EXPECT_DOUBLE_EQ(context.visibleRange, 2000.0);
    EXPECT_FALSE(follower.step(context, 10.00008, -179.5)); // 9 m are no way
    EXPECT_DOUBLE_EQ(context.centreLatitude, 10.00008);
}

TEST(MapPathTest, FindsTheNearestPlaceAcrossTheAntimeridian)
{
    const MapPath path(kAcross);
    EXPECT_NEAR(path.points().back().x, 222638.98, 0.01); // two degrees on, not 358 back
    EXPECT_NEAR(path.middleLongitude(), 180.0, 1e-9);
    for (const double longitude : {-179.5, 180.5}) {
        const auto place = path.nearest(-17.375, longitude, 1000.0);
        ASSERT_TRUE(place);
        EXPECT_EQ(place->index, 0U);
        EXPECT_NEAR(place->fraction, 0.75, 1e-3);
    }
    EXPECT_FALSE(path.nearest(-17.6, -179.5, 1000.0));
    EXPECT_FALSE(MapPath().nearest(0.0, 0.0, 1e9));

    std::vector<FlightPathPoint> longPath;
    for (int i = 0; i < 1000; ++i) {
        longPath.push_back(at(i, 47.0 + i * 0.001, 8.0 + i * 0.0001));
    }
    for (const double farthest : {20.0, 1000.0}) {
        const auto place = MapPath(longPath).nearest(47.2555, 8.02555, farthest);
        ASSERT_TRUE(place);
        EXPECT_EQ(place->index, 255U) << "between two boxes";
        EXPECT_NEAR(place->fraction, 0.5, 1e-3);
    }
}

TEST(MapPathOutlineTest, LeavesOutWhatNobodySees)
{
    // Along a line with a little noise, back on it, then round two circles of 100 m.
    std::vector<MapPath::Point> points;
    for (int i = 0; i <= 1500; ++i) {
        points.push_back({1000.0 - std::abs(1000.0 - i), i <= 1000 ? 0.2 * (i % 3) : 0.0});
    }
    for (const double radius : {100.0, -100.0}) { // to the left, then to the right
        for (double angle = 0.0; angle < 6.3; angle += 1.0 / 573.0) {
            points.push_back({500.0 + 100.0 * std::sin(angle), radius - radius * std::cos(angle)});
        }
    }
    std::vector<QRgb> colors(points.size(), qRgb(0, 0, 200));
    colors[300] = qRgb(255, 0, 0);
    const std::vector<std::size_t> kept = mapPathOutline(points, colors, 1.0);
    EXPECT_LT(kept.size(), 90U);
    EXPECT_EQ(kept.front(), 0U);
    EXPECT_EQ(kept.back(), points.size() - 1);
    for (const std::size_t colored : {299U, 300U, 301U}) {
        EXPECT_EQ(std::count(kept.begin(), kept.end(), colored), 1) << colored;
    }
    EXPECT_TRUE(std::any_of(kept.begin(), kept.end(), [&](auto i) { return points[i].x >= 999.0; }))
        << "where the path turns back";
    std::size_t next = 1;
    for (std::size_t i = 0; i < points.size(); ++i) {
        next += i > kept[next] ? 1 : 0;
        const MapPath::Point& from = points[kept[next - 1]];
        const MapPath::Point& to = points[kept[next]];
        const double across =
            (points[i].x - from.x) * (to.y - from.y) - (points[i].y - from.y) * (to.x - from.x);
        EXPECT_LE(std::abs(across) / std::hypot(to.x - from.x, to.y - from.y), 1.001) << i;
    }
    EXPECT_TRUE(mapPathOutline({}, {}, 1.0).empty());
    EXPECT_EQ(mapPathOutline({{1.0, 1.0}}, {}, 0.0).size(), 1U);
}

TEST(MapColoringTest, ShowsValuesAlongTheScaleAndThresholdsInTheirColour)
{
    const MapColoring altitude = MapColoring::byAltitude(kAcross, true);
    EXPECT_EQ(altitude.title, QStringLiteral("Altitude [ft]"));
    EXPECT_EQ(altitude.lowest, QStringLiteral("3281"));
    EXPECT_EQ(altitude.highest, QStringLiteral("6562"));
    EXPECT_EQ(altitude.colors, (std::vector<QRgb>{MapColoring::scale(0), MapColoring::scale(1)}));

    Profile profile;
    ProfileBuilder builder;
    builder.threshold("Hot", {{90.0, "yellow", "WARNING"}});
    builder.device("EMU").parameter(500, QStringLiteral("Oil"), "FLOAT");
    builder.set("thresholdId", "Hot").set("unitMetric", "C");
    ASSERT_TRUE(builder.load(profile));
    const ProfileParameter& oil = profile.data().devices[0].parameters.at(500);
    RecordBuilder record;
    record.id(500).at(12.0).floatValue(20.0F).at(14.0).floatValue(60.0F).at(20.0).floatValue(95.0F);
    std::vector<FlightPathPoint> path;
    for (const double time : {10.0, 13.0, 14.0, 19.0, 20.0}) {
        path.push_back(at(time, 47.0, 8.0));
    }
    const MapColoring byOil = MapColoring::byParameter(path, *record.data(), profile, oil);
    EXPECT_EQ(byOil.title, QStringLiteral("Oil [C]"));
    EXPECT_EQ(byOil.lowest + byOil.highest, QStringLiteral("2095"));
    const QRgb cold = MapColoring::scale(0.0);
    const QRgb warm = MapColoring::scale(40.0 / 75.0);
    EXPECT_EQ(byOil.colors, (std::vector<QRgb>{cold, cold, warm, warm, qRgb(255, 255, 0)}));
    ASSERT_EQ(byOil.passed.size(), 1U);
    EXPECT_EQ(byOil.passed[0].label, QStringLiteral("Warning"));
    EXPECT_EQ(byOil.passed[0].color, qRgb(255, 255, 0));

    const RecordBuilder without;
    EXPECT_EQ(MapColoring::byParameter(path, *without.data(), profile, oil).colors.size(), 5U);
}

TEST(MapSettingsTest, NoLimitEmptiesTheFolderOfTiles)
{
    const std::pair<const char*, int> rows[] = {{"80", 80},   {"1", 1},           {"0", 500},
                                                {"-20", 500}, {"80MB", 80},       {"much", 500},
                                                {"", 500},    {"4294967295", 500}};
    for (const auto& [stored, limit] : rows) {
        Property settings;
        settings.setString("TileCacheLimit", stored);
        EXPECT_EQ(MapSettings::read(settings).cacheLimit, limit) << stored;
    }
}

TEST(MapColoringTest, LegendNamesTheValuesOfAnEnumeration)
{
    Profile profile;
    ProfileBuilder builder;
    builder.enumeration("Mode", {{0, "Off"}, {2, "In control"}});
    builder.device("EMU").parameter(500, QStringLiteral("Mode"), "UCHAR").set("enumId", "Mode");
    ASSERT_TRUE(builder.load(profile));
    const ProfileParameter& mode = profile.data().devices[0].parameters.at(500);
    const auto legend = [&](std::initializer_list<std::uint8_t> values) {
        RecordBuilder record;
        std::vector<FlightPathPoint> path;
        double time = 10.0;
        for (const std::uint8_t value : values) {
            record.id(500).at(time).payload(eUChar, std::uint32_t{value} << 24);
            path.push_back(at(time, 47.0, 8.0));
            time += 1.0;
        }
        const MapColoring coloring = MapColoring::byParameter(path, *record.data(), profile, mode);
        return coloring.lowest + QLatin1Char('|') + coloring.highest;
    };
    EXPECT_EQ(legend({2, 0, 2}), QStringLiteral("Off|In control"));
    EXPECT_EQ(legend({0, 7}), QStringLiteral("Off|7")) << "without a name";
    EXPECT_EQ(legend({2, 2}), QStringLiteral("In control|")) << "one value has one label";
}

TEST(MapTileNoticeTest, SaysWhyThereAreNoTilesOnceAllRequestsHaveFailed)
{
    CapturedDiagnostics lines;
    MapTileNotice notice;
    EXPECT_TRUE(notice.update(false, false).isEmpty()) << "nothing failed";
    notice.fail("http://a/1/0/0.png", "HTTP status 403");
    notice.fail("http://a/1/0/1.png", "HTTP status 403");
    EXPECT_EQ(lines.text(), "no map tile from http://a/1/0/0.png: HTTP status 403\n");
    const struct
    {
        const char* when;
        bool inSight;
        bool loading;
        bool shown;
    } rows[] = {{"others may come", false, true, false}, {"all failed", false, false, true},
                {"tried again", false, true, true},      {"a tile came", true, true, false},
                {"elsewhere", false, true, false},       {"failed there", false, false, true}};
    for (const auto& row : rows) {
        EXPECT_EQ(!notice.update(row.inSight, row.loading).isEmpty(), row.shown) << row.when;
    }
    EXPECT_EQ(notice.update(false, false), QStringLiteral("No map tiles: HTTP status 403"));
    notice.reset();
    EXPECT_TRUE(notice.update(false, false).isEmpty()) << "another server";
}

TEST(MapTextsTest, WritesLengthsAndPlaces)
{
    const struct
    {
        double most;
        bool imperial;
        const char* text;
        double metres;
    } rows[] = {{7.3, false, "5 m", 5.0},       {1000.0, false, "1 km", 1000.0},
                {999.0, false, "500 m", 500.0}, {4.9e6, false, "2000 km", 2.0e6},
                {5000.0, true, "2 NM", 3704.0}, {600.0, true, "0.2 NM", 370.4},
                {100.0, true, "200 ft", 60.96}, {0.0, true, "", 0.0}};
    for (const auto& row : rows) {
        const MapScaleBar bar = MapTexts::scaleBar(row.most, row.imperial);
        EXPECT_EQ(bar.text.toStdString(), row.text);
        EXPECT_NEAR(bar.metres, row.metres, 1e-9);
    }
    EXPECT_EQ(MapTexts::position(47.5, -8.25).toStdString(), "47.50000° N  8.25000° W");
    EXPECT_EQ(MapTexts::moment(at(61.25, 0, 0), false).toStdString(), "00:01:01.2  6125 m");
    EXPECT_EQ(MapTexts::moment(at(61.25, 0, 0), true).toStdString(), "00:01:01.2  20095 ft");
}

} // namespace
} // namespace VELIX
