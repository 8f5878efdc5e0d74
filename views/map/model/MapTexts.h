#pragma once

#include "card/FlightPathPoint.h"

#include <QString>

namespace VELIX {

class Profile;
struct ProfileParameter;

/// A length that is easy to read, and how long it is.
struct MapScaleBar
{
    double metres = 0.0;
    QString text;
};

/// What the map writes.
namespace MapTexts {

/// The attribution that the licence of the map's data asks for.
inline constexpr const char* kAttribution = "(c) OpenStreetMap contributors";

/// Returns the longest of 1, 2 and 5 times a power of ten that is not longer than so many metres;
/// km, or NM in the imperial system, m or ft where it is short.
MapScaleBar scaleBar(double mostMetres, bool imperial);

/// Returns a place as "47.12345° N  8.12345° E".
QString position(double latitude, double longitude);
/// Returns time of day and altitude, as "00:12:31.4  1234 m".
QString moment(const FlightPathPoint& point, bool imperial);
/// Returns the label of a parameter among the selected ones: its name, with its device where
/// another device has a parameter of that name.
QString label(const Profile& profile, const ProfileParameter& parameter);

} // namespace MapTexts
} // namespace VELIX
