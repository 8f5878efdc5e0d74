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
    const std::int16_t* upper = row(line).data() + column;
    const std::int16_t* lower = row(line + 1).data() + column;
    const std::array<std::int16_t, 4> posts{upper[0], upper[1], lower[0], lower[1]};
    if (std::find(posts.begin(), posts.end(), kVoid) != posts.end()) {
        return std::numeric_limits<float>::quiet_NaN();
    }
    const double right = x - column;
    const double down = y - line;
    const double north = posts[0] * (1.0 - right) + posts[1] * right;
    const double south = posts[2] * (1.0 - right) + posts[3] * right;
    return static_cast<float>(north * (1.0 - down) + south * down);
}

const std::vector<std::int16_t>& TerrainFile::row(int number)
{
    Row& kept = mRows[static_cast<std::size_t>(number) % mRows.size()];
    if (kept.number != number) {
        const auto posts = static_cast<std::size_t>(mSide);
        const auto bytes = static_cast<qint64>(posts * kPostBytes);
        kept.number = number;
        kept.posts.resize(posts);
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
