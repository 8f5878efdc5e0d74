#pragma once

#include <QFile>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace OpenStreet {

/// Heights of one square degree: an .hgt file of 1201 or 3601 rows of as many big-endian 16-bit
/// metres, from the north-western corner; the borders are shared with the neighbours. Rows are read
/// when they are asked for, the last four are kept: a file that shrinks in the meantime has holes.
class TerrainFile
{
public:
    /// Null if there is no such file or its size is none of the two.
    static std::unique_ptr<TerrainFile> open(const QString& path);

    /// Metres above sea level, or not a number where a height is missing. Fractions 0..1 of the
    /// square, from its western and its northern border.
    [[nodiscard]] float height(double fromWest, double fromNorth);

private:
    struct Row
    {
        int number = -1;
        std::vector<std::int16_t> posts;
    };

    TerrainFile() = default;

    const std::vector<std::int16_t>& row(int number);

    QFile mFile;
    int mSide = 0;
    std::array<Row, 4> mRows; ///< one for each neighbour
};

} // namespace OpenStreet
