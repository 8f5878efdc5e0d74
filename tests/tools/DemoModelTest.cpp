// What the messages of the finished card do not need: counts that do not fit their type.

#include "tools/democard/Message.h"
#include "tools/democard/Simulation.h"

#include <gtest/gtest.h>

namespace VELIX::Demo {
namespace {

struct EncodingCase
{
    const char* name;
    EDataType type;
    double value;
    double factor;
    double offset;
    int startByte;
    std::array<std::uint8_t, 4> data; ///< bytes 4 to 7
};

double gValue = 0.0; // the table's functions are plain pointers, so the value travels here

TEST(Message, EncodesBigEndianCountsThatFitTheType)
{
    const EncodingCase cases[] = {
        {"negative long", eLong, -3.0, 1.0, 0.0, 4, {0xFF, 0xFF, 0xFF, 0xFD}},
        {"all bits of a bit field", eBLong, 4294967295.0, 1.0, 0.0, 4, {0xFF, 0xFF, 0xFF, 0xFF}},
        {"factor, rounded half up", eUShort, 26.25, 0.1, 0.0, 4, {0x01, 0x07, 0, 0}},
        {"factor and offset", eShort2, 25.0, 0.25, -50.0, 4, {0x01, 0x2C, 0, 0}},
        {"negative byte", eChar, -7.4, 1.0, 0.0, 4, {0xF9, 0, 0, 0}},
        {"second byte of two", eUChar2, 35.0, 0.5, 0.0, 5, {0, 70, 0, 0}},
        {"too large for the type", eUChar, 300.0, 1.0, 0.0, 4, {0xFF, 0, 0, 0}},
        {"below the type", eUShort, -1.0, 1.0, 0.0, 4, {0, 0, 0, 0}},
    };
    for (const EncodingCase& c : cases) {
        gValue = c.value;
        const Message m{.id = 0x5AB,
                        .name = c.name,
                        .type = c.type,
                        .rate = 1,
                        .value = [](const UnitState&) { return gValue; },
                        .factor = c.factor,
                        .offset = c.offset,
                        .startByte = c.startByte};
        const std::array<std::uint8_t, 8> bytes = payload(m, UnitState(), 258);
        EXPECT_EQ(bytes[1], c.type) << c.name;
        EXPECT_EQ(bytes[3], 2) << c.name << ": the running number wraps";
        for (std::size_t i = 0; i < c.data.size(); ++i) {
            EXPECT_EQ(bytes[4 + i], c.data[i]) << c.name << " byte " << 4 + i;
        }
        EXPECT_EQ(sourceOf(m), 1) << c.name;
    }
}

} // namespace
} // namespace VELIX::Demo
