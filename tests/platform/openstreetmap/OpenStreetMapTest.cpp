#include "platform/openstreetmap/OpenStreetMap.h"

#include "platform/openstreetmap/MapProjection.h"
#include "platform/openstreetmap/TileStore.h"
#include "tests/platform/openstreetmap/WrittenTerrain.h"
#include "tests/support/TileServer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using OpenStreet::OpenStreetMap;
using OpenStreet::TileAddress;
using OpenStreet::TileStore;
using OpenStreet::Test::writeTerrain;
using VELIX::Test::TileServer;

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 400;

/// A map that looks at the upper right corner of tile 8/136/88 at one device pixel a tile pixel.
class OpenStreetMapTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mSurface.create();
        ASSERT_TRUE(mContext.create());
        ASSERT_TRUE(mContext.makeCurrent(&mSurface));
        mTarget = std::make_unique<QOpenGLFramebufferObject>(kWidth, kHeight);
        mTarget->bind();
        mContext.functions()->glViewport(0, 0, kWidth, kHeight);
        mMap = std::make_unique<OpenStreetMap>();
        mMap->setTileDirectory(mDir.path().toUtf8().constData());
        mMap->setTileServer(mServer.url().toUtf8().constData());
        mMap->setWindowSize(kWidth, kHeight);
        lookAt(8, 137.0, 88.5);
    }

    void TearDown() override
    {
        mMap.reset();
        EXPECT_EQ(mContext.functions()->glGetError(), 0U);
        mTarget.reset();
        mContext.doneCurrent();
    }

    /// Centres on a place given in tiles, a little nearer than a pixel a pixel.
    void lookAt(int zoom, double x, double y)
    {
        const double tile = 2.0 * OpenStreet::kMercatorHalf / std::pow(2.0, zoom);
        const OpenStreet::GeoPoint centre = OpenStreet::fromMercator(
            {x * tile - OpenStreet::kMercatorHalf, OpenStreet::kMercatorHalf - y * tile});
        const double pixel = tile / 256.0 * std::cos(centre.latitude * std::acos(-1.0) / 180.0);
        mMap->setPosition(centre.latitude, centre.longitude, 0.0);
        mMap->setVisibleRange(kWidth * pixel * 0.99, kHeight * pixel * 0.99);
    }

    QImage render()
    {
        mContext.functions()->glClearColor(1.0F, 0.0F, 1.0F, 1.0F);
        mContext.functions()->glClear(GL_COLOR_BUFFER_BIT);
        mMap->render();
        return mTarget->toImage();
    }
    /// Draws until everything that can come has come.
    QImage settled()
    {
        QElapsedTimer clock;
        clock.start();
        do {
            render();
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        } while (mMap->nrLoadingTiles() > 0 && clock.elapsed() < 60000);
        EXPECT_EQ(mMap->nrLoadingTiles(), 0);
        return render();
    }

    /// Of any kind, by their names, which are given out from 1 on.
    int glObjects()
    {
        constexpr GLuint kMost = 3000;
        QOpenGLFunctions& gl = *mContext.functions();
        int count = 0;
        for (GLuint name = 1; name < kMost; ++name) {
            count += gl.glIsTexture(name) + gl.glIsBuffer(name) + gl.glIsProgram(name) +
                     gl.glIsShader(name) + gl.glIsFramebuffer(name) + gl.glIsRenderbuffer(name);
        }
        return count;
    }

    QTemporaryDir mDir;
    TileServer mServer;
    QOffscreenSurface mSurface;
    QOpenGLContext mContext;
    std::unique_ptr<QOpenGLFramebufferObject> mTarget;
    std::unique_ptr<OpenStreetMap> mMap;
};

TEST_F(OpenStreetMapTest, TilesAppearWhereTheyBelong)
{
    const QImage image = settled();
    EXPECT_EQ(image.pixelColor(200, 200), TileServer::tileColor(8, 136, 88));
    EXPECT_EQ(image.pixelColor(400, 200), TileServer::tileColor(8, 137, 88));
    EXPECT_EQ(image.pixelColor(400, 20), TileServer::tileColor(8, 137, 87));
    EXPECT_EQ(image.pixelColor(297, 200), TileServer::tileColor(8, 136, 88));
    EXPECT_EQ(image.pixelColor(302, 200), TileServer::tileColor(8, 137, 88));
    for (int y = 0; y < kHeight; y += 7) {
        for (int x = 0; x < kWidth; x += 7) {
            ASSERT_EQ(image.pixelColor(x, y).red(), TileServer::tileColor(8, 0, 0).red())
                << x << ' ' << y << ": no seam, no hole";
        }
    }
}

TEST_F(OpenStreetMapTest, ZoomingNeverShowsHoles)
{
    settled();
    mServer.setMode(TileServer::Mode::Silent);
    lookAt(10, 137.0 * 4, 88.5 * 4);
    QImage image = render();
    EXPECT_EQ(image.pixelColor(200, 200), TileServer::tileColor(8, 136, 88)) << "an ancestor";
    EXPECT_EQ(image.pixelColor(400, 200), TileServer::tileColor(8, 137, 88));
    lookAt(7, 137.0 / 2, 88.5 / 2);
    image = render();
    EXPECT_EQ(image.pixelColor(280, 200), TileServer::tileColor(8, 136, 88)) << "descendants";
    EXPECT_TRUE(mMap->hasTiles());
    EXPECT_EQ(image.pixelColor(320, 200), TileServer::tileColor(8, 137, 88));
}

TEST_F(OpenStreetMapTest, WithoutServerTheDiskStandsInAndElseTheOutlineIsDrawn)
{
    mServer.stop();
    ASSERT_TRUE(TileStore(mDir.path()).write({6, 34, 22}, {TileServer::tile(6, 34, 22), {}}));
    mMap->setLabelFont(nullptr, 0, 12);
    QImage image = settled();
    image = settled(); // the ancestors are looked for one after the other
    image = settled();
    EXPECT_EQ(image.pixelColor(400, 200), TileServer::tileColor(6, 34, 22));
    lookAt(8, 20.0, 20.0);
    image = settled();
    const QColor background = image.pixelColor(301, 203);
    EXPECT_GT(background.lightness(), 180);
    EXPECT_NE(background, QColor(255, 0, 255));
    int lines = 0;
    for (int x = 0; x < kWidth; ++x) {
        lines += image.pixelColor(x, 203) != background ? 1 : 0;
    }
    EXPECT_GE(lines, 2) << "meridians";
    EXPECT_LT(lines, 60);
}

TEST_F(OpenStreetMapTest, WhatArrivesIsAddedToTheFrameAsIfAllWereDrawn)
{
    const auto complete = [this] {
        lookAt(8, 20.0, 20.0);
        render();
        lookAt(10, 548.0, 354.0);
        return render();
    };
    ASSERT_TRUE(TileStore(mDir.path()).write({9, 274, 177}, {TileServer::tile(9, 274, 177), {}}));
    lookAt(10, 548.0, 354.0);
    const QImage plain = settled(); // first with an ancestor in place of some
    EXPECT_EQ(plain, complete());

    writeTerrain(mDir.filePath(QStringLiteral("N48E012.hgt")), 1201, [](double x, double y) {
        return static_cast<int>(800.0 + 400.0 * std::sin(x * 40.0) * std::cos(y * 30.0));
    });
    mMap->setTerrainPath(mDir.path().toUtf8().constData());
    mMap->setLightDirection(-1.0, 1.0, 1.0);
    mMap->setShading(true);
    const QImage shaded = settled();
    EXPECT_NE(shaded, plain);
    EXPECT_EQ(shaded, complete());
    mMap->setBrightness(0.5);
    EXPECT_LT(render().pixelColor(20, 390).lightness(), shaded.pixelColor(20, 390).lightness());
    mMap->setShading(false);
    mMap->setBrightness(1.0);
    EXPECT_EQ(render(), plain);
}

TEST_F(OpenStreetMapTest, HoweverManyTilesAWindowShowsItComesToRest)
{
    constexpr int kRows = 42; // of seven tiles at least: more than are kept otherwise
    constexpr int kShown = 1800;
    mMap->setTileDirectory("");
    const double pixel = 0.99 * 611.5 * std::cos(0.845);
    mMap->setWindowSize(kShown, kHeight);
    mMap->setVisibleRange(kShown * pixel, 256.0 * kRows * pixel);
    const QImage image = settled();
    EXPECT_GT(mServer.requests(), 256);
    EXPECT_EQ(mMap->nrLoadingTiles(), 0) << "also after one more frame";
    for (int y = 0; y < kHeight; y += 7) {
        for (int x = 0; x < kWidth; x += 50) {
            ASSERT_EQ(image.pixelColor(x, y).red(), TileServer::tileColor(8, 0, 0).red());
        }
    }
}

TEST_F(OpenStreetMapTest, TheSmallestLimitDeletesNothing)
{
    const TileStore store(mDir.path());
    ASSERT_TRUE(store.write({8, 1, 1}, {TileServer::tile(8, 1, 1), {}}));
    mMap->setTileCacheLimit(0);
    mMap->setTileCacheLimit(-1);
    mMap.reset();
    EXPECT_TRUE(store.read({8, 1, 1}).has_value());
}

TEST_F(OpenStreetMapTest, WindowAndPlaceAgreeAlsoForAnotherView)
{
    double latitude = 0.0;
    double longitude = 0.0;
    double x = 0.0;
    double y = 0.0;
    mMap->window2LatLong(123.0, 321.0, &latitude, &longitude);
    mMap->latLong2Window(latitude, longitude, &x, &y);
    EXPECT_NEAR(x, 123.0, 0.01);
    EXPECT_NEAR(y, 321.0, 0.01);
    mMap->window2LatLongFromPos(kWidth / 2.0, kHeight / 2.0, -17.0, 179.99, 5000.0, 4000.0,
                                &latitude, &longitude);
    EXPECT_NEAR(latitude, -17.0, 1e-9);
    EXPECT_NEAR(longitude, 179.99, 1e-9);
}

TEST_F(OpenStreetMapTest, WhatWasGivenBackIsMadeAgain)
{
    writeTerrain(mDir.filePath(QStringLiteral("N48E012.hgt")), 1201,
                 [](double x, double) { return static_cast<int>(9000.0 * x); });
    lookAt(12, 548.5 * 4, 354.5 * 4);
    mMap->setWindowSize(kWidth / 4, kHeight / 4); // one tile is enough
    mMap->setTerrainPath(mDir.path().toUtf8().constData());
    mMap->setShading(true);
    mMap->setLabelFont(nullptr, 0, 12);
    const int others = glObjects();
    const QImage before = settled();
    EXPECT_GT(glObjects(), others + 5);
    mMap->setShadingContrast(2.0);
    EXPECT_NE(settled(), before);
    mMap->releaseGl();
    EXPECT_EQ(glObjects(), others);
    mMap->setShadingContrast(1.0);
    EXPECT_EQ(settled(), before);
    EXPECT_EQ(mServer.requests(),
              QSet<QByteArray>(mServer.paths().begin(), mServer.paths().end()).size())
        << "from the disk";
    mMap->setMapType(OpenStreet::Outline);
    EXPECT_NE(render(), before);
    EXPECT_EQ(mMap->nrLoadingTiles(), 0);
    mMap.reset();
    EXPECT_EQ(glObjects(), others);
}

} // namespace
