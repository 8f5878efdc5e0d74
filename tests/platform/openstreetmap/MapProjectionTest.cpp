#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/Graticule.h"
#include "platform/openstreetmap/TileUrl.h"
#include "platform/openstreetmap/TileView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace OpenStreet;

namespace {

MapProjection view(const GeoPoint& centre, double range, int width = 1200, int height = 800)
{
    MapProjection projection;
    projection.setCentre(centre);
    projection.setVisibleRange(range, range * height / width);
    projection.setWindowSize(width, height);
    return projection;
}

TEST(MapProjectionTest, WindowAndPlaceAgreeAtAllZoomsAndLatitudes)
{
    for (const double latitude : {-85.0, -60.0, -1.0, 0.0, 48.1, 84.9}) {
        for (const double longitude : {-180.0, -179.999, -12.0, 0.0, 11.5, 179.9999}) {
            for (double range = 50.0; range < 2.0e7; range *= 9.7) {
                const MapProjection projection = view({latitude, longitude}, range);
                for (const WindowPoint pixel :
                     {WindowPoint{0.0, 0.0}, {1200.0, 800.0}, {1199.5, 410.25}}) {
                    const GeoPoint place = projection.toGeo(pixel);
                    const WindowPoint back = projection.toWindow(place);
                    if (std::abs(place.latitude) < 85.0 &&
                        projection.metresPerPixelX() * 1200.0 < 2.0 * kMercatorHalf) {
                        EXPECT_NEAR(back.x, pixel.x, 0.01) << latitude << ' ' << range;
                        EXPECT_NEAR(back.y, pixel.y, 0.01) << latitude << ' ' << range;
                    }
                    EXPECT_GE(place.longitude, -180.0);
                    EXPECT_LT(place.longitude, 180.0);
                }
            }
        }
    }
}

TEST(MapProjectionTest, TheRangeIsGroundMetresAtTheCentre)
{
    // A nautical mile north is a minute of latitude; on the ground it is as long eastwards.
    const MapProjection projection = view({60.0, 10.0}, 120000.0);
    const double pixels = 1200.0 / 120000.0 * 111319.49; // of a degree on the map's sphere
    EXPECT_NEAR(projection.toWindow({60.5, 10.0}).y, 400.0 - pixels / 2.0, pixels * 0.01);
    EXPECT_NEAR(projection.toWindow({60.0, 11.0}).x, 600.0 + pixels * 0.5, 0.01);
    const WindowPoint east = view({-17.0, 179.9}, 50000.0).toWindow({-17.0, -179.9});
    EXPECT_TRUE(east.x > 600.0 && east.x < 1200.0) << "beyond the antimeridian is near";
}

TEST(MapProjectionTest, SenselessNumbersAreIgnored)
{
    MapProjection projection = view({48.0, 11.0}, 1000.0);
    projection.setCentre({std::nan(""), 11.0});
    projection.setVisibleRange(0.0, -5.0);
    projection.setVisibleRange(std::nan(""), 5.0);
    projection.setWindowSize(0, 10);
    EXPECT_EQ(projection.centre().latitude, 48.0);
    EXPECT_EQ(projection.rangeWidth(), 1000.0);
    EXPECT_EQ(projection.windowWidth(), 1200);
    EXPECT_TRUE(std::isfinite(projection.toWindow({90.0, 0.0}).y));
}

TEST(TileViewTest, ATilePixelCoversOneToTwoDevicePixels)
{
    for (double range = 50.0; range < 7.0e7; range *= 1.37) {
        const MapProjection projection = view({48.0, 11.0}, range);
        const int zoom = tileZoom(projection);
        const double pixel =
            2.0 * kMercatorHalf / (1 << zoom) / kTilePixels / projection.metresPerPixelX();
        if (zoom > 0 && zoom < kLargestZoom) {
            EXPECT_GE(pixel, 1.0) << range;
            EXPECT_LT(pixel, 2.0) << range;
        }
    }
    EXPECT_EQ(tileZoom(view({0.0, 0.0}, 50.0)), kLargestZoom);
    EXPECT_EQ(tileZoom(view({0.0, 0.0}, 7.0e7)), 1);
}

TEST(TileViewTest, VisibleTilesCoverTheWindowAndStartAtItsCentre)
{
    for (const GeoPoint& centre : {GeoPoint{48.0, 11.0}, {-16.5, 179.99}, {84.9, 0.0}}) {
        for (const double range : {300.0, 50000.0, 3.0e6}) {
            const MapProjection projection = view(centre, range);
            const std::vector<PlacedTile> tiles = visibleTiles(projection);
            ASSERT_FALSE(tiles.empty());
            EXPECT_LE(tiles.size(), 54U); // 1200 x 800 in tiles of at least 256 pixels
            double area = 0.0;
            for (const PlacedTile& tile : tiles) {
                const auto count = 1 << tile.address.zoom;
                EXPECT_TRUE(tile.address.x >= 0 && tile.address.x < count);
                EXPECT_TRUE(tile.address.y >= 0 && tile.address.y < count);
                const double left = std::max(tile.topLeft.x, 0.0);
                const double right = std::min(tile.bottomRight.x, 1200.0);
                const double top = std::max(tile.topLeft.y, 0.0);
                const double bottom = std::min(tile.bottomRight.y, 800.0);
                area += std::max(right - left, 0.0) * std::max(bottom - top, 0.0);
            }
            if (centre.latitude < 80.0) { // the map ends in the north
                EXPECT_NEAR(area, 1200.0 * 800.0, 1.0) << centre.longitude << ' ' << range;
            }
            const PlacedTile& first = tiles.front();
            EXPECT_TRUE(first.topLeft.x <= 600.0 + 256.0 && first.bottomRight.x >= 600.0 - 256.0);
        }
    }
}

TEST(TileViewTest, AWindowWiderThanTheWorldShowsItAgain)
{
    std::multiset<int> columns;
    for (const PlacedTile& tile : visibleTiles(view({0.0, 0.0}, 7.0e7))) {
        columns.insert(tile.address.y == 0 ? tile.address.x : -1);
    }
    EXPECT_EQ(columns.count(0) + columns.count(1) + columns.count(-1), columns.size());
    EXPECT_GT(columns.count(0) + columns.count(1), 2U);
}

TEST(TileViewTest, PartOfAnAncestor)
{
    using Part = std::array<double, 4>;
    EXPECT_EQ(partOfAncestor({3, 5, 2}, {3, 5, 2}), (Part{0.0, 0.0, 1.0, 1.0}));
    EXPECT_EQ(partOfAncestor({3, 5, 2}, {1, 1, 0}), (Part{0.25, 0.5, 0.5, 0.75}));
}

TEST(TileUrlTest, BaseAddressesAndPatterns)
{
    const TileAddress tile{7, 66, 42};
    const struct
    {
        const char* server;
        const char* expected;
    } rows[] = {
        {"http://tiles.example", "http://tiles.example/7/66/42.png"},
        {"http://tiles.example/osm/", "http://tiles.example/osm/7/66/42.png"},
        {"tiles.example:8080", "http://tiles.example:8080/7/66/42.png"},
        {"https://{s}.tiles.example/{z}/{x}/{y}@2x.png?key=1",
         "https://a.tiles.example/7/66/42@2x.png?key=1"},
        {"", ""},
        {"ftp://tiles.example", ""},
        {"file:///etc", ""},
        {"http://", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(tileUrl(QString::fromLatin1(row.server), tile).toString().toStdString(),
                  row.expected)
            << row.server;
    }
}

TEST(GraticuleTest, LinesAreAtRoundDegreesAndApart)
{
    for (double range = 100.0; range < 6.0e7; range *= 2.3) {
        const MapProjection projection = view({47.3, 179.9}, range);
        const double step = graticuleStep(projection, 140.0);
        double before = -1.0e9;
        for (const GraticuleLine& line : graticule(projection, step)) {
            if (line.meridian) {
                EXPECT_TRUE(line.position - before > 139.0 || step >= 30.0 || step < 1.01 / 3600.0)
                    << range;
                EXPECT_TRUE(line.position >= -0.01 && line.position <= 1200.01);
                before = line.position;
            }
        }
        EXPECT_TRUE(before >= 0.0 || range < 5000.0) << range;
    }
    const struct
    {
        double degrees;
        double step;
        bool isMeridian;
        const char* label;
    } rows[] = {{-11.5, 0.5, true, "11\u00b0 30' W"},
                {48.0, 5.0, false, "48\u00b0 N"},
                {0.0, 5.0, true, "0\u00b0"},
                {-0.5 - 1.0 / 3600.0, 1.0 / 3600.0, false, "0\u00b0 30' 01\" S"}};
    for (const auto& row : rows) {
        EXPECT_EQ(graticuleLabel(row.degrees, row.step, row.isMeridian),
                  QString::fromUtf8(row.label));
    }
}

} // namespace
