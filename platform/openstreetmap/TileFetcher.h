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
        TileFreshness known; ///< of the copy that is there; without tags the tile is fetched anew
    };

    explicit TileFetcher(QObject* parent = nullptr);
    ~TileFetcher() override;

    /// Running requests to another server are dropped.
    void setServer(const QString& server);
    [[nodiscard]] const QString& server() const { return mServer; }
    void setUserAgent(const QByteArray& agent) { mUserAgent = agent; }

    /// The tiles that are wanted from now on, most urgent first. What was asked for and is wanted
    /// no longer is dropped; tiles that failed lately wait for their time.
    void setWanted(const std::vector<Request>& wanted);
    /// Answers to fetched(): whether the bytes were a picture.
    void accept(const TileAddress& tile) { mRetries.succeeded(tile); }
    void reject(const TileAddress& tile);
    /// Requests running or waiting for a free connection.
    [[nodiscard]] int loading() const;

signals:
    /// The server sent something, which is at most as large as a tile can be.
    void fetched(const OpenStreet::TileAddress& tile, const QByteArray& picture,
                 const OpenStreet::TileFreshness& freshness);
    /// The copy that is there is up to date.
    void unchanged(const OpenStreet::TileAddress& tile, const OpenStreet::TileFreshness& freshness);

private:
    void startNext();
    void start(const Request& request);
    void finish(const Request& request, QNetworkReply& reply);
    void dropUnwanted(const std::set<TileAddress>& wanted);
    [[nodiscard]] double now() const { return static_cast<double>(mClock.elapsed()) / 1000.0; }

    QNetworkAccessManager mNetwork;
    QString mServer;
    QByteArray mUserAgent;
    std::vector<Request> mQueue; ///< most urgent last
    std::map<TileAddress, QNetworkReply*> mRunning;
    RetryPlan mRetries;
    QElapsedTimer mClock;
};

} // namespace OpenStreet
