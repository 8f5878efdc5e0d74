#include "views/map/model/MapTexts.h"

#include "card/CardContainer.h"
#include "platform/tessel/Geodetic.h"
#include "profile/Profile.h"

#include <algorithm>
#include <cmath>

namespace VELIX::MapTexts {

namespace {

using Tessel::Geodetic::kMetresPerNauticalMile;
constexpr double kMetresPerFoot = 0.3048;
constexpr double kMetresPerKm = 1000.0;
/// Below a tenth of a mile people think in feet.
constexpr double kLeastNm = 0.1;

double roundStep(double most)
{
    const double power = std::pow(10.0, std::floor(std::log10(most) + 1e-12));
    for (const double step : {5.0, 2.0}) {
        if (step * power <= most * (1.0 + 1e-12)) {
            return step * power;
        }
    }
    return power;
}

QString hemisphere(double degrees, const char* positive, const char* negative)
{
    return QStringLiteral("%1\u00b0 %2")
        .arg(std::abs(degrees), 0, 'f', 5)
        .arg(QLatin1String(degrees < 0.0 ? negative : positive));
}

} // namespace

MapScaleBar scaleBar(double mostMetres, bool imperial)
{
    if (!(mostMetres > 0.0) || !std::isfinite(mostMetres)) {
        return {};
    }
    double unit = mostMetres >= kMetresPerKm ? kMetresPerKm : 1.0;
    QString name = unit > 1.0 ? QStringLiteral("km") : QStringLiteral("m");
    if (imperial) {
        const bool far = mostMetres >= kLeastNm * kMetresPerNauticalMile;
        unit = far ? kMetresPerNauticalMile : kMetresPerFoot;
        name = far ? QStringLiteral("NM") : QStringLiteral("ft");
    }
    const double step = roundStep(mostMetres / unit);
    return {step * unit, QStringLiteral("%1 %2").arg(step, 0, 'g', 6).arg(name)};
}

QString position(double latitude, double longitude)
{
    return hemisphere(latitude, "N", "S") + QStringLiteral("  ") + hemisphere(longitude, "E", "W");
}

QString moment(const FlightPathPoint& point, bool imperial)
{
    constexpr int kTenths = 10; // "hh:mm:ss.z"
    const double altitude = imperial ? point.altitude / kMetresPerFoot : point.altitude;
    return QStringLiteral("%1  %2 %3")
        .arg(CardContainer::time(point.time).left(kTenths))
        .arg(altitude, 0, 'f', 0)
        .arg(imperial ? QStringLiteral("ft") : QStringLiteral("m"));
}

QString label(const Profile& profile, const ProfileParameter& parameter)
{
    const auto selected = profile.selectedParameters();
    const auto sameName =
        std::count_if(selected.begin(), selected.end(),
                      [&](const ProfileParameter* other) { return other->name == parameter.name; });
    return sameName > 1 ? parameter.fullName : parameter.name;
}

} // namespace VELIX::MapTexts
