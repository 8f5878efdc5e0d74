#include "platform/openstreetmap/CoastLines.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace OpenStreet {

namespace {

constexpr const char* kMagic = "COAST1\n";
constexpr int kMagicBytes = 7;
constexpr int kPointBytes = 8;

/// Appends the segments of a line that may show, moved by whole worlds.
void addSegments(const CoastLines::Line& line, double shift, const MapProjection& projection,
                 const MercatorPoint& least, const MercatorPoint& most,
                 std::vector<WindowPoint>& segments)
{
    for (std::size_t i = 1; i < line.points.size(); ++i) {
        const MercatorPoint from{line.points[i - 1].x + shift, line.points[i - 1].y};
        const MercatorPoint to{line.points[i].x + shift, line.points[i].y};
        const bool outside = std::max(from.x, to.x) < least.x || std::min(from.x, to.x) > most.x ||
                             std::max(from.y, to.y) < least.y || std::min(from.y, to.y) > most.y;
        if (!outside) {
            segments.push_back(projection.mercatorToWindow(from));
            segments.push_back(projection.mercatorToWindow(to));
        }
    }
}

} // namespace

bool CoastLines::load(const QString& file)
{
    QFile source(file);
    mLines.clear();
    return source.open(QIODevice::ReadOnly) && parse(source.readAll());
}

bool CoastLines::parse(const QByteArray& content)
{
    mLines.clear();
    if (!content.startsWith(kMagic)) {
        return false;
    }
    int at = kMagicBytes;
    while (content.size() - at >= 4) {
        const auto count = qFromLittleEndian<quint32>(content.constData() + at);
        at += 4;
        if (count > static_cast<quint32>((content.size() - at) / kPointBytes)) {
            mLines.clear();
            return false;
        }
        Line line;
        for (quint32 i = 0; i < count; ++i, at += kPointBytes) {
            const GeoPoint place{qFromLittleEndian<qint32>(content.constData() + at + 4) / 1e6,
                                 qFromLittleEndian<qint32>(content.constData() + at) / 1e6};
            const MercatorPoint point = toMercator(place);
            line.least = i == 0 ? point
                                : MercatorPoint{std::min(line.least.x, point.x),
                                                std::min(line.least.y, point.y)};
            line.most = i == 0 ? point
                               : MercatorPoint{std::max(line.most.x, point.x),
                                               std::max(line.most.y, point.y)};
            line.points.push_back(point);
        }
        mLines.push_back(std::move(line));
    }
    return true;
}

std::vector<WindowPoint> CoastLines::segments(const MapProjection& projection) const
{
    const double width = projection.windowWidth();
    const double height = projection.windowHeight();
    const MercatorPoint upperLeft = projection.windowToMercator({0.0, 0.0});
    const MercatorPoint lowerRight = projection.windowToMercator({width, height});
    const MercatorPoint least{upperLeft.x, lowerRight.y};
    const MercatorPoint most{lowerRight.x, upperLeft.y};
    const double world = 2.0 * kMercatorHalf;
    const double first = std::floor((least.x + kMercatorHalf) / world);
    const double last = std::floor((most.x + kMercatorHalf) / world);
    std::vector<WindowPoint> segments;
    for (double turn = first; turn <= last; ++turn) {
        const double shift = turn * world;
        for (const Line& line : mLines) {
            if (line.most.x + shift >= least.x && line.least.x + shift <= most.x &&
                line.most.y >= least.y && line.least.y <= most.y) {
                addSegments(line, shift, projection, least, most, segments);
            }
        }
    }
    return segments;
}

} // namespace OpenStreet
