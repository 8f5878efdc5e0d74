#pragma once

#include "profile/DataType.h"

#include <array>
#include <cstdint>

namespace VELIX::Demo {

struct UnitState;

/// One message of the bus: what it carries and how often it is sent.
struct Message
{
    std::uint32_t id; ///< CAN identifier
    const char* name; ///< full name of the profile's parameter
    EDataType type;
    int rate; ///< 1/s; divides 20
    /// In the profile's unit; the whole word of a bit field.
    double (*value)(const UnitState& s);
    double factor = 1.0;        ///< value of one count of an integer
    double offset = 0.0;        ///< value of the integer 0
    bool needsPosition = false; ///< sent only while the receiver knows the position
    int startByte = 4;
};

/// 0 and 1: the lanes of the engine control, as their messages say; 2: the airframe's unit.
std::uint16_t sourceOf(const Message& m);

/// The eight bytes on the bus. `count`: running number that the fourth byte carries.
std::array<std::uint8_t, 8> payload(const Message& m, const UnitState& s, std::uint32_t count);

} // namespace VELIX::Demo
