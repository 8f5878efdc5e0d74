#include "views/window/CursorRoutes.h"

#include "card/RecordData.h"
#include "views/common/DataView.h"

#include <gtest/gtest.h>

#include <deque>
#include <sstream>

namespace VELIX {
namespace {

/// Writes down every call.
struct NotingView : DataView
{
    NotingView(const char* viewName, std::ostream& sharedLog) : name(viewName), log(sharedLog) {}
    void setTime(double seconds) override { log << name << seconds << ' '; }
    void updateRecord(RecordData* record) override { log << name << (record ? "+ " : "- "); }
    void updateProfile() override { log << name << ' '; }

    const char* name;
    std::ostream& log;
};

TEST(CursorRoutesTest, ChangesReachTheViewsThatFollowThemInOrder)
{
    std::ostringstream log;
    std::deque<NotingView> views;
    CursorRoutes routes;
    const char* names[kViewCount] = {"table", "graph", "panel",     "matrix",
                                     "limit", "lamps", "statistic", "map"};
    for (std::size_t i = 0; i < kViewCount; ++i) {
        routes.setView(static_cast<EView>(i), views.emplace_back(names[i], log));
    }
    const auto noted = [&log](auto change) {
        log.str({});
        change();
        return log.str();
    };
    const std::pair<ECursorSource, const char*> rows[] = {
        {ECursorSource::Replay, "table7 graph7 panel7 matrix7 limit7 lamps7 map7 "},
        {ECursorSource::TimeEdit, "table7 graph7 panel7 matrix7 limit7 lamps7 map7 "},
        {ECursorSource::Graph, "table7 panel7 matrix7 limit7 lamps7 map7 "},
        {ECursorSource::Table, "graph7 panel7 matrix7 limit7 lamps7 map7 "},
        {ECursorSource::LimitList, "graph7 panel7 matrix7 table7 lamps7 map7 "},
        {ECursorSource::WarningList, "graph7 panel7 matrix7 table7 limit7 "},
        {ECursorSource::Reload, "table7 panel7 graph7 matrix7 limit7 lamps7 map7 "},
    };
    for (const auto& [source, order] : rows) {
        EXPECT_EQ(noted([&, from = source] { routes.setTime(from, 7.0); }), order);
    }
    RecordData record;
    EXPECT_EQ(noted([&] { routes.updateRecord(&record); }),
              "table+ graph+ panel+ matrix+ statistic+ limit+ lamps+ map+ ");
    EXPECT_EQ(noted([&] { routes.updateProfile(); }), "table graph matrix limit lamps map panel ");
}

} // namespace
} // namespace VELIX
