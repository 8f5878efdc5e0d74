#pragma once

#include "core/RecordEntry.h"

#include <cstdint>

namespace VELIX {

/// Reads numbers out of the addressable bytes of an entry. What is outside of them reads as 0.
class Payload
{
public:
    explicit Payload(const RecordEntry& entry) : mEntry(entry) {}

    std::uint8_t byte(int position) const;
    std::uint16_t word16(int position) const; ///< big-endian
    std::uint32_t word32(int position) const; ///< big-endian
    std::uint32_t word32LittleEndian(int position) const;
    double real(int position) const; ///< single precision, big-endian

private:
    template <class T>
    T raw(int position) const;

    const RecordEntry& mEntry;
};

/// Returns the bits startBit to endBit (inclusive) of a word of the given width, shifted down; 0 if
/// they are not all inside the word.
std::uint32_t bitField(std::uint32_t word, int width, int startBit, int endBit);

} // namespace VELIX
