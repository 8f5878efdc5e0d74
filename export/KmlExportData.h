#pragma once

#include <QString>

#include <vector>

namespace VELIX {

/// A value of a position that no sample has given.
inline constexpr double kKmlMissing = -1000.0;
/// Smaller values count as missing.
inline constexpr double kKmlLeastValid = -999.0;

/// One point of the exported path.
struct KmlExportData
{
    double latitude = kKmlMissing;  ///< degrees, north positive
    double longitude = kKmlMissing; ///< degrees, east positive
    double altitude = kKmlMissing;  ///< m above mean sea level
};

/// One line of the table that a viewer shows for a placemark.
struct KmlExportValue
{
    QString id;    ///< unique within its placemark
    QString label; ///< as shown
    QString text;
};

/// A placemark with the values of parameters.
struct KmlExportPlacemark
{
    QString name; ///< time of day
    KmlExportData position;
    std::vector<KmlExportValue> values;
};

/// A placemark of an event.
struct KmlExportError : KmlExportPlacemark
{
    double time = 0.0; ///< s on the record's time axis
};

} // namespace VELIX
