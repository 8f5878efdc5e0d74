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
constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

/// Between the second and the third of four heights. The curve has one slope from either side of a
/// height: where pixels are smaller than the distance of the posts, straight lines between them
/// would be shaded as facets. An unknown outer height is taken as if the slope went on.
double smooth(std::array<double, 4> z, double fraction)
{
    z[0] = std::isnan(z[0]) ? 2.0 * z[1] - z[2] : z[0];
    z[3] = std::isnan(z[3]) ? 2.0 * z[2] - z[1] : z[3];
    const double slope = (z[2] - z[0]) / 2.0;
    const double bend = z[0] - 2.5 * z[1] + 2.0 * z[2] - 0.5 * z[3];
    const double twist = 1.5 * (z[1] - z[2]) + (z[3] - z[0]) / 2.0;
    return z[1] + fraction * (slope + fraction * (bend + fraction * twist));
}

/// The height in a row of posts, so far behind a column.
double along(const std::vector<std::int16_t>& row, int column, double fraction)
{
    std::array<double, 4> heights{};
    for (int i = 0; i < 4; ++i) {
        const int at = column - 1 + i;
        const bool isKnown = at >= 0 && at < static_cast<int>(row.size()) &&
                             row[static_cast<std::size_t>(at)] != kVoid;
        heights[static_cast<std::size_t>(i)] =
            isKnown ? row[static_cast<std::size_t>(at)] : kUnknown;
    }
    return smooth(heights, fraction);
}

} // namespace

std::unique_ptr<TerrainFile> TerrainFile::open(const QString& path)
{
    std::unique_ptr<TerrainFile> result(new TerrainFile());
    result->mFile.setFileName(path);
    if (!result->mFile.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return nullptr;
    }
    const qint64 size = result->mFile.size();
    for (const int side : kSides) {
        if (size == static_cast<qint64>(side) * side * kPostBytes) {
            result->mSide = side;
        }
    }
    return result->mSide > 0 ? std::move(result) : nullptr;
}

float TerrainFile::height(double fromWest, double fromNorth)
{
    const double x = std::clamp(fromWest, 0.0, 1.0) * (mSide - 1);
    const double y = std::clamp(fromNorth, 0.0, 1.0) * (mSide - 1);
    const int column = std::min(static_cast<int>(x), mSide - 2);
    const int line = std::min(static_cast<int>(y), mSide - 2);
    std::array<double, 4> heights{};
    for (int i = 0; i < 4; ++i) {
        const int number = line - 1 + i;
        heights[static_cast<std::size_t>(i)] =
            number >= 0 && number < mSide ? along(row(number), column, x - column) : kUnknown;
    }
    return static_cast<float>(smooth(heights, y - line));
}

const std::vector<std::int16_t>& TerrainFile::row(int number)
{
    Row& kept = mRows[static_cast<std::size_t>(number) % mRows.size()];
    if (kept.number != number) {
        const qint64 bytes = static_cast<qint64>(mSide) * kPostBytes;
        kept.number = number;
        kept.posts.resize(static_cast<std::size_t>(mSide));
        auto* data = reinterpret_cast<char*>(kept.posts.data());
        if (mFile.seek(number * bytes) && mFile.read(data, bytes) == bytes) {
            qFromBigEndian<qint16>(data, mSide, data);
        } else {
            std::fill(kept.posts.begin(), kept.posts.end(), kVoid);
        }
    }
    return kept.posts;
}

} // namespace OpenStreet
