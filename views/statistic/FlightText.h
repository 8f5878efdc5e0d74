#pragma once

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace VELIX {

struct FlightStatistic;
struct RecordFlight;

/// The flights of a cycle as a table: the tow day at a glance.
class FlightText
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::DialogDataStatistic)

public:
    /// Rich text: a line per flight and, for several, their sums. Empty without flights.
    static QString flights(const std::vector<RecordFlight>& flights);
    /// Rich text: how to read the units of figures that were converted; empty if none were.
    static QString unitNote(const FlightStatistic& statistic);
    /// "hh:mm:ss" of whole seconds (truncated) as a time of day; "inf" or "nan" for what is none.
    static QString timeOfDay(double seconds);
};

} // namespace VELIX
