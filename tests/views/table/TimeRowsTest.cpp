#include "views/table/TimeRows.h"

#include "card/RecordData.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

namespace VELIX {
namespace {

using Test::RecordBuilder;

std::vector<std::uint32_t> keysOf(const TimeRows& rows)
{
    std::vector<std::uint32_t> keys;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        keys.push_back(rows.key(i));
    }
    return keys;
}

TEST(TimeRowsTest, RowsAreTheTenthsOfAllListsInAscendingOrder)
{
    RecordBuilder record;
    for (const double time : {1.0, 1.04, 1.06, 3.0, 2.0}) {
        record.at(time).id(1).floatValue(0.0F);
    }
    record.at(0.0).id(2).floatValue(0.0F).at(3.0).floatValue(0.0F);
    const auto data = record.data();
    const TimeRows rows({&data->entries(1), &data->entries(2), &data->entries(99)});
    EXPECT_EQ(keysOf(rows), (std::vector<std::uint32_t>{0, 10, 11, 20, 30}));
}

TEST(TimeRowsTest, ADamagedTimeFarAheadCostsOneRow)
{
    RecordBuilder record;
    record.at(1.0).id(1).floatValue(0.0F).at(2.0e8).floatValue(0.0F).at(1.1).floatValue(0.0F);
    const auto data = record.data();
    EXPECT_EQ(keysOf(TimeRows({&data->entries(1)})),
              (std::vector<std::uint32_t>{10, 11, 2'000'000'000}));
}

TEST(TimeRowsTest, RowsAreFoundFromAnyStartingPoint)
{
    RecordBuilder record;
    for (int i = 0; i < 200; ++i) {
        record.at(i * 0.3).id(1).floatValue(0.0F);
    }
    const auto data = record.data();
    const TimeRows rows({&data->entries(1)});
    ASSERT_EQ(rows.size(), 200U);
    for (const std::size_t last : {0U, 57U, 199U}) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            EXPECT_EQ(rows.row(rows.key(row), last), row);
        }
    }
}

} // namespace
} // namespace VELIX
