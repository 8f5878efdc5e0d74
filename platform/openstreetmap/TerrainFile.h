#pragma once

#include <QFile>
#include <QString>

#include <cstdint>
#include <memory>

namespace OpenStreet {

/// Heights of one square degree: an .hgt file of 1201 or 3601 rows of as many big-endian 16-bit
/// metres, from the north-western corner; the borders are shared with the neighbours. The file is
/// mapped into memory, not read.
class TerrainFile
{
public:
    /// Null if there is no such file or its size is none of the two.
    static std::unique_ptr<TerrainFile> open(const QString& path);

    /// Metres above sea level, or not a number where a height is missing. Fractions 0..1 of the
    /// square, from its western and its northern border.
    [[nodiscard]] float height(double fromWest, double fromNorth) const;

private:
    TerrainFile() = default;

    [[nodiscard]] std::int16_t post(int column, int row) const;

    QFile mFile;
    const unsigned char* mData = nullptr;
    int mSide = 0;
};

} // namespace OpenStreet
