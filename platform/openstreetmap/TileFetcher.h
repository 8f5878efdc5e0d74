#pragma once

#include "platform/openstreetmap/RetryPlan.h"
#include "platform/openstreetmap/TileAddress.h"
#include "platform/openstreetmap/TileFreshness.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

#include <map>
#include <set>
#include <vector>

class QNetworkReply;

namespace OpenStreet {

/// Fetches tiles from a server, a few at a time, and only those that are wanted at the moment.
class TileFetcher : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        TileAddress tile;
        TileFreshness known; ///< of the copy that is there; without tags the tile is fetched again
    };

    /// How long slow servers are waited for, and how soon those that failed are asked again.
    struct Timeouts
    {
        int silence = 15000;     ///< ms without any progress
        int whole = 30000;       ///< ms for a tile
        double firstPause = 2.0; ///< s after a failure; doubled by each one more
        double longestPause = 300.0;
    };

    explicit TileFetcher(QObject* parent = nullptr);
    ~TileFetcher() override;

    /// Running requests to another server are dropped.
    void setServer(const QString& server);
    [[nodiscard]] const QString& server() const { return mServer; }
    void setTimeouts(const Timeouts& timeouts);
    void setUserAgent(const QByteArray& agent) { mUserAgent = agent; }

    /// The tiles that are wanted from now on, most urgent first. What was asked for and is wanted
    /// no longer is dropped; tiles that failed lately wait for their time.
    void setWanted(const std::vector<Request>& wanted);
    /// Answers to fetched(): whether the bytes were an image.
    void accept(const TileAddress& tile) { succeed(tile); }
    void reject(const TileAddress& tile);
    /// What failed is asked for again without waiting for its time.
    void retry();
    /// Requests running or waiting for a free connection.
    [[nodiscard]] int loading() const;

signals:
    /// The server sent something, which is at most as large as a tile can be.
    void fetched(const OpenStreet::TileAddress& tile, const QByteArray& bytes,
                 const OpenStreet::TileFreshness& freshness);
    /// The copy that is there is up to date.
    void unchanged(const OpenStreet::TileAddress& tile, const OpenStreet::TileFreshness& freshness);
    /// Why there is no tile: in English, but for what the network itself reports. Not for each tile
    /// that fails: the same reason is given again only for another server, after retry() or, where
    /// it is the server's as a whole, when it has sent a tile since.
    void failed(const QString& url, const QString& reason);

private:
    struct Running
    {
        QNetworkReply* reply = nullptr;
        QString stopped; ///< why it was stopped from here
    };

    void startNext();
    void start(const Request& request);
    void limit(const TileAddress& tile, QNetworkReply& reply);
    void stop(const TileAddress& tile, const QNetworkReply& reply, const QString& reason);
    void finish(const Request& request, QNetworkReply& reply);
    void succeed(const TileAddress& tile);
    void fail(const TileAddress& tile, RetryPlan::Failure failure, const QString& reason,
              double pause = 0.0);
    void dropUnwanted(const std::set<TileAddress>& wanted);
    [[nodiscard]] double now() const { return static_cast<double>(mClock.elapsed()) / 1000.0; }

    QNetworkAccessManager mNetwork;
    QString mServer;
    QByteArray mUserAgent;
    std::vector<Request> mQueue; ///< most urgent last
    std::map<TileAddress, Running> mRunning;
    Timeouts mTimeouts;
    RetryPlan mRetries;
    bool mHasSent = false;                           ///< the server, a tile
    std::map<QString, RetryPlan::Failure> mReported; ///< reasons that were given
    QElapsedTimer mClock;
};

} // namespace OpenStreet
