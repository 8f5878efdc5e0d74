#include "platform/tessel/Filter.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(Pt1, ReachesItsShareOfAStep)
{
    const struct
    {
        double output;
        double input;
        double timeConstant;
        double step;
        double expected;
    } rows[] = {{10.0, 110.0, 0.2, 0.2, 110.0 - 100.0 * std::exp(-1.0)},
                {10.0, 110.0, 0.2, 1.0, 110.0 - 100.0 * std::exp(-5.0)},
                {0.0, 8.0, 0.2, 1e6, 8.0},
                {1.0, 8.0, 0.0, 0.02, 8.0},
                {1.0, 8.0, -1.0, 0.02, 8.0},
                {1.0, 8.0, 0.2, 0.0, 1.0},
                {1.0, 8.0, 0.2, -5.0, 1.0},
                {1.0, 8.0, 0.0, 0.0, 8.0}};
    for (const auto& row : rows) {
        EXPECT_NEAR(Tessel::Math::Filter::pt1(row.output, row.input, row.timeConstant, row.step),
                    row.expected, 1e-12)
            << row.timeConstant << ' ' << row.step;
    }
}

} // namespace
