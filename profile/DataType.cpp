#include "profile/DataType.h"

#include <array>

namespace VELIX {

EExtraction extractionOf(int dataType)
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
