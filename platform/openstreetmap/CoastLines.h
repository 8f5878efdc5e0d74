#pragma once

#include "platform/openstreetmap/MapProjection.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace OpenStreet {

/// The coasts of the world as lines on the map, for when there are no tiles.
///
/// The file: "COAST1\n", then per line a little-endian 32-bit number of points and as many pairs
/// of little-endian 32-bit integers, longitude and latitude in millionths of a degree.
class CoastLines
{
public:
    struct Line
    {
        std::vector<MercatorPoint> points;
        MercatorPoint least; ///< corners of the rectangle around it
        MercatorPoint most;
    };

    /// A file of the system or of the program's resources; false leaves no lines.
    [[nodiscard]] bool load(const QString& file);
    [[nodiscard]] bool parse(const QByteArray& content);
    [[nodiscard]] const std::vector<Line>& lines() const { return mLines; }

    /// What the window shows of them as pairs of ends of lines, in device pixels.
    [[nodiscard]] std::vector<WindowPoint> segments(const MapProjection& projection) const;

private:
    std::vector<Line> mLines;
};

} // namespace OpenStreet
