#include "platform/openstreetmap/TileStore.h"
#include "platform/openstreetmap/RetryPlan.h"
#include "platform/openstreetmap/TileFreshness.h"
#include "platform/openstreetmap/TileImage.h"
#include "tests/support/TileServer.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>

using namespace OpenStreet;
using VELIX::Test::TileServer;

namespace {

constexpr std::int64_t kNow = 1'000'000;

TEST(TileFreshnessTest, WhatServersSayOfAnAnswersAge)
{
    const struct
    {
        const char* cacheControl;
        const char* expires;
        const char* age;
        std::int64_t expected;
    } rows[] = {
        {"", "", "", kNow + kDefaultLifetime},
        {"max-age=60", "", "", kNow + 60},
        {"max-age=60", "", "20", kNow + 40},
        {"max-age=60", "", "70", kNow},
        {"max-age=60", "", "-70", kNow + 60},
        {"public, Max-Age=60", "Mon, 12 Jan 1970 14:03:20 GMT", "", kNow + 60},
        {"max-age=oops", "", "", kNow + kDefaultLifetime},
        {"max-age=-5", "", "", kNow},
        {"max-age=99999999999", "", "", kNow + 365LL * 24 * 3600},
        {"no-cache, max-age=60", "", "", kNow},
        {"", "Mon, 12 Jan 1970 14:03:20 GMT", "5", kNow + 1000},
        {"", "0", "", kNow},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(expiryOf(row.cacheControl, row.expires, row.age, kNow), row.expected)
            << row.cacheControl << '|' << row.expires << '|' << row.age;
    }
    EXPECT_FALSE(mayBeStored("max-age=60, No-Store"));
    EXPECT_TRUE(mayBeStored("no-cache"));
}

TEST(RetryPlanTest, PausesGrowAndAServerWithoutAnswerPausesAllTiles)
{
    RetryPlan plan;
    const TileAddress tile{1, 0, 0};
    const TileAddress other{1, 1, 1};
    plan.failed(tile, RetryPlan::Failure::Tile, 0.0);
    EXPECT_FALSE(plan.mayAsk(tile, 1.0));
    EXPECT_TRUE(plan.mayAsk(tile, 2.0));
    EXPECT_TRUE(plan.mayAsk(other, 0.0));
    plan.failed(tile, RetryPlan::Failure::Tile, 2.0);
    EXPECT_FALSE(plan.mayAsk(tile, 5.0));
    EXPECT_TRUE(plan.mayAsk(tile, 6.0));
    for (int i = 0; i < 100; ++i) {
        plan.failed(tile, RetryPlan::Failure::Tile, 10.0);
    }
    EXPECT_TRUE(plan.mayAsk(tile, 10.0 + 301.0)) << "never longer than five minutes";

    plan.failed(other, RetryPlan::Failure::Server, 400.0);
    EXPECT_FALSE(plan.mayAsk({5, 3, 3}, 401.0));
    RetryPlan atOnce = plan;
    atOnce.retry();
    EXPECT_TRUE(atOnce.mayAsk(other, 401.0));
    EXPECT_TRUE(plan.mayAsk({5, 3, 3}, 402.0));
    plan.succeeded(other, 400.5);
    EXPECT_TRUE(plan.mayAsk(other, 400.5));
}

TEST(RetryPlanTest, AServerThatWantsNoRequestsIsLeftAloneForAsLongAsItAsksWithinBounds)
{
    RetryPlan plan;
    const TileAddress tile{1, 0, 0};
    const TileAddress other{1, 1, 1};
    plan.failed(tile, RetryPlan::Failure::Refusal, 0.0, 60.0);
    plan.failed(other, RetryPlan::Failure::Refusal, 0.1, 0.0);
    plan.succeeded({1, 1, 0}, 1.0); // was under way already
    EXPECT_FALSE(plan.mayAsk({1, 0, 1}, 59.0));
    EXPECT_TRUE(plan.mayAsk({1, 0, 1}, 60.1));
    plan.failed(tile, RetryPlan::Failure::Refusal, 100.0, 1e9);
    EXPECT_TRUE(plan.mayAsk(tile, 100.0 + 3601.0)) << "not for days";
    plan.failed(tile, RetryPlan::Failure::Refusal, 9000.0, -5.0);
    plan.retry();
    EXPECT_FALSE(plan.mayAsk(other, 9001.0)) << "the usual pause";
    plan.clear();
    EXPECT_TRUE(plan.mayAsk(tile, 9001.0));
}

class TileStoreTest : public ::testing::Test
{
protected:
    QString path(const char* name) const { return mDir.filePath(QLatin1String(name)); }
    static TileStore::Tile tile(char content)
    {
        return {QByteArray(1000, content), {kNow, "\"tag\"", "yesterday"}};
    }
    void writeImage(const char* name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("image");
    }

    QTemporaryDir mDir;
    TileStore mStore{mDir.filePath(QStringLiteral("tiles"))};
};

TEST_F(TileStoreTest, KeepsImagesAsPlainFilesWithTheirFreshnessBeside)
{
    const TileAddress address{5, 17, 11};
    EXPECT_FALSE(mStore.read(address).has_value());
    ASSERT_TRUE(mStore.write(address, tile('a')));
    QFile file(path("tiles/5/17/11.png"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), tile('a').bytes);
    ASSERT_TRUE(mStore.read(address).has_value());
    EXPECT_EQ(mStore.read(address)->freshness, tile('a').freshness);
    EXPECT_TRUE(mStore.refresh(address, {kNow + 5, "a\r\nb", ""}));
    EXPECT_EQ(mStore.read(address)->freshness, (TileFreshness{kNow + 5, "a  b", ""}));
    EXPECT_FALSE(mStore.refresh({5, 1, 1}, {})) << "there is no such image";
}

TEST_F(TileStoreTest, TakesAFolderOfPlainImages)
{
    ASSERT_TRUE(QDir().mkpath(path("tiles/3/4")));
    writeImage("tiles/3/4/5.png");
    const auto stored = mStore.read({3, 4, 5});
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->bytes, QByteArray("image"));
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    EXPECT_NEAR(static_cast<double>(stored->freshness.expires),
                static_cast<double>(now + kDefaultLifetime), 60.0);
    EXPECT_EQ(mStore.read({3, 4, 5})->freshness, stored->freshness);
}

TEST_F(TileStoreTest, WhatWasNotUsedForLongestIsDropped)
{
    for (int y = 0; y < 4; ++y) {
        ASSERT_TRUE(mStore.write({4, 2, y}, tile('a')));
        QFile meta(path("tiles/4/2/%1.meta").arg(y));
        ASSERT_TRUE(meta.open(QIODevice::ReadWrite));
        meta.setFileTime(QDateTime::currentDateTimeUtc().addDays(y - 10),
                         QFileDevice::FileModificationTime);
    }
    ASSERT_TRUE(mStore.read({4, 2, 0}).has_value()); // now it is the last used
    EXPECT_LE(mStore.trim(2500), 2500);
    EXPECT_TRUE(mStore.read({4, 2, 0}).has_value());
    EXPECT_FALSE(mStore.read({4, 2, 1}).has_value());
    EXPECT_FALSE(mStore.read({4, 2, 2}).has_value());
    EXPECT_TRUE(mStore.read({4, 2, 3}).has_value());
    EXPECT_FALSE(QFileInfo::exists(path("tiles/4/2/1.meta")));
    EXPECT_EQ(TileStore(path("missing")).trim(0), 0);

    writeImage("tiles/4/2/holiday.png");
    ASSERT_TRUE(QDir().mkpath(path("tiles/4/2/3/8/9"))); // a store within
    ASSERT_TRUE(QFile::copy(path("tiles/4/2/3.png"), path("tiles/4/2/3/8/9/1.png")));
    const std::atomic<bool> stop = true;
    mStore.trim(0, &stop);
    EXPECT_TRUE(mStore.read({4, 2, 3}).has_value());
    EXPECT_EQ(mStore.trim(0), 0);
    EXPECT_FALSE(mStore.read({4, 2, 3}).has_value());
    EXPECT_TRUE(QFileInfo::exists(path("tiles/4/2/holiday.png"))) << "only tiles are ever deleted";
    EXPECT_TRUE(QFileInfo::exists(path("tiles/4/2/3/8/9/1.png")));
}

TEST_F(TileStoreTest, AStoreThatCannotBeWrittenOnlyReads)
{
    QFile file(path("plain"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const TileStore blocked(path("plain")); // a file where the folder should be
    EXPECT_FALSE(blocked.write({1, 0, 0}, tile('a')));
    EXPECT_FALSE(blocked.read({1, 0, 0}).has_value());
    const TileStore none{QString()};
    EXPECT_FALSE(none.write({1, 0, 0}, tile('a')));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("/1/0/0.png")));

    ASSERT_TRUE(QDir().mkpath(path("tiles/3/4/5.meta"))); // a folder where the note should be
    writeImage("tiles/3/4/5.png");
    EXPECT_FALSE(mStore.refresh({3, 4, 5}, {}));
    ASSERT_TRUE(mStore.read({3, 4, 5}).has_value());
    EXPECT_EQ(mStore.read({3, 4, 5})->bytes, QByteArray("image"));
}

TEST(TileImageTest, TakesImagesOfTilesAndNothingElse)
{
    const QByteArray good = TileServer::tile(3, 4, 5);
    const QImage image = decodeTile(good);
    ASSERT_EQ(image.size(), QSize(256, 256));
    EXPECT_EQ(image.pixelColor(10, 10), TileServer::tileColor(3, 4, 5));
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("<html></html>"), good.left(150), good.left(good.size() - 1),
          TileServer::enormous(), QByteArray(5 * 1024 * 1024, 'x')}) {
        EXPECT_TRUE(decodeTile(bad).isNull()) << bad.size();
    }

    QByteArray large;
    QBuffer buffer(&large);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(image.scaled(1024, 1024).save(&buffer, "PNG"));
    EXPECT_EQ(decodeTile(large).size(), QSize(512, 512)) << "hundreds of them are kept";
}

} // namespace
