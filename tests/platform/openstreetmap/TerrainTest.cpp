#include "platform/openstreetmap/CoastLines.h"
#include "platform/openstreetmap/HillShading.h"
#include "platform/openstreetmap/ShadeSource.h"
#include "platform/openstreetmap/TerrainStore.h"
#include "tests/platform/openstreetmap/WrittenTerrain.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

using namespace OpenStreet;
using OpenStreet::Test::writeTerrain;

namespace {

TEST(TerrainStoreTest, HeightsAreWhereTheyBelong)
{
    EXPECT_EQ(TerrainStore::fileName(48, 11), QStringLiteral("N48E011.hgt"));
    EXPECT_EQ(TerrainStore::fileName(-1, -72), QStringLiteral("S01W072.hgt"));
    for (const int side : {1201, 3601}) {
        const QTemporaryDir dir;
        writeTerrain(dir.filePath(QStringLiteral("S01W072.hgt")), side, [](double x, double y) {
            return x > 0.9 && y > 0.9 ? -32768
                                      : static_cast<int>(std::lround(1000.0 * x + 2000.0 * y));
        });
        TerrainStore terrain(dir.path());
        EXPECT_NEAR(terrain.height({-0.25, -71.75}), 250.0 + 500.0, 1.0);
        EXPECT_NEAR(terrain.height({-0.25, 360.0 - 71.75}), 750.0, 1.0);
        EXPECT_TRUE(std::isnan(terrain.height({-0.95, -71.05}))) << "a hole";
        EXPECT_TRUE(std::isnan(terrain.height({0.5, -71.5}))) << "no file";
        EXPECT_TRUE(terrain.covers({-0.5, -71.5}));
    }
    const QTemporaryDir dir;
    QFile odd(dir.filePath(QStringLiteral("N48E011.hgt")));
    ASSERT_TRUE(odd.open(QIODevice::WriteOnly));
    odd.write(QByteArray(1000, 'x'));
    odd.close();
    EXPECT_FALSE(TerrainStore(dir.path()).covers({48.5, 11.5}));
}

TEST(TerrainStoreTest, AFileThatShrinksWhileItIsOpenHasHoles)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("N48E011.hgt"));
    writeTerrain(path, 1201, [](double, double) { return 500; });
    TerrainStore terrain(dir.path());
    EXPECT_NEAR(terrain.height({48.5, 11.5}), 500.0, 0.1);
    ASSERT_TRUE(QFile::resize(path, 1201 * 2 * 100));
    EXPECT_TRUE(std::isnan(terrain.height({48.1, 11.5})));
    EXPECT_NEAR(terrain.height({48.95, 11.5}), 500.0, 0.1);
}

TEST(TerrainStoreTest, GroundIsRoundBetweenThePosts)
{
    const QTemporaryDir dir;
    const auto bowl = [](double column, double row) {
        return std::min(std::pow(column - 600.0, 2.0) + std::pow(row - 600.0, 2.0), 30000.0);
    };
    writeTerrain(dir.filePath(QStringLiteral("N48E011.hgt")), 1201, [&](double x, double y) {
        const bool isHole = x == 0.5 && y == 0.5;
        return isHole ? -32768 : static_cast<int>(std::lround(bowl(x * 1200.0, y * 1200.0)));
    });
    TerrainStore terrain(dir.path());
    const auto height = [&](double column, double row) {
        return terrain.height({49.0 - row / 1200.0, 11.0 + column / 1200.0});
    };
    for (const double column : {605.0, 610.5, 620.25, 580.75}) {
        EXPECT_NEAR(height(column, 612.5), bowl(column, 612.5), 0.01) << "no facets, " << column;
    }
    EXPECT_NEAR(height(601.5, 601.5), bowl(601.5, 601.5), 0.5) << "beside a hole";
    EXPECT_TRUE(std::isnan(height(600.5, 600.5)));
    EXPECT_NEAR(height(1199.5, 0.5), 30000.0, 0.01) << "at the corner of the file";
}

HeightGrid slope(double east, double north)
{
    HeightGrid grid;
    grid.columns = 3;
    grid.rows = 3;
    grid.spacingX = 10.0;
    grid.spacingY = 10.0;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            grid.heights.push_back(
                static_cast<float>(100.0 + 10.0 * (column * east - row * north)));
        }
    }
    return grid;
}

TEST(HillShadingTest, SlopesTowardsTheLightAreBrighter)
{
    ShadingStyle full;
    full.factor = 1.0;
    EXPECT_NEAR(shadeAt(slope(0.0, 0.0), 1, 1, full), 1.0, 1e-9) << "level ground";
    // Rising eastwards by 45 degrees it faces west; the light comes from the north-west at a
    // height of 35.26 degrees: the angle between them decides.
    const double facing = (1.0 + 1.0) / (std::sqrt(3.0) * std::sqrt(2.0)) * std::sqrt(3.0);
    EXPECT_NEAR(shadeAt(slope(1.0, 0.0), 1, 1, full), facing, 1e-6);
    EXPECT_NEAR(shadeAt(slope(-1.0, 0.0), 1, 1, full), 0.0, 1e-6);
    EXPECT_GT(shadeAt(slope(0.0, -0.3), 1, 1, full), 1.0) << "faces north";

    const std::tuple<double ShadingStyle::*, double, double> rows[] = {
        {&ShadingStyle::contrast, 0.0, 1.0},
        {&ShadingStyle::brightness, 0.5, 0.5 * facing},
        {&ShadingStyle::factor, 0.0, 1.0},
        {&ShadingStyle::lightZ, -1.0, 1.0}};
    for (const auto& [member, value, shade] : rows) {
        ShadingStyle style = full;
        style.*member = value;
        EXPECT_NEAR(shadeAt(slope(1.0, 0.0), 1, 1, style), shade, 1e-6) << value;
    }
    HeightGrid hole = slope(1.0, 0.0);
    hole.heights[0] = std::nanf("");
    EXPECT_NEAR(shadeAt(hole, 1, 1, full), 1.0, 1e-9);
}

TEST(HillShadingTest, ATileShowsItsHills)
{
    const QTemporaryDir dir;
    // A ridge from north to south through the middle of the square degree.
    writeTerrain(dir.filePath(QStringLiteral("N48E011.hgt")), 1201, [](double x, double) {
        return static_cast<int>(std::lround(20000.0 * (0.5 - std::abs(x - 0.5))));
    });
    TerrainStore terrain(dir.path());
    // The tile of zoom 10 that holds 48.5 N 11.5 E.
    const MercatorPoint ridge = toMercator({48.5, 11.5});
    const double size = 2.0 * kMercatorHalf / 1024;
    const TileAddress tile{10, static_cast<int>((ridge.x + kMercatorHalf) / size),
                           static_cast<int>((kMercatorHalf - ridge.y) / size)};
    const QImage shade = shadeTile(terrain, tile, {});
    ASSERT_FALSE(shade.isNull());
    const int middle = static_cast<int>((ridge.x + kMercatorHalf - tile.x * size) / size * 256);
    const QColor west = shade.pixelColor(std::max(middle - 20, 0), 128);
    const QColor east = shade.pixelColor(std::min(middle + 20, 255), 128);
    EXPECT_EQ(west.value(), 255) << "lit";
    EXPECT_EQ(east.value(), 0) << "dark";
    EXPECT_GT(east.alpha(), 20);
    EXPECT_TRUE(shadeTile(terrain, {10, 0, 0}, {}).isNull());
    EXPECT_TRUE(shadeTile(terrain, {4, 8, 5}, {}).isNull());
}

QByteArray coast(const std::vector<std::pair<int, int>>& points)
{
    QByteArray bytes("COAST1\n");
    const auto append = [&bytes](qint32 number) {
        number = qToLittleEndian(number);
        bytes.append(reinterpret_cast<const char*>(&number), 4);
    };
    append(static_cast<qint32>(points.size()));
    for (const auto& [longitude, latitude] : points) {
        append(longitude);
        append(latitude);
    }
    return bytes;
}

TEST(ShadeSourceTest, WhatHasLeftTheViewIsNotComputed)
{
    std::vector<TileAddress> tiles;
    tiles.reserve(50);
    for (int x = 0; x < 50; ++x) {
        tiles.push_back({11, 1000 + x, 700});
    }
    ShadeSource source;
    source.want(tiles);
    EXPECT_EQ(source.loading(), 50);
    const TileAddress elsewhere{11, 300, 300};
    source.want({elsewhere});
    EXPECT_LE(source.loading(), 2) << "the one that was begun, and the new one";
    QElapsedTimer clock;
    clock.start();
    while (source.loading() > 0 && clock.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    const auto arrived = source.takeArrived();
    ASSERT_FALSE(arrived.empty());
    EXPECT_EQ(arrived.back().first.x, elsewhere.x);
}

TEST(CoastLinesTest, OnlyWhatTheWindowShowsIsDrawn)
{
    CoastLines lines;
    const QByteArray file =
        coast({{179'000'000, 0}, {179'500'000, 100'000}, {10'000'000, 50'000'000}});
    ASSERT_TRUE(lines.parse(file));
    MapProjection projection;
    projection.setCentre({0.0, -179.9});
    projection.setWindowSize(1000, 500);
    projection.setVisibleRange(400000.0, 200000.0);
    const std::vector<WindowPoint> seen = lines.segments(projection);
    ASSERT_EQ(seen.size(), 4U) << "the first segment, and the long one that leaves from it";
    EXPECT_LT(seen[0].x, 500.0) << "on the other side of the antimeridian, west of the centre";
    EXPECT_GT(seen[0].x, -1000.0);
    projection.setCentre({-60.0, 30.0});
    EXPECT_TRUE(lines.segments(projection).empty());

    EXPECT_FALSE(lines.parse(file.left(file.size() - 3)));
    EXPECT_TRUE(lines.lines().empty());
    EXPECT_FALSE(lines.parse("COAST2\n"));
    EXPECT_FALSE(lines.parse(QByteArray("COAST1\n\xff\xff\xff\xff", 11)));
}

} // namespace
