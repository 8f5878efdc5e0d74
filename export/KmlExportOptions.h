#pragma once

#include <string>
#include <vector>

namespace VELIX {

struct ProfileParameter;

/// What the KML export writes and where. Colours are six hex digits RRGGBB.
struct KmlExportOptions
{
    std::string directory = ".";              ///< UTF-8
    std::string fileName = "ExportVelix.kml"; ///< UTF-8; ".kmz" at its end writes a zipped document
    int timeStep = 1;                         ///< s from one path point to the next
    int lineWidth = 1;                        ///< pixels
    std::string lineColor = "ff0000";
    int lineAlpha = 255;   ///< opacity of the path, 0 to 255
    bool polygonOn = true; ///< a curtain from the path down to the terrain
    std::string polygonColor = "0000ff";
    int polygonAlpha = 100;     ///< opacity of the curtain, 0 to 255
    bool placeMarkOn = true;    ///< placemarks with the values of the chosen parameters
    int placeMarkInterval = 10; ///< path steps from one of them to the next
    std::string placeMarkColor = "ffcc00";
    bool errorMarkOn = true; ///< placemarks of events: those of the two switches below
    bool showLimit = true;
    bool showWarning = true;
    std::string errorMarkColor = "ff0000";
    /// Keeps to the schema of KML 2.2 (namespace, order of elements, "#" before a style's name),
    /// with the same content.
    bool standard = false;
    /// The parameters of the placemarks, in profile order; valid until the profile is loaded again.
    std::vector<const ProfileParameter*> parameters;
};

} // namespace VELIX
