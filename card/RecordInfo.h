#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace VELIX {

/// What the header of a record file says.
struct RecordInfo
{
    QString fileName;       ///< path as given to the reader
    QDateTime dateTime;     ///< start of the recording, UTC; invalid for an impossible date
    double startTime = 0.0; ///< s on the unit's clock: first entry, or the header's without one
    double stopTime = 0.0;  ///< s on the unit's clock: last entry
    std::uint32_t sampleCount = 0;
    bool dateInvalid = false; ///< set by the card: the header held no valid date
    std::int32_t busType = 0;
    std::uint32_t ecuSerialNumber = 0;
    QString softwarePartA;
    QString ecuType;
    QString engineSerial;
    QString engineType;
    QString softwarePartB;
    QString emuSwVersion;
};

} // namespace VELIX
