#include "platform/openstreetmap/Graticule.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace OpenStreet {

namespace {

constexpr double kSecond = 1.0 / 3600.0;
constexpr double kMinute = 1.0 / 60.0;
constexpr std::array<double, 17> kSteps{
    30.0,           10.0,           5.0,           2.0,           1.0,     30.0 * kMinute,
    20.0 * kMinute, 10.0 * kMinute, 5.0 * kMinute, 2.0 * kMinute, kMinute, 30.0 * kSecond,
    20.0 * kSecond, 10.0 * kSecond, 5.0 * kSecond, 2.0 * kSecond, kSecond};
/// No window has room for more; a limit, should a caller's numbers be wild.
constexpr int kMostLines = 500;

} // namespace

double graticuleStep(const MapProjection& projection, double pixels)
{
    const double pixelDegrees = 180.0 * projection.metresPerPixelX() / kMercatorHalf;
    const double wanted = pixels * pixelDegrees;
    double step = kSteps.front();
    for (const double candidate : kSteps) {
        if (candidate >= wanted) {
            step = candidate;
        }
    }
    return step;
}

QString graticuleLabel(double degrees, double step, bool meridian)
{
    const auto seconds = std::llround(std::abs(degrees) * 3600.0);
    const QChar side =
        QLatin1Char(meridian ? (degrees < 0.0 ? 'W' : 'E') : (degrees < 0.0 ? 'S' : 'N'));
    QString text = QStringLiteral("%1\u00b0").arg(seconds / 3600);
    if (step < 1.0) {
        text += QStringLiteral(" %1'").arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'));
    }
    if (step < kMinute * 0.999) {
        text += QStringLiteral(" %1\"").arg(seconds % 60, 2, 10, QLatin1Char('0'));
    }
    return seconds == 0 ? text : text + QLatin1Char(' ') + side;
}

std::vector<GraticuleLine> graticule(const MapProjection& projection, double step)
{
    const double width = projection.windowWidth();
    const double height = projection.windowHeight();
    const MercatorPoint upperLeft = projection.windowToMercator({0.0, 0.0});
    const MercatorPoint lowerRight = projection.windowToMercator({width, height});
    const GeoPoint northWest = fromMercator(upperLeft);
    const GeoPoint southEast = fromMercator(lowerRight);
    std::vector<GraticuleLine> lines;
    const auto first = [step](double degrees) { return std::ceil(degrees / step); };
    const auto last = [step](double degrees) { return std::floor(degrees / step); };

    double to = std::min(last(southEast.longitude), first(northWest.longitude) + kMostLines);
    for (double i = first(northWest.longitude); i <= to; ++i) {
        const double longitude = i * step;
        const double x = projection.mercatorToWindow(toMercator({0.0, longitude})).x;
        lines.push_back({true, x, graticuleLabel(normalizedLongitude(longitude), step, true)});
    }
    to = std::min(last(northWest.latitude), first(southEast.latitude) + kMostLines);
    for (double i = first(southEast.latitude); i <= to; ++i) {
        const double latitude = i * step;
        if (std::abs(latitude) < Tessel::Geodetic::kMercatorLatitudeLimit) {
            const double y = projection.mercatorToWindow(toMercator({latitude, 0.0})).y;
            lines.push_back({false, y, graticuleLabel(latitude, step, false)});
        }
    }
    return lines;
}

} // namespace OpenStreet
