#include "platform/openstreetmap/TileFetcher.h"

#include "platform/openstreetmap/TileImage.h"
#include "platform/openstreetmap/TileUrl.h"

#include <QDateTime>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr std::size_t kMostConnections = 4;
constexpr int kTimeout = 15000; ///< ms without any progress
constexpr int kMostRedirects = 4;
/// Seconds before a tile is asked for again, whatever the server allows: the map asks with every
/// picture.
constexpr std::int64_t kShortestLifetime = 60;
constexpr int kOk = 200;
constexpr int kNotModified = 304;

} // namespace

TileFetcher::TileFetcher(QObject* parent) : QObject(parent)
{
    mClock.start();
    mNetwork.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    mNetwork.setTransferTimeout(kTimeout);
}

TileFetcher::~TileFetcher()
{
    mQueue.clear();
    dropUnwanted({});
}

void TileFetcher::setServer(const QString& server)
{
    if (server != mServer) {
        mServer = server;
        mQueue.clear();
        dropUnwanted({});
        mRetries.clear();
    }
}

void TileFetcher::setWanted(const std::vector<Request>& wanted)
{
    std::set<TileAddress> addresses;
    mQueue.clear();
    for (auto request = wanted.rbegin(); request != wanted.rend(); ++request) {
        addresses.insert(request->tile);
        if (mRunning.count(request->tile) == 0 && mRetries.mayAsk(request->tile, now())) {
            mQueue.push_back(*request);
        }
    }
    dropUnwanted(addresses);
    startNext();
}

void TileFetcher::reject(const TileAddress& tile)
{
    mRetries.failed(tile, RetryPlan::Failure::Tile, now());
}

int TileFetcher::loading() const
{
    return static_cast<int>(mQueue.size() + mRunning.size());
}

void TileFetcher::dropUnwanted(const std::set<TileAddress>& wanted)
{
    for (auto it = mRunning.begin(); it != mRunning.end();) {
        if (wanted.count(it->first) > 0) {
            ++it;
            continue;
        }
        QNetworkReply* reply = it->second;
        it = mRunning.erase(it);
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void TileFetcher::startNext()
{
    while (mRunning.size() < kMostConnections && !mQueue.empty()) {
        const Request request = mQueue.back();
        mQueue.pop_back();
        if (mRetries.mayAsk(request.tile, now())) {
            start(request);
        }
    }
}

void TileFetcher::start(const Request& request)
{
    const QUrl url = tileUrl(mServer, request.tile);
    if (!url.isValid()) {
        mRetries.failed(request.tile, RetryPlan::Failure::Server, now());
        return;
    }
    QNetworkRequest network(url);
    network.setMaximumRedirectsAllowed(kMostRedirects);
    network.setHeader(QNetworkRequest::UserAgentHeader, mUserAgent);
    // Pictures are compressed already. Asked for like this, nothing is inflated on the way, which
    // would get past the limit of bytes.
    network.setRawHeader("Accept-Encoding", "identity");
    if (!request.known.entityTag.isEmpty()) {
        network.setRawHeader("If-None-Match", request.known.entityTag);
    } else if (!request.known.lastModified.isEmpty()) {
        network.setRawHeader("If-Modified-Since", request.known.lastModified);
    }
    QNetworkReply* reply = mNetwork.get(network);
    mRunning.emplace(request.tile, reply);
    connect(reply, &QNetworkReply::downloadProgress, this, [reply](qint64 received, qint64 total) {
        if (std::max(received, total) > kLargestTileBytes) {
            reply->abort();
        }
    });
    connect(reply, &QNetworkReply::finished, this, [this, request, reply] {
        mRunning.erase(request.tile);
        finish(request, *reply);
        reply->deleteLater();
        startNext();
    });
}

void TileFetcher::finish(const Request& request, QNetworkReply& reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    TileFreshness freshness;
    const std::int64_t seconds = QDateTime::currentSecsSinceEpoch();
    freshness.expires =
        std::max(seconds + kShortestLifetime,
                 expiryOf(reply.rawHeader("Cache-Control"), reply.rawHeader("Expires"), seconds));
    freshness.entityTag = reply.rawHeader("ETag");
    freshness.lastModified = reply.rawHeader("Last-Modified");
    freshness.server = mServer.toUtf8();
    if (reply.error() == QNetworkReply::NoError && status == kNotModified) {
        if (freshness.entityTag.isEmpty()) {
            freshness.entityTag = request.known.entityTag;
        }
        if (freshness.lastModified.isEmpty()) {
            freshness.lastModified = request.known.lastModified;
        }
        mRetries.succeeded(request.tile);
        emit unchanged(request.tile, freshness);
        return;
    }
    if (reply.error() == QNetworkReply::NoError && status == kOk) {
        emit fetched(request.tile, reply.read(kLargestTileBytes), freshness);
        return;
    }
    mRetries.failed(request.tile,
                    status == 0 ? RetryPlan::Failure::Server : RetryPlan::Failure::Tile, now());
}

} // namespace OpenStreet
