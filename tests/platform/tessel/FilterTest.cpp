#include "platform/tessel/Filter.h"

#include <gtest/gtest.h>

#include <cmath>

using Tessel::Math::Filter::pt1;

namespace {

TEST(Pt1, ReachesTheKnownShareOfAStepAfterMultiplesOfItsTimeConstant)
{
    for (const double multiple : {1.0, 2.0, 5.0}) {
        const double share = 1.0 - std::exp(-multiple);
        EXPECT_NEAR(pt1(10.0, 110.0, 0.2, 0.2 * multiple), 10.0 + 100.0 * share, 1e-12);
    }
}

TEST(Pt1, CourseDoesNotDependOnTheStep)
{
    double fine = 0.0;
    for (int i = 0; i < 50; ++i) {
        fine = pt1(fine, -3.0, 0.2, 0.02);
    }
    EXPECT_NEAR(fine, pt1(0.0, -3.0, 0.2, 1.0), 1e-12);
}

TEST(Pt1, LongStepsDoNotOvershoot)
{
    EXPECT_DOUBLE_EQ(pt1(0.0, 8.0, 0.2, 1e6), 8.0);
}

TEST(Pt1, HandlesAbsentLagAndAbsentStep)
{
    EXPECT_EQ(pt1(1.0, 8.0, 0.0, 0.02), 8.0);
    EXPECT_EQ(pt1(1.0, 8.0, -1.0, 0.02), 8.0);
    EXPECT_EQ(pt1(1.0, 8.0, 0.2, 0.0), 1.0);
    EXPECT_EQ(pt1(1.0, 8.0, 0.2, -5.0), 1.0);
    EXPECT_EQ(pt1(1.0, 8.0, 0.0, 0.0), 8.0);
}

} // namespace
