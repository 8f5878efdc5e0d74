#pragma once

#include <array>

namespace VELIX {

/// CANaerospace data type codes, as carried in byte 1 of a message and named in the profile.
enum EDataType : int {
    eNoData = 0,
    eError = 1,
    eFloat = 2,
    eLong = 3,
    eULong = 4,
    eBLong = 5,
    eShort = 6,
    eUShort = 7,
    eBShort = 8,
    eChar = 9,
    eUChar = 10,
    eBChar = 11,
    eShort2 = 12,
    eUShort2 = 13,
    eBShort2 = 14,
    eChar4 = 15,
    eUChar4 = 16,
    eBChar4 = 17,
    eChar2 = 18,
    eUChar2 = 19,
    eBChar2 = 20,
    eMemId = 21,
    eChkSum = 22,
    eAChar = 23,
    eAChar2 = 24,
    eAChar4 = 25,
    eChar3 = 26,
    eUChar3 = 27,
    eBChar3 = 28,
    eAChar3 = 29,
};

/// How the bytes of a value are read; several data types share one way.
enum class EExtraction {
    None,
    Float,
    Signed32,
    Unsigned32,
    Bits32,
    Signed16,
    Unsigned16,
    Bits16,
    Signed8,
    Unsigned8,
};

/// Returns the extraction of a data type code; None for codes that are not decoded or unknown.
inline EExtraction extractionOf(int dataType)
{
    using enum EExtraction;
    static constexpr std::array<EExtraction, 30> kTable = {
        None,     None,       Float,   Signed32,  Unsigned32, Bits32, // 0..5
        Signed16, Unsigned16, Bits16,  Signed8,   Unsigned8,  None,   // 6..11
        Signed16, Unsigned16, None,    Signed8,   Unsigned8,  None,   // 12..17
        Signed8,  Unsigned8,  None,    None,      None,       None,   // 18..23
        None,     None,       Signed8, Unsigned8, None,       None,   // 24..29
    };
    if (dataType < 0 || dataType >= static_cast<int>(kTable.size())) {
        return None;
    }
    return kTable[static_cast<std::size_t>(dataType)];
}

} // namespace VELIX
