#include "views/window/CursorRoutes.h"

#include "card/RecordData.h"
#include "views/common/DataView.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace VELIX {
namespace {

/// Notes its name whenever it is called.
class FakeView : public DataView
{
public:
    FakeView(std::string name, std::string& log) : mName(std::move(name)), mLog(log) {}
    void setTime(double seconds) override
    {
        note();
        mTime = seconds;
    }
    void updateRecord(RecordData* record) override
    {
        note();
        mRecord = record;
    }
    void updateProfile() override { note(); }

    double mTime = -1.0;
    RecordData* mRecord = nullptr;

private:
    void note() { mLog += (mLog.empty() ? "" : " ") + mName; }

    std::string mName;
    std::string& mLog;
};

struct CursorRoutesTest : ::testing::Test
{
    CursorRoutesTest()
    {
        const char* names[kViewCount] = {"table", "graph",   "instrument", "matrix",
                                         "limit", "warning", "statistic",  "map"};
        for (std::size_t i = 0; i < kViewCount; ++i) {
            routes.setView(static_cast<EView>(i), views.emplace_back(names[i], log));
        }
    }
    std::string reached(ECursorSource source)
    {
        log.clear();
        routes.setTime(source, 12.5);
        return log;
    }

    std::string log;
    std::deque<FakeView> views;
    CursorRoutes routes;
};

TEST_F(CursorRoutesTest, EachSourceReachesItsViewsInOrder)
{
    const char* everywhere = "table graph instrument matrix limit warning map";
    EXPECT_EQ(reached(ECursorSource::Replay), everywhere);
    EXPECT_EQ(reached(ECursorSource::TimeEdit), everywhere);
    EXPECT_EQ(reached(ECursorSource::Graph), "table instrument matrix limit warning map");
    EXPECT_EQ(reached(ECursorSource::Table), "graph instrument matrix limit warning map");
    EXPECT_EQ(reached(ECursorSource::LimitList), "graph instrument matrix table warning map");
    EXPECT_EQ(reached(ECursorSource::WarningList), "graph instrument matrix table limit");
    EXPECT_EQ(reached(ECursorSource::Reload), "table instrument graph matrix limit warning map");
    EXPECT_EQ(views.front().mTime, 12.5);
}

TEST_F(CursorRoutesTest, RecordAndProfileReachTheirViewsInOrder)
{
    RecordData record;
    routes.updateRecord(&record);
    EXPECT_EQ(log, "table graph instrument matrix statistic limit warning map");
    EXPECT_EQ(views.back().mRecord, &record);
    log.clear();
    routes.updateProfile();
    EXPECT_EQ(log, "table graph matrix limit warning map instrument");
}

} // namespace
} // namespace VELIX
