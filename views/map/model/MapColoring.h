#pragma once

#include "card/FlightPathPoint.h"

#include <QCoreApplication>
#include <QRgb>
#include <QString>

#include <vector>

namespace VELIX {

class Profile;
class RecordData;
struct ProfileParameter;

/// The colours of a path, with what its legend says of them.
struct MapColoring
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::MapColoring)

public:
    /// Colours by altitude, in the unit system of the profile.
    static MapColoring byAltitude(const std::vector<FlightPathPoint>& path, bool imperial);
    /// Colours by the value that a parameter had at each point; where it passes a threshold, in the
    /// threshold's colour. Points before its first sample take that one.
    static MapColoring byParameter(const std::vector<FlightPathPoint>& path,
                                   const RecordData& record, const Profile& profile,
                                   const ProfileParameter& parameter);

    /// Returns the colour at 0 (lowest value) to 1 (highest) of the scale.
    static QRgb scale(double fraction);

    /// A threshold that the values pass somewhere on the path.
    struct Passed
    {
        QString label;
        QRgb color = 0;
    };

    QString title;   ///< what is shown, with its unit
    QString lowest;  ///< value at the lower end of the scale
    QString highest; ///< value at its upper end; empty if all values are the same
    std::vector<Passed> passed;
    std::vector<QRgb> colors; ///< one for each point of the path
};

} // namespace VELIX
