#include "platform/openstreetmap/TileSource.h"
#include "platform/openstreetmap/TileStore.h"
#include "tests/support/TileServer.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

using namespace OpenStreet;
using VELIX::Test::TileServer;

namespace {

class TileSourceTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mSource.setFolder(mDir.path());
        mSource.setServer(mServer.url());
        mSource.setUserAgent("Tester/1.0");
        QObject::connect(&mSource, &TileSource::failed,
                         [this](const QString& url, const QString& reason) {
                             mFailures.push_back(reason.toStdString());
                             mFailedUrl = url;
                         });
    }

    static bool waitFor(const std::function<bool()>& done, int milliseconds = 5000)
    {
        QElapsedTimer clock;
        clock.start();
        while (!done() && clock.elapsed() < milliseconds) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents,
                                            20);
        }
        return done();
    }

    /// Asks as a painting window does, until nothing is loading.
    void settle(TileSource& source, const std::vector<TileAddress>& tiles)
    {
        source.want(tiles, {});
        EXPECT_TRUE(waitFor([&] {
            take(source);
            source.want(tiles, {});
            return source.loading() == 0;
        }));
        take(source);
    }
    void take(TileSource& source)
    {
        for (const TileSource::Arrival& arrival : source.takeArrived(4)) {
            mImages[arrival.first].push_back(arrival.second);
        }
    }

    QTemporaryDir mDir;
    TileServer mServer;
    TileSource mSource;
    std::map<TileAddress, std::vector<QImage>> mImages;
    std::vector<std::string> mFailures;
    QString mFailedUrl; ///< the last one's
};

TEST_F(TileSourceTest, TilesComeFromTheServerOnceAndThenFromTheDisk)
{
    const std::vector<TileAddress> tiles{{4, 8, 5}, {4, 9, 5}};
    settle(mSource, tiles);
    ASSERT_EQ(mImages.size(), 2U);
    EXPECT_EQ(mImages[tiles[1]].front().pixelColor(99, 99), TileServer::tileColor(4, 9, 5));
    EXPECT_EQ(mServer.requests(), 2);
    EXPECT_EQ(mServer.header("user-agent"), QByteArray("Tester/1.0"));
    EXPECT_EQ(mServer.header("accept-encoding"), QByteArray("identity"));
    EXPECT_TRUE(QFileInfo::exists(mDir.filePath(QStringLiteral("4/8/5.png"))));

    mImages.clear();
    TileSource later;
    later.setFolder(mDir.path());
    later.setServer(mServer.url());
    settle(later, tiles);
    EXPECT_EQ(mImages.size(), 2U);
    EXPECT_EQ(mServer.requests(), 2);
}

TEST_F(TileSourceTest, FourAtATimeAndOnlyWhatIsStillWanted)
{
    mServer.setMode(TileServer::Mode::Slow);
    std::vector<TileAddress> tiles;
    tiles.reserve(12);
    for (int x = 0; x < 12; ++x) {
        tiles.push_back({5, x, 3});
    }
    settle(mSource, tiles);
    EXPECT_EQ(mImages.size(), 12U);
    EXPECT_EQ(mServer.mostParallel(), 4);
    EXPECT_EQ(mServer.mostSockets(), 4);

    mServer.setMode(TileServer::Mode::Silent);
    tiles.assign({{6, 1, 3}, {6, 2, 3}, {6, 3, 3}, {6, 4, 3}, {6, 5, 3}, {6, 6, 3}});
    ASSERT_TRUE(waitFor([&] {
        mSource.want(tiles, {});
        return mServer.requests() >= 16;
    }));
    mServer.setMode(TileServer::Mode::Tiles);
    const std::vector<TileAddress> elsewhere{{5, 30, 30}};
    settle(mSource, elsewhere);
    EXPECT_EQ(mImages.count(elsewhere[0]), 1U);
    EXPECT_EQ(mServer.requests(), 17) << "what is out of sight is not fetched";
}

TEST_F(TileSourceTest, AnOldTileIsShownWhileTheServerIsAsked)
{
    const TileAddress tile{4, 8, 5};
    const TileStore store(mDir.path());
    ASSERT_TRUE(store.write(tile, {TileServer::tile(1, 1, 1), {1, "\"v1\"", ""}}));
    mServer.setEntityTag("\"v1\"");
    mServer.setHeaders({"Cache-Control: max-age=3600"});
    settle(mSource, {tile});
    EXPECT_EQ(mImages[tile].size(), 1U);
    EXPECT_EQ(mServer.notModified(), 1);
    settle(mSource, {tile});
    EXPECT_EQ(mServer.requests(), 1) << "it is fresh again";
    ASSERT_TRUE(waitFor([&] { return store.read(tile)->freshness.expires > 1000; }));

    const TileAddress dated{4, 9, 5};
    mServer.setEntityTag({});
    mServer.setLastModified("Wed, 21 Oct 2015 07:28:00 GMT");
    ASSERT_TRUE(store.write(dated, {TileServer::tile(1, 1, 1), {1, "", mServer.lastModified()}}));
    settle(mSource, {dated});
    EXPECT_EQ(mServer.notModified(), 2);

    mServer.setEntityTag("\"v2\"");
    ASSERT_TRUE(store.refresh(tile, {1, "\"v1\"", ""}));
    mImages.clear();
    TileSource later;
    later.setFolder(mDir.path());
    later.setServer(mServer.url());
    settle(later, {tile});
    ASSERT_EQ(mImages[tile].size(), 2U) << "the old one, then the new one";
    EXPECT_EQ(mImages[tile].back().pixelColor(5, 5), TileServer::tileColor(4, 8, 5));
    EXPECT_EQ(store.read(tile)->freshness.entityTag, QByteArray("\"v2\""));
}

TEST_F(TileSourceTest, UnchangedIsOnlyWhatIsThere)
{
    const TileAddress tile{4, 8, 5};
    const TileStore store(mDir.path());
    ASSERT_TRUE(store.write(tile, {TileServer::tile(4, 8, 5), {1, "\"v1\"", ""}}));
    mServer.setEntityTag("\"v1\"");
    mServer.setMode(TileServer::Mode::Slow);
    ASSERT_TRUE(waitFor([&] {
        mSource.want({tile}, {});
        return mServer.requests() == 1;
    }));
    take(mSource);
    mSource.forget(tile); // as when the window is closed
    ASSERT_TRUE(waitFor([&] { return store.read(tile)->freshness.expires > 1; }));
    mImages.clear();
    settle(mSource, {tile});
    EXPECT_EQ(mImages.count(tile), 1U) << "its image comes from the disk again";

    mServer.setMode(TileServer::Mode::Unchanged);
    settle(mSource, {{4, 9, 5}});
    settle(mSource, {{4, 9, 5}});
    EXPECT_EQ(mServer.requests(), 2) << "what has no image is a tile that failed";
    EXPECT_EQ(mFailures, std::vector<std::string>{"HTTP status 304"});
}

TEST_F(TileSourceTest, TilesOfAnotherServerAreShownUntilThisOneSendsItsOwn)
{
    const TileAddress tile{4, 8, 5};
    settle(mSource, {tile});
    TileServer other;
    mSource.setServer(other.url());
    settle(mSource, {tile});
    EXPECT_EQ(other.requests(), 1);

    mImages.clear();
    TileSource later;
    later.setFolder(mDir.path());
    later.setServer(mServer.url());
    settle(later, {tile});
    EXPECT_EQ(mImages[tile].size(), 2U) << "what is on disk, then its own";
    EXPECT_EQ(mServer.requests(), 2);
}

TEST_F(TileSourceTest, AServerThatForbidsKeepingIsNotAskedWithEveryFrame)
{
    mServer.setHeaders({"Cache-Control: no-store"});
    settle(mSource, {{4, 8, 5}});
    settle(mSource, {{4, 8, 5}});
    EXPECT_EQ(mServer.requests(), 1);
    EXPECT_EQ(mImages.count({4, 8, 5}), 1U);
    EXPECT_FALSE(QFileInfo::exists(mDir.filePath(QStringLiteral("4/8/5.png"))));
}

TEST_F(TileSourceTest, AServerThatRefusesIsLeftAloneForAsLongAsItAsks)
{
    mSource.setTimeouts({15000, 30000, 0.01, 0.01});
    mServer.setMode(TileServer::Mode::Busy);
    const std::vector<TileAddress> tiles{{4, 1, 5}, {4, 2, 5}, {4, 3, 5}, {4, 4, 5}, {4, 5, 5}};
    const auto askAgain = [&] {
        mSource.want(tiles, {});
        return mServer.requests() > 4;
    };
    EXPECT_FALSE(waitFor(askAgain, 300)) << "those that were under way";
    EXPECT_EQ(mFailures, std::vector<std::string>{"HTTP status 429"});
    mServer.setMode(TileServer::Mode::Tiles);
    mSource.retry();
    EXPECT_FALSE(waitFor(askAgain, 100)) << "nor when the user wants another try";
    mSource.setServer(mServer.url() + QStringLiteral("/{z}/{x}/{y}.png"));
    settle(mSource, tiles);
    EXPECT_EQ(mImages.size(), 5U) << "another server";
}

TEST_F(TileSourceTest, WhatIsNoTileCostsAMissingTileAndALaterTry)
{
    using Mode = TileServer::Mode;
    for (const Mode mode : {Mode::Endless, Mode::Error, Mode::NotFound, Mode::Html, Mode::Garbage,
                            Mode::Truncated, Mode::Enormous, Mode::Flood}) {
        const int number = static_cast<int>(mode);
        const TileAddress tile{6, number, 1};
        mServer.setMode(mode);
        const int before = mServer.requests();
        settle(mSource, {tile});
        EXPECT_EQ(mImages.count(tile), 0U) << number;
        const int asked = mServer.requests() - before;
        EXPECT_GE(asked, 1) << number;
        settle(mSource, {tile});
        EXPECT_EQ(mServer.requests() - before, asked) << number << ": not at once again";
        EXPECT_FALSE(QFileInfo::exists(mDir.filePath(QStringLiteral("6/%1/1.png").arg(number))));
    }
    mServer.setMode(Mode::Redirect);
    settle(mSource, {{6, 40, 1}});
    EXPECT_EQ(mImages.count({6, 40, 1}), 1U);
}

TEST_F(TileSourceTest, TellsWhyThereAreNoTilesButNotForEachOfThem)
{
    using Reasons = std::vector<std::string>;
    mServer.setMode(TileServer::Mode::NotFound);
    settle(mSource, {{4, 8, 5}, {4, 9, 5}, {4, 10, 5}});
    EXPECT_EQ(mFailures, Reasons{"HTTP status 404"});
    EXPECT_TRUE(mFailedUrl.startsWith(mServer.url() + QStringLiteral("/4/"))) << "the tile's";
    mServer.setMode(TileServer::Mode::Html);
    settle(mSource, {{5, 8, 5}, {5, 9, 5}});
    mServer.setMode(TileServer::Mode::Endless);
    settle(mSource, {{6, 8, 5}});
    ASSERT_EQ(mFailures.size(), 3U);
    EXPECT_EQ(mFailures[1], "not a picture of a tile");
    mServer.setMode(TileServer::Mode::Tiles);
    mSource.retry();
    settle(mSource, {{4, 8, 5}});
    EXPECT_EQ(mImages.count({4, 8, 5}), 1U) << "at once";
    EXPECT_EQ(mFailures.size(), 3U);

    mFailures.clear();
    TileServer gone;
    gone.stop();
    mSource.setServer(gone.url());
    settle(mSource, {{7, 1, 5}, {7, 2, 5}, {7, 3, 5}, {7, 4, 5}, {7, 5, 5}});
    EXPECT_EQ(mFailures, Reasons{"Connection refused"});
    mSource.setServer(QStringLiteral("ftp://tiles.example"));
    settle(mSource, {{4, 1, 1}, {4, 2, 1}});
    mSource.setServer(QString());
    settle(mSource, {{4, 1, 1}, {4, 2, 1}});
    EXPECT_EQ(mFailures, (Reasons{"Connection refused", "not an address of HTTP or HTTPS"}));
    EXPECT_EQ(mFailedUrl, QStringLiteral("ftp://tiles.example"));
}

TEST_F(TileSourceTest, ServersThatTakeTheirTimeOccupyNoConnectionForEver)
{
    TileFetcher::Timeouts timeouts;
    timeouts.whole = 300;
    mSource.setTimeouts(timeouts);
    mServer.setMode(TileServer::Mode::Drip);
    const std::vector<TileAddress> tiles{{4, 1, 5}, {4, 2, 5}, {4, 3, 5}, {4, 4, 5}, {4, 5, 5}};
    ASSERT_TRUE(waitFor([&] {
        mSource.want(tiles, {});
        return mServer.requests() == 4;
    }));
    mServer.setMode(TileServer::Mode::Tiles);
    settle(mSource, tiles);
    EXPECT_EQ(mImages.count(tiles[4]), 1U) << "only the four tiles have failed";
    EXPECT_EQ(mImages.size(), 1U);
    EXPECT_EQ(mFailures, std::vector<std::string>{"not whole in time"});

    timeouts.whole = 30000;
    timeouts.silence = 300;
    mSource.setTimeouts(timeouts);
    mServer.setMode(TileServer::Mode::Silent);
    settle(mSource, {{5, 1, 1}});
    EXPECT_EQ(mFailures.back(), "no answer in time");
}

TEST_F(TileSourceTest, AnAnswerWithoutEndIsCutOff)
{
    mServer.setMode(TileServer::Mode::Stream);
    settle(mSource, {{4, 8, 5}});
    EXPECT_EQ(mFailures, std::vector<std::string>{"larger than a tile can be"});
    EXPECT_GT(mServer.streamed(), 4 << 20);
    EXPECT_LT(mServer.streamed(), 24 << 20) << "a tile's and what the system keeps on its way";
}

TEST_F(TileSourceTest, ATileThatFailedIsAskedForAgainAfterAWhile)
{
    mSource.setTimeouts({15000, 30000, 0.1, 0.2});
    mServer.setMode(TileServer::Mode::Error);
    const TileAddress tile{4, 8, 5};
    const auto wanted = [&] {
        mSource.want({tile}, {});
        take(mSource);
    };
    ASSERT_TRUE(waitFor([&] {
        wanted();
        return mServer.requests() >= 4;
    }));
    mServer.setMode(TileServer::Mode::Tiles);
    EXPECT_TRUE(waitFor([&] {
        wanted();
        return mImages.count(tile) == 1;
    }));
}

TEST_F(TileSourceTest, WithoutAServerTheDiskServes)
{
    const TileAddress there{4, 8, 5};
    ASSERT_TRUE(TileStore(mDir.path()).write(there, {TileServer::tile(4, 8, 5), {1, "", ""}}));
    mServer.stop();
    settle(mSource, {there, {4, 9, 5}});
    EXPECT_EQ(mImages[there].size(), 1U);
    EXPECT_TRUE(mSource.missing({4, 9, 5}));
    TileSource silent;
    silent.setFolder(mDir.path());
    silent.setServer(QString());
    settle(silent, {there});
    EXPECT_EQ(silent.loading(), 0);
}

TEST_F(TileSourceTest, TheStoreIsKeptSmallFromTheStartAndWhenItsLimitChanges)
{
    const auto stored = [this] {
        return QDir(mDir.filePath(QStringLiteral("4/8")))
            .entryList({QStringLiteral("*.png")})
            .size();
    };
    const TileStore store(mDir.path());
    for (int y = 0; y < 6; ++y) {
        ASSERT_TRUE(store.write({4, 8, y}, {QByteArray(1000, 'x'), {}}));
    }
    TileSource source;
    source.setLimit(4500);
    source.setFolder(mDir.path());
    EXPECT_TRUE(waitFor([&] { return stored() == 4; })) << stored();
    source.setLimit(2500);
    EXPECT_TRUE(waitFor([&] { return stored() == 2; })) << stored();
}

TEST_F(TileSourceTest, WhatCannotBeWrittenIsShownAllTheSame)
{
    QFile blocker(mDir.filePath(QStringLiteral("4"))); // a file where the folder should be
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    settle(mSource, {{4, 8, 5}});
    settle(mSource, {{4, 8, 5}});
    EXPECT_EQ(mImages.count({4, 8, 5}), 1U);
    EXPECT_EQ(mServer.requests(), 1);
}

TEST_F(TileSourceTest, EndsWhileMuchIsUnderWay)
{
    mServer.setMode(TileServer::Mode::Silent);
    auto source = std::make_unique<TileSource>();
    source->setFolder(mDir.path());
    source->setServer(mServer.url());
    const std::vector<TileAddress> tiles{{4, 1, 1}, {4, 2, 1}, {4, 3, 1}, {4, 4, 1}, {4, 5, 1}};
    source->want(tiles, {});
    ASSERT_TRUE(waitFor([&] {
        source->want(tiles, {});
        return mServer.requests() >= 4;
    }));
    source->want({{5, 1, 1}}, {{4, 0, 0}});
    source.reset();
    QCoreApplication::processEvents();
}

} // namespace
