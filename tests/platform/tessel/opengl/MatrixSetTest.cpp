#include "platform/tessel/opengl/MatrixSet.h"

#include <gtest/gtest.h>

#include <array>

using Tessel::OpenGL::MatrixSet;

namespace {

std::array<double, 2> transform(const MatrixSet& set, double x, double y)
{
    const std::array<float, 16> m = set.product();
    return {m[0] * x + m[4] * y + m[12], m[1] * x + m[5] * y + m[13]};
}

TEST(MatrixSetTest, OrthoMapsTheBoxToTheViewPort)
{
    MatrixSet set;
    ASSERT_TRUE(set.setOrtho(64.0, 320.0, -16.0, 48.0));
    EXPECT_EQ(transform(set, 64.0, -16.0), (std::array<double, 2>{-1.0, -1.0}));
    EXPECT_EQ(transform(set, 320.0, 48.0), (std::array<double, 2>{1.0, 1.0}));
    EXPECT_EQ(transform(set, 256.0, 16.0), (std::array<double, 2>{0.5, 0.0}));
}

TEST(MatrixSetTest, AnEmptyBoxChangesNothing)
{
    MatrixSet set;
    ASSERT_TRUE(set.setOrtho(0.0, 2.0, 0.0, 2.0));
    EXPECT_FALSE(set.setOrtho(5.0, 5.0, 0.0, 1.0));
    EXPECT_FALSE(set.setOrtho(0.0, 1.0, 5.0, 5.0));
    EXPECT_FALSE(set.setOrtho(0.0, 1.0, 0.0, 1.0, 3.0, 3.0));
    EXPECT_EQ(transform(set, 1.0, 2.0), (std::array<double, 2>{0.0, 1.0}));
}

TEST(MatrixSetTest, LaterStepsActOnTheVertexFirst)
{
    MatrixSet set;
    set.translate(10.0, 20.0);
    set.scale(2.0, 3.0);
    EXPECT_EQ(transform(set, 1.0, 1.0), (std::array<double, 2>{12.0, 23.0}));
}

TEST(MatrixSetTest, PopBringsBackWhatPushKept)
{
    MatrixSet set;
    set.translate(1.0, 0.0);
    set.push();
    set.scale(5.0, 5.0);
    set.pop();
    EXPECT_EQ(transform(set, 1.0, 1.0), (std::array<double, 2>{2.0, 1.0}));
    set.pop(); // nothing kept
    EXPECT_EQ(transform(set, 1.0, 1.0), (std::array<double, 2>{2.0, 1.0}));
}

} // namespace
