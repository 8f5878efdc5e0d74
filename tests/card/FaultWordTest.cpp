#include "card/FaultWord.h"
#include "tests/card/CardFixture.h"

#include <cmath>

namespace VELIX::Test {
namespace {

TEST(FaultWord, HoldsFromItsSampleToTheNext)
{
    RecordBuilder record;
    record.id(1).at(10).blongValue(0x80001201).at(20).blongValue(2).at(30).blongValue(4);
    // out of order: the sample before the first later one counts
    record.id(2).at(10).blongValue(1).at(50).blongValue(2);
    record.at(20).blongValue(4).at(60).blongValue(8);
    const struct
    {
        std::uint32_t id;
        double time;
        std::uint32_t word;
    } rows[] = {{1, 9.98, 0},
                {1, 9.995, 0x80001201},
                {1, 19.98, 0x80001201},
                {1, 19.99, 2},
                {1, 29.98, 2},
                {1, 29.995, 0},
                {1, 1e300, 0},
                {1, -1, 0},
                {2, 30, 1},
                {2, 55, 4},
                {3, 15, 0}, // no such message
                {1, std::nan(""), 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(faultWordAt(record.data()->entries(row.id), row.time), row.word) << row.time;
    }
}

} // namespace
} // namespace VELIX::Test
