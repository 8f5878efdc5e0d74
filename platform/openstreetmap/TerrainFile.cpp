#include "platform/openstreetmap/TerrainFile.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace OpenStreet {

namespace {

constexpr std::array<int, 2> kSides{1201, 3601};
constexpr std::int16_t kVoid = -32768;
constexpr int kPostBytes = 2;

} // namespace

std::unique_ptr<TerrainFile> TerrainFile::open(const QString& path)
{
    std::unique_ptr<TerrainFile> result(new TerrainFile());
    result->mFile.setFileName(path);
    if (!result->mFile.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    const qint64 size = result->mFile.size();
    for (const int side : kSides) {
        if (size == static_cast<qint64>(side) * side * kPostBytes) {
            result->mSide = side;
            result->mData = result->mFile.map(0, size);
        }
    }
    return result->mData != nullptr ? std::move(result) : nullptr;
}

float TerrainFile::height(double fromWest, double fromNorth) const
{
    const double x = std::clamp(fromWest, 0.0, 1.0) * (mSide - 1);
    const double y = std::clamp(fromNorth, 0.0, 1.0) * (mSide - 1);
    const int column = std::min(static_cast<int>(x), mSide - 2);
    const int row = std::min(static_cast<int>(y), mSide - 2);
    const std::array<std::int16_t, 4> posts{post(column, row), post(column + 1, row),
                                            post(column, row + 1), post(column + 1, row + 1)};
    if (std::find(posts.begin(), posts.end(), kVoid) != posts.end()) {
        return std::numeric_limits<float>::quiet_NaN();
    }
    const double right = x - column;
    const double down = y - row;
    const double north = posts[0] * (1.0 - right) + posts[1] * right;
    const double south = posts[2] * (1.0 - right) + posts[3] * right;
    return static_cast<float>(north * (1.0 - down) + south * down);
}

std::int16_t TerrainFile::post(int column, int row) const
{
    const auto at = (static_cast<std::size_t>(row) * static_cast<std::size_t>(mSide) +
                     static_cast<std::size_t>(column)) *
                    kPostBytes;
    return qFromBigEndian<qint16>(mData + at);
}

} // namespace OpenStreet
