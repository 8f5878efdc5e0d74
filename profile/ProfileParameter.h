#pragma once

#include "profile/ProfileUid.h"
#include "profile/ProfileUnit.h"

#include <QMetaType>
#include <QString>

namespace VELIX {

/// Which coordinate a parameter carries; decoding filters positions.
enum class ECoordinate { None, Latitude, Longitude };

/// One value of a CANaerospace message: its position, how it is scaled, shown and judged.
struct ProfileParameter
{
    QString name;
    QString fullName; ///< device name + "/" + name
    QString unitMetric;
    QString unitImperial;
    QString viewId; ///< binds the value to the instrument view
    QString reserved;
    int dataType = 0;      ///< EDataType
    QString velixDataType; ///< role of the value for the program, for example "Latitude"
    int enumId = 0;        ///< 0: no enumeration
    int thresholdId = 0;   ///< 0: no thresholds
    int id = 0;            ///< CAN identifier
    int startByte = 0;     ///< first byte, counted from the start of the record entry
    int startBit = 0;
    int endBit = 0; ///< inclusive
    double offset = 0.0;
    double factor = 1.0;
    int precision = 6; ///< decimals shown of a FLOAT value
    int uid = ProfileUid::next();
    bool selected = false; ///< chosen by the user for views and exports
    int errorType = 0;     ///< 0 none, 1 "Info", 2 "Warning", 3 "Fault"

    // Resolved while loading, so that decoding a sample needs no look-up by text.
    ECoordinate coordinate = ECoordinate::None;
    ProfileUnit toImperial;     ///< identity if the profile knows no conversion
    bool hasConversion = false; ///< the profile names the conversion of this unit pair

    double scaled(double value) const { return value * factor + offset; }
    /// Returns the name, with the unit in brackets if there is one.
    QString label(const QString& unit) const;
};

} // namespace VELIX

Q_DECLARE_METATYPE(VELIX::ProfileParameter*)
