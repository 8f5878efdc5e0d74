#pragma once

#include <string>

namespace VELIX {

/// How the graph is displayed, as its setup dialog edits it. Colours are names that QColor knows.
struct GraphData
{
    double xRange = 60.0; ///< s: width of the visible time range
    int displayMode = 1;  ///< 0: one scale for all traces, else one band for each
    int graphMode = 1;    ///< 1: the visible range follows the current time, 0: it stays
    int cursorMode = 1;   ///< 0 floating, 1 centre, 2 end
    std::string backColor = "#000000";
    bool gridOn = true;
    std::string gridColor = "#ff6666";
    std::string labelColor = "#000000";
    std::string labelBackColor = "#bbbbbb";
    bool cursorOn = true;
    bool legendOn = true;
    bool autoScaleOn = true;
    double yMin = -100.0; ///< lower end of the scale without autoscale
    double yMax = 100.0;  ///< upper end of the scale without autoscale

    bool operator==(const GraphData&) const = default;
};

} // namespace VELIX
