#include "core/Progress.h"

#include <gtest/gtest.h>

#include <vector>

namespace VELIX::Test {
namespace {

class ProgressReports : public ::testing::Test
{
protected:
    /// Cancels at 50 per cent.
    Progress mProgress{Progress::Listener([this](int percent) {
        mReports.push_back(percent);
        return percent != 50;
    })};
    std::vector<int> mReports;
};

TEST_F(ProgressReports, PassOnEachWholePercentOnceAndNeverFall)
{
    for (const double percent : {0.0, 0.9, 1.0, 1.99, 30.0, 2.0, 30.5}) {
        EXPECT_TRUE(mProgress.reach(percent));
    }
    EXPECT_EQ(mReports, (std::vector<int>{0, 1, 30}));
    EXPECT_TRUE(mProgress.restart());
    EXPECT_TRUE(mProgress.restart());
    EXPECT_TRUE(mProgress.reach(10.0, 20.0, 1, 2));
    EXPECT_TRUE(mProgress.reach(10.0, 20.0, 0, 0)) << "a part without steps is done";
    EXPECT_EQ(mReports, (std::vector<int>{0, 1, 30, 0, 0, 15, 20}));
}

TEST_F(ProgressReports, StopOnceItIsCancelled)
{
    EXPECT_FALSE(mProgress.reach(50.5));
    EXPECT_FALSE(mProgress.reach(50.0));
    EXPECT_FALSE(mProgress.reach(60.0));
    EXPECT_FALSE(mProgress.restart());
    EXPECT_TRUE(mProgress.cancelled());
    EXPECT_EQ(mReports, (std::vector<int>{50}));

    Progress nobody;
    EXPECT_TRUE(nobody.reach(50.0));
    EXPECT_FALSE(nobody.cancelled());
}

} // namespace
} // namespace VELIX::Test
