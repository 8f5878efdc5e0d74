#include "platform/openstreetmap/TileFetcher.h"

#include "platform/openstreetmap/TileImage.h"
#include "platform/openstreetmap/TileUrl.h"

#include <QDateTime>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslError>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace OpenStreet {

namespace {

constexpr std::size_t kMostConnections = 4;
constexpr int kReadAhead = 256 * 1024;
constexpr int kMostRedirects = 4;
/// Seconds before a tile is asked for again, whatever the server allows: the map asks with every
/// frame.
constexpr std::int64_t kShortestLifetime = 60;
constexpr int kOk = 200;
constexpr int kNotModified = 304;
constexpr int kFirstError = 400;
constexpr int kForbidden = 403;
constexpr int kTooManyRequests = 429;
constexpr int kUnavailable = 503;

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Some servers forbid the tiles that they do not have: of one that has sent others it is no
/// refusal.
RetryPlan::Failure failureOf(int status, bool hasSent)
{
    switch (status) {
    case 0:
        return RetryPlan::Failure::Server;
    case kForbidden:
        return hasSent ? RetryPlan::Failure::Tile : RetryPlan::Failure::Refusal;
    case kTooManyRequests:
    case kUnavailable:
        return RetryPlan::Failure::Refusal;
    default:
        return RetryPlan::Failure::Tile;
    }
}

QString reasonOf(const QNetworkReply& reply)
{
    const int status = statusOf(reply);
    if (status >= kFirstError || reply.error() == QNetworkReply::NoError) {
        return QStringLiteral("HTTP status %1").arg(status);
    }
    if (reply.error() == QNetworkReply::OperationCanceledError) {
        return QStringLiteral("no answer in time");
    }
    return reply.errorString();
}

} // namespace

TileFetcher::TileFetcher(QObject* parent) : QObject(parent)
{
    mClock.start();
    mNetwork.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    setTimeouts({});
}

TileFetcher::~TileFetcher()
{
    mQueue.clear();
    dropUnwanted({});
}

void TileFetcher::setTimeouts(const Timeouts& timeouts)
{
    mTimeouts = timeouts;
    mNetwork.setTransferTimeout(timeouts.silence);
    mRetries.setPauses(timeouts.firstPause, timeouts.longestPause);
}

void TileFetcher::setServer(const QString& server)
{
    if (server.trimmed() != mServer) {
        mServer = server.trimmed();
        mQueue.clear();
        dropUnwanted({});
        mRetries.clear();
        mReported.clear();
        mHasSent = false;
    }
}

void TileFetcher::retry()
{
    mRetries.retry();
    mReported.clear();
}

void TileFetcher::setWanted(const std::vector<Request>& wanted)
{
    std::set<TileAddress> addresses;
    mQueue.clear();
    if (mServer.isEmpty()) {
        return;
    }
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
    fail(tile, RetryPlan::Failure::Tile, QStringLiteral("not a picture of a tile"));
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
        QNetworkReply* reply = it->second.reply;
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
        fail(request.tile, RetryPlan::Failure::Server,
             QStringLiteral("not an address of HTTP or HTTPS"));
        return;
    }
    QNetworkRequest network(url);
    network.setMaximumRedirectsAllowed(kMostRedirects);
    network.setHeader(QNetworkRequest::UserAgentHeader, mUserAgent);
    // Images are compressed already. Asked for like this, nothing is inflated on the way, which
    // would get past the limit of bytes.
    network.setRawHeader("Accept-Encoding", "identity");
    if (!request.known.entityTag.isEmpty()) {
        network.setRawHeader("If-None-Match", request.known.entityTag);
    } else if (!request.known.lastModified.isEmpty()) {
        network.setRawHeader("If-Modified-Since", request.known.lastModified);
    }
    QNetworkReply* reply = mNetwork.get(network);
    mRunning[request.tile].reply = reply;
    const TileAddress tile = request.tile;
    limit(tile, *reply);
    connect(reply, &QNetworkReply::sslErrors, this, [this, tile](const QList<QSslError>& errors) {
        const auto running = mRunning.find(tile);
        if (running != mRunning.end() && !errors.isEmpty()) {
            // The connection ends itself, without saying which.
            running->second.stopped = errors.first().errorString();
        }
    });
    connect(reply, &QNetworkReply::finished, this, [this, request, reply] {
        finish(request, *reply);
        reply->deleteLater();
        startNext();
    });
}

/// Limits a reply in bytes and in time.
void TileFetcher::limit(const TileAddress& tile, QNetworkReply& reply)
{
    // Else the network would read as fast as it can while nothing reads. It stops some 30 kB short
    // of this size, so that it must be larger than a tile.
    reply.setReadBufferSize(kLargestTileBytes + kReadAhead);
    const auto check = [this, tile, &reply] {
        const qint64 announced = reply.header(QNetworkRequest::ContentLengthHeader).toLongLong();
        if (std::max(announced, reply.bytesAvailable()) > kLargestTileBytes) {
            stop(tile, reply, QStringLiteral("larger than a tile can be"));
        }
    };
    connect(&reply, &QNetworkReply::metaDataChanged, this, check);
    connect(&reply, &QNetworkReply::readyRead, this, check);
    // The other limit is one of silence: a byte now and then would keep the connection for ever.
    QTimer::singleShot(mTimeouts.whole, &reply, [this, tile, &reply] {
        stop(tile, reply, QStringLiteral("not whole in time"));
    });
}

/// Ends in finish().
void TileFetcher::stop(const TileAddress& tile, const QNetworkReply& reply, const QString& reason)
{
    const auto running = mRunning.find(tile);
    if (running != mRunning.end() && running->second.reply == &reply) {
        running->second.stopped = reason;
        running->second.reply->abort();
    }
}

void TileFetcher::succeed(const TileAddress& tile)
{
    mHasSent = true;
    mRetries.succeeded(tile, now());
    for (auto it = mReported.begin(); it != mReported.end();) {
        it = it->second != RetryPlan::Failure::Tile ? mReported.erase(it) : std::next(it);
    }
}

void TileFetcher::fail(const TileAddress& tile, RetryPlan::Failure failure, const QString& reason,
                       double pause)
{
    mRetries.failed(tile, failure, now(), pause);
    if (mReported.emplace(reason, failure).second) {
        const QUrl url = tileUrl(mServer, tile);
        emit failed(url.isValid() ? url.toString() : mServer, reason);
    }
}

void TileFetcher::finish(const Request& request, QNetworkReply& reply)
{
    const QString stopped = mRunning[request.tile].stopped;
    mRunning.erase(request.tile);
    const int status = statusOf(reply);
    TileFreshness freshness;
    const std::int64_t seconds = QDateTime::currentSecsSinceEpoch();
    freshness.expires =
        std::max(seconds + kShortestLifetime,
                 expiryOf(reply.rawHeader("Cache-Control"), reply.rawHeader("Expires"),
                          reply.rawHeader("Age"), seconds));
    freshness.mayBeStored = mayBeStored(reply.rawHeader("Cache-Control"));
    freshness.entityTag = reply.rawHeader("ETag");
    freshness.lastModified = reply.rawHeader("Last-Modified");
    freshness.server = mServer.toUtf8();
    const bool isAsked =
        !request.known.entityTag.isEmpty() || !request.known.lastModified.isEmpty();
    if (reply.error() == QNetworkReply::NoError && status == kNotModified && isAsked) {
        if (freshness.entityTag.isEmpty()) {
            freshness.entityTag = request.known.entityTag;
        }
        if (freshness.lastModified.isEmpty()) {
            freshness.lastModified = request.known.lastModified;
        }
        succeed(request.tile);
        emit unchanged(request.tile, freshness);
        return;
    }
    if (reply.error() == QNetworkReply::NoError && status == kOk) {
        emit fetched(request.tile, reply.read(kLargestTileBytes), freshness);
        return;
    }
    // The header may also give a date, which means the usual pause here.
    fail(request.tile, failureOf(status, mHasSent), stopped.isEmpty() ? reasonOf(reply) : stopped,
         reply.rawHeader("Retry-After").trimmed().toDouble());
}

} // namespace OpenStreet
