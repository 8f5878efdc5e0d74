#include "card/FaultWord.h"
#include "card/RecordData.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace VELIX::Test {
namespace {

TEST(FaultWord, IsTheSecondHalfOfThePayload)
{
    RecordEntry entry;
    entry.data = {0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0x00, 0x12, 0x01};
    EXPECT_EQ(faultWord(entry), 0x80001201U);
}

TEST(FaultWord, HoldsFromItsSampleToTheNext)
{
    RecordBuilder record;
    record.id(1).at(10).blongValue(1).at(20).blongValue(2).at(30).blongValue(4);
    const auto data = record.data();
    const struct
    {
        double time;
        std::uint32_t word;
    } rows[] = {{0, 0},     {9.98, 0},   {9.995, 1}, {10, 1}, {19.98, 1}, {19.99, 2}, {25, 2},
                {29.98, 2}, {29.995, 0}, {30, 0},    {99, 0}, {-1, 0},    {1e300, 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(faultWordAt(data->entries(1), row.time), row.word) << row.time;
    }
    EXPECT_EQ(faultWordAt(data->entries(1), std::nan("")), 0U);
    EXPECT_EQ(faultWordAt(data->entries(2), 15), 0U) << "no such message";
}

TEST(FaultWord, TakesTheSampleBeforeTheFirstLaterOneAlsoOutOfOrder)
{
    RecordBuilder record;
    record.id(1).at(10).blongValue(1).at(50).blongValue(2).at(20).blongValue(4).at(60).blongValue(
        8);
    EXPECT_EQ(faultWordAt(record.data()->entries(1), 30), 1U);
    EXPECT_EQ(faultWordAt(record.data()->entries(1), 55), 4U);
}

} // namespace
} // namespace VELIX::Test
