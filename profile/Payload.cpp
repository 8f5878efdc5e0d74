#include "profile/Payload.h"

#include <QtEndian>

#include <bit>
#include <cstring>
#include <type_traits>

namespace VELIX {

static_assert(std::is_trivially_copyable_v<RecordEntry>);

template <class T>
T Payload::raw(int position) const
{
    T value = 0;
    if (position >= 0 && position <= static_cast<int>(kEntryBytes - sizeof(T))) {
        std::memcpy(&value, reinterpret_cast<const char*>(&mEntry) + position, sizeof(T));
    }
    return value;
}

std::uint8_t Payload::byte(int position) const
{
    return raw<std::uint8_t>(position);
}

std::uint16_t Payload::word16(int position) const
{
    return qFromBigEndian(raw<std::uint16_t>(position));
}

std::uint32_t Payload::word32(int position) const
{
    return qFromBigEndian(raw<std::uint32_t>(position));
}

std::uint32_t Payload::word32LittleEndian(int position) const
{
    return qFromLittleEndian(raw<std::uint32_t>(position));
}

double Payload::real(int position) const
{
    return static_cast<double>(std::bit_cast<float>(word32(position)));
}

std::uint32_t bitField(std::uint32_t word, int width, int startBit, int endBit)
{
    if (startBit < 0 || endBit < startBit || endBit >= width) {
        return 0;
    }
    const int count = endBit - startBit + 1;
    const std::uint32_t mask = count >= 32 ? 0xFFFFFFFFU : (1U << count) - 1U;
    return (word >> startBit) & mask;
}

} // namespace VELIX
