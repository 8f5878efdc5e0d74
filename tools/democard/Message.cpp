#include "tools/democard/Message.h"

#include "tools/democard/Simulation.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace VELIX::Demo {

namespace {

constexpr std::size_t kTypeByte = 1;
constexpr std::size_t kCountByte = 3;

struct IntegerRange
{
    double low;
    double high;
    int bytes;
};

IntegerRange rangeOf(EExtraction how)
{
    switch (how) {
    case EExtraction::Signed32:
        return {-2147483648.0, 2147483647.0, 4};
    case EExtraction::Signed16:
        return {-32768.0, 32767.0, 2};
    case EExtraction::Unsigned16:
    case EExtraction::Bits16:
        return {0.0, 65535.0, 2};
    case EExtraction::Signed8:
        return {-128.0, 127.0, 1};
    case EExtraction::Unsigned8:
        return {0.0, 255.0, 1};
    default:
        return {0.0, 4294967295.0, 4};
    }
}

} // namespace

std::uint16_t sourceOf(const Message& m)
{
    switch (m.id >> 8U) {
    case 0x4:
        return 0;
    case 0x5:
        return 1;
    default:
        return 2;
    }
}

std::array<std::uint8_t, 8> payload(const Message& m, const UnitState& s, std::uint32_t count)
{
    const double value = m.value(s);
    const EExtraction how = extractionOf(m.type);
    std::uint32_t word = 0;
    int bytes = 4;
    if (how == EExtraction::Float) {
        word = std::bit_cast<std::uint32_t>(static_cast<float>(value));
    } else {
        const IntegerRange range = rangeOf(how);
        const double raw = std::floor((value - m.offset) / m.factor + 0.5);
        word = static_cast<std::uint32_t>(
            static_cast<std::int64_t>(std::clamp(raw, range.low, range.high)));
        bytes = range.bytes;
    }
    std::array<std::uint8_t, 8> data{};
    data[0] = static_cast<std::uint8_t>(16 + sourceOf(m));
    data[kTypeByte] = static_cast<std::uint8_t>(m.type);
    data[kCountByte] = static_cast<std::uint8_t>(count);
    for (int i = 0; i < bytes; ++i) {
        data[static_cast<std::size_t>(m.startByte) + static_cast<std::size_t>(i)] =
            static_cast<std::uint8_t>(word >> (8 * (bytes - 1 - i)));
    }
    return data;
}

} // namespace VELIX::Demo
