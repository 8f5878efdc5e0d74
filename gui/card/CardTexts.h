#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QDateTime;

namespace VELIX {

struct RecordCycle;
struct RecordFlight;
struct RecordInfo;

/// The lines in which the card browser names cycles, flights and record files.
class CardTexts
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::DialogCard)

public:
    /// Name, start and length of a cycle. The unit's clock may run on before the cycle's first
    /// file, so its length is from the start of its first to the end of its last file.
    static QString cycle(const RecordCycle& cycle);
    /// Number (from 1), time of day of the take-off and flight time. In a cycle without a date the
    /// take-off is given on the unit's clock, as the time displays do.
    static QString flight(int number, const RecordFlight& flight);
    /// Day, take-off and landing.
    static QString flightDetails(const RecordFlight& flight);
    /// "d.M.yyyy h:mm:ss" or "Unknown Date".
    static QString dateTime(const QDateTime& dateTime);
    /// Start and stop of a file on the unit's clock.
    static QString summary(const RecordInfo& info);
    /// One "label: value" line per field of a file's header.
    static QStringList details(const RecordInfo& info);
    /// "hh:mm:ss" of a number of seconds; negative ones count as 0, hours do not wrap.
    static QString clock(double seconds);
};

} // namespace VELIX
