#pragma once

#include <QColor>
#include <QString>

#include <cstdint>
#include <string>

namespace VELIX {

/// One moment at which a parameter entered its warning or limit band.
struct RecordLimit
{
    double time = 0.0;     ///< seconds on the record's time axis: the sample that starts the event
    std::string name;      ///< "device parameter", UTF-8
    std::string value;     ///< "value label", UTF-8
    QString text;          ///< both
    QColor color;          ///< invalid if none was given
    std::uint32_t key = 0; ///< time in tenths of a second, rounded
};

/// One moment at which a warning lamp changed to a lit state.
struct RecordWarning : RecordLimit
{};

} // namespace VELIX
