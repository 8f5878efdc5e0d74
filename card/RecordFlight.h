#pragma once

#include <QDateTime>
#include <QString>

namespace VELIX {

/// Figures of one flight. Rates and times per height are infinite or NaN without a climb.
struct FlightStatistic
{
    bool valid = false;
    double flightTime = 0.0;  ///< s, take-off to landing
    double fuelA = 0.0;       ///< l, lane A
    double fuelB = 0.0;       ///< l, lane B
    double fuel = 0.0;        ///< l, both lanes
    double minAlt = 0.0;      ///< m
    double maxAlt = 0.0;      ///< m
    double climb = 0.0;       ///< m, maxAlt - minAlt
    double climbRate = 0.0;   ///< m/s, take-off to the highest point
    double descendRate = 0.0; ///< m/s, highest point to landing
    double maxSpeed = 0.0;    ///< ground speed in the unit of its parameter
    double timePer100 = 0.0;  ///< s per 100 m of climb
    double fuelPer100 = 0.0;  ///< l per 100 m of climb
    double distance = 0.0;    ///< m over ground from the start of the roll to lift-off
    double distance15 = 0.0;  ///< m over ground from the start of the roll to 15 m height

    // The figures stay as they were decoded when the cycle was loaded. Where the unit system in
    // force then converted the values, this is what the units above really are; else empty.
    QString heightUnit; ///< for m but not for the distances
    QString speedUnit;  ///< for km/h
    QString fuelUnit;   ///< for l
};

/// One flight of a power cycle. Times are seconds on the unit's clock.
struct RecordFlight
{
    QDateTime dateTime;        ///< cycle date plus the whole seconds of the take-off time
    double startTime = 0.0;    ///< 30 s before take-off, not below 0
    double stopTime = 0.0;     ///< 30 s after landing
    double takeoffTime = 0.0;  ///< sample that confirmed the take-off
    double landingTime = 0.0;  ///< sample that confirmed the landing
    FlightStatistic statistic; ///< valid only for a computed flight
};

} // namespace VELIX
