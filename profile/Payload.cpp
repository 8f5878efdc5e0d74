#include "profile/Payload.h"

namespace VELIX {

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
