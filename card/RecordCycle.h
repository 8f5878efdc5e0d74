#pragma once

#include "card/RecordFile.h"
#include "card/RecordFlight.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace VELIX {

/// One power-up of the unit: consecutive record files and the flights in them.
struct RecordCycle
{
    QString name;                      ///< "Cycle N"; empty for the files ahead of the first cycle
    QDateTime dateTime;                ///< of the file that opened the cycle; invalid if unknown
    std::vector<RecordFile> files;     ///< card order
    std::vector<RecordFlight> flights; ///< known once the cycle was loaded
    double stopTime = 0.0;             ///< s on the unit's clock: end of the last file
};

} // namespace VELIX
