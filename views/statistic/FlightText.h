#pragma once

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace VELIX {

struct FlightStatistic;
struct RecordFlight;

/// Writes the flights of a cycle as a table: the tow day at a glance.
class FlightText
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::DialogDataStatistic)

public:
    /// Returns a line per flight and, for several, their sums, as rich text; empty without flights.
    static QString flights(const std::vector<RecordFlight>& flights);
    /// Returns how to read the units of figures that were converted, as rich text; empty if none
    /// were.
    static QString unitNote(const FlightStatistic& statistic);
    /// Returns "hh:mm:ss" of whole seconds (truncated) as a time of day; "inf" or "nan" for these
    /// values.
    static QString timeOfDay(double seconds);
};

} // namespace VELIX
