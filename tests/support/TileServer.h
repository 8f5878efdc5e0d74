#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QHostAddress>
#include <QImage>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPainter>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QtEndian>

#include <algorithm>
#include <map>

namespace VELIX::Test {

/// A tile server on the loopback interface that can misbehave. It runs in the event loop of the
/// test. Tile z/x/y is of one colour, tileColor(z, x, y).
class TileServer : public QObject
{
public:
    enum class Mode {
        Tiles,
        Slow,      ///< tiles after 200 ms
        Silent,    ///< takes requests and never answers
        Redirect,  ///< to the same path under /real
        Endless,   ///< redirects to itself
        Error,     ///< 500
        NotFound,  ///< 404
        Busy,      ///< 429, come again in an hour
        Unchanged, ///< 304, whatever was asked
        Html,      ///< 200 with a page
        Garbage,   ///< 200 with noise under the name of an image
        Truncated, ///< half an image, announced as a whole one
        Enormous,  ///< an image whose header says 30,000 x 30,000
        Flood,     ///< more bytes than a tile can have
        Stream,    ///< bytes without end, and without saying how many
        Drip       ///< a byte now and then
    };

    TileServer()
    {
        mServer.listen(QHostAddress::LocalHost);
        connect(&mServer, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = mServer.nextPendingConnection()) {
                mMostSockets = std::max(mMostSockets, ++mSockets);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(*socket); });
                connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                    --mSockets;
                    mAnswering.removeAll(socket);
                    socket->deleteLater();
                });
            }
        });
    }

    QString url() const { return QStringLiteral("http://127.0.0.1:%1").arg(mServer.serverPort()); }
    void setMode(Mode mode) { mMode = mode; }
    /// Sent with every tile, such as "Cache-Control: max-age=60".
    void setHeaders(const QList<QByteArray>& headers) { mHeaders = headers; }
    void setEntityTag(const QByteArray& tag) { mTag = tag; }
    void setLastModified(const QByteArray& time) { mLastModified = time; }
    void stop() { mServer.close(); }

    const QByteArray& lastModified() const { return mLastModified; }
    int requests() const { return mRequests; }
    int notModified() const { return mNotModified; }
    int mostParallel() const { return mMostParallel; }
    int mostSockets() const { return mMostSockets; }
    /// How many bytes without end were sent.
    qint64 streamed() const { return mStreamed; }
    const QList<QByteArray>& paths() const { return mPaths; }
    /// Of the last request; names in lower case.
    QByteArray header(const QByteArray& name) const { return mLastHeaders.value(name); }

    static QColor tileColor(int zoom, int x, int y)
    {
        return QColor(40 + zoom * 10 % 200, 40 + x * 53 % 200, 40 + y * 31 % 200);
    }
    /// Makes each only once: packing an image takes longer than all that is done with it.
    static QByteArray tile(int zoom, int x, int y)
    {
        static std::map<QRgb, QByteArray> made;
        QByteArray& known = made[tileColor(zoom, x, y).rgb()];
        if (known.isEmpty()) {
            known = makeTile(zoom, x, y);
        }
        return known;
    }

    /// A tile whose header says, with a right checksum, that it is an image of 30,000 x 30,000.
    static QByteArray enormous()
    {
        constexpr int kHead = 12; // of the chunk: the checksum is over its name and its 13 bytes
        constexpr int kChecked = 17;
        QByteArray bytes = tile(1, 0, 0);
        bytes.replace(16, 8, QByteArray("\x00\x00\x75\x30\x00\x00\x75\x30", 8));
        quint32 check = ~0U;
        for (int i = kHead; i < kHead + kChecked; ++i) {
            check ^= static_cast<unsigned char>(bytes[i]);
            for (int bit = 0; bit < 8; ++bit) {
                check = (check >> 1U) ^ ((check & 1U) != 0U ? 0xEDB88320U : 0U);
            }
        }
        check = qToBigEndian(~check);
        return bytes.replace(kHead + kChecked, 4, reinterpret_cast<const char*>(&check), 4);
    }

private:
    static QByteArray makeTile(int zoom, int x, int y)
    {
        QImage image(256, 256, QImage::Format_RGB32);
        image.fill(tileColor(zoom, x, y));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return bytes;
    }

    void read(QTcpSocket& socket)
    {
        QByteArray& text = mText[&socket];
        text += socket.readAll();
        const int end = text.indexOf("\r\n\r\n");
        if (end < 0) {
            return;
        }
        const QList<QByteArray> lines = text.left(end).split('\n');
        text.clear();
        mLastHeaders.clear();
        for (const QByteArray& line : lines) {
            const int colon = line.indexOf(':');
            mLastHeaders[line.left(colon).toLower()] = line.mid(colon + 1).trimmed();
        }
        ++mRequests;
        const QByteArray path = lines.value(0).split(' ').value(1);
        mPaths.append(path);
        mAnswering.append(&socket);
        mMostParallel = std::max(mMostParallel, static_cast<int>(mAnswering.size()));
        if (mMode == Mode::Slow) {
            QTimer::singleShot(200, &socket, [this, &socket, path] { answer(socket, path); });
        } else if (mMode != Mode::Silent) {
            answer(socket, path);
        }
    }

    void answer(QTcpSocket& socket, const QByteArray& path)
    {
        mAnswering.removeAll(&socket);
        switch (mMode) {
        case Mode::Redirect:
            if (!path.startsWith("/real")) {
                return send(socket, "302 Found", "", {"Location: /real" + path});
            }
            return sendTile(socket, path.mid(5));
        case Mode::Endless:
            return send(socket, "302 Found", "", {"Location: " + path + "x"});
        case Mode::Error:
            return send(socket, "500 Internal Server Error", "no");
        case Mode::NotFound:
            return send(socket, "404 Not Found", "no");
        case Mode::Busy:
            return send(socket, "429 Too Many Requests", "", {"Retry-After: 3600"});
        case Mode::Unchanged:
            return send(socket, "304 Not Modified", "");
        case Mode::Html:
            return send(socket, "200 OK", "<html><body>Please log in</body></html>");
        case Mode::Garbage:
            return send(socket, "200 OK", "\x89PNG\r\n\x1a\n" + QByteArray(2000, 'x'));
        case Mode::Truncated:
            return send(socket, "200 OK", tile(1, 0, 0).left(200));
        case Mode::Enormous:
            return send(socket, "200 OK", enormous());
        case Mode::Flood:
            return send(socket, "200 OK", QByteArray(8 * 1024 * 1024, 'x'));
        case Mode::Stream:
            return stream(socket);
        case Mode::Drip:
            return drip(socket);
        default:
            return sendTile(socket, path);
        }
    }

    void sendTile(QTcpSocket& socket, const QByteArray& path)
    {
        QList<QByteArray> headers = mHeaders;
        if (!mTag.isEmpty()) {
            headers.append("ETag: " + mTag);
            if (mLastHeaders.value("if-none-match") == mTag) {
                ++mNotModified;
                return send(socket, "304 Not Modified", "", headers);
            }
        }
        if (!mLastModified.isEmpty()) {
            headers.append("Last-Modified: " + mLastModified);
            if (mLastHeaders.value("if-modified-since") == mLastModified) {
                ++mNotModified;
                return send(socket, "304 Not Modified", "", headers);
            }
        }
        const QList<QByteArray> parts = path.split('/');
        send(socket, "200 OK",
             tile(parts.value(1).toInt(), parts.value(2).toInt(),
                  parts.value(3).split('.').value(0).toInt()),
             headers);
    }

    void stream(QTcpSocket& socket)
    {
        socket.write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
        const auto more = [this, &socket](qint64 bytes) {
            mStreamed += bytes;
            constexpr int kAhead = 32 << 20; // so that the system always has enough to send
            if (socket.bytesToWrite() < kAhead) {
                socket.write(QByteArray(kAhead, 'x'));
            }
        };
        connect(&socket, &QTcpSocket::bytesWritten, this, more);
    }

    static void drip(QTcpSocket& socket)
    {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
        auto* timer = new QTimer(&socket);
        connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("x"); });
        timer->start(20);
    }

    static void send(QTcpSocket& socket, const QByteArray& status, const QByteArray& body,
                     const QList<QByteArray>& headers = {})
    {
        socket.write("HTTP/1.1 " + status +
                     "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n");
        for (const QByteArray& header : headers) {
            socket.write(header + "\r\n");
        }
        socket.write("\r\n" + body);
    }

    Mode mMode = Mode::Tiles;
    QList<QByteArray> mHeaders;
    QByteArray mTag;
    QByteArray mLastModified;
    std::map<QTcpSocket*, QByteArray> mText;
    QMap<QByteArray, QByteArray> mLastHeaders;
    QList<QByteArray> mPaths;
    QList<QTcpSocket*> mAnswering;
    int mRequests = 0;
    int mNotModified = 0;
    int mMostParallel = 0;
    int mSockets = 0;
    int mMostSockets = 0;
    qint64 mStreamed = 0;
    QTcpServer mServer; ///< the last: its connections are still counted when it ends
};

} // namespace VELIX::Test
