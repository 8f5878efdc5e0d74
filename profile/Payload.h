#pragma once

#include "core/RecordEntry.h"

#include <QtEndian>

#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace VELIX {

/// Reads numbers out of the addressable bytes of an entry. What is outside of them reads as 0.
///
/// It is inline, since every sample that is shown or written passes here.
class Payload
{
public:
    explicit Payload(const RecordEntry& entry) : mEntry(entry) {}

    std::uint8_t byte(int position) const { return raw<std::uint8_t>(position); }
    std::uint16_t word16(int position) const ///< big-endian
    {
        return qFromBigEndian(raw<std::uint16_t>(position));
    }
    std::uint32_t word32(int position) const ///< big-endian
    {
        return qFromBigEndian(raw<std::uint32_t>(position));
    }
    std::uint32_t word32LittleEndian(int position) const
    {
        return qFromLittleEndian(raw<std::uint32_t>(position));
    }
    double real(int position) const ///< single precision, big-endian
    {
        return static_cast<double>(std::bit_cast<float>(word32(position)));
    }

private:
    template <class T>
    T raw(int position) const
    {
        static_assert(std::is_trivially_copyable_v<RecordEntry>);
        T value = 0;
        if (position >= 0 && position <= static_cast<int>(kEntryBytes - sizeof(T))) {
            std::memcpy(&value, reinterpret_cast<const char*>(&mEntry) + position, sizeof(T));
        }
        return value;
    }

    const RecordEntry& mEntry;
};

/// Returns the bits startBit to endBit (inclusive) of a word of the given width, shifted down; 0 if
/// they are not all inside the word.
std::uint32_t bitField(std::uint32_t word, int width, int startBit, int endBit);

} // namespace VELIX
