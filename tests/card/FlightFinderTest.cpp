#include "card/FlightFinder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace VELIX::Test {
namespace {

using Stretch = std::pair<int, double>; ///< so many samples of a speed

/// The flights in stretches of one sample a second from a time on, as "take-off-landing" times.
std::string flights(const std::vector<Stretch>& runs, double time = 100.0)
{
    FlightFinder finder;
    std::string text;
    for (const auto& [count, speed] : runs) {
        for (int i = 0; i < count; ++i, time += 1.0) {
            if (const auto flight = finder.add(time, speed)) {
                EXPECT_EQ(flight->startTime, std::max(0.0, flight->takeoffTime - 30.0));
                EXPECT_EQ(flight->stopTime, flight->landingTime + 30.0);
                text += std::to_string(static_cast<int>(flight->takeoffTime)) + "-" +
                        std::to_string(static_cast<int>(flight->landingTime)) + " ";
            }
        }
    }
    return text;
}

TEST(FlightFinder, CutsFlightsByGroundSpeed)
{
    const double nan = std::nan("");
    const struct
    {
        const char* name;
        std::vector<Stretch> runs;
        const char* flights;
    } rows[] = {
        {"twelve above 50, eleven below 40", {{12, 60}, {11, 30}}, "111-122 "},
        {"eleven above 50 are too few", {{11, 60}, {50, 30}}, ""},
        {"ten below 40 are too few", {{12, 60}, {10, 30}}, ""},
        {"50 does not start a take-off", {{30, 50}, {30, 30}}, ""},
        {"50 confirms one", {{1, 51}, {11, 50}, {11, 30}}, "111-122 "},
        {"a dip starts the count again", {{11, 60}, {1, 49}, {11, 60}, {50, 30}}, ""},
        {"and then needs twelve again", {{11, 60}, {1, 49}, {12, 60}, {11, 30}}, "123-134 "},
        {"40 confirms a landing", {{20, 60}, {1, 39}, {10, 40}}, "111-130 "},
        {"between 40 and 50 one flies on", {{20, 60}, {99, 45}, {11, 30}}, "111-229 "},
        {"a bounce starts the landing again", {{20, 60}, {10, 30}, {1, 41}, {11, 30}}, "111-141 "},
        {"40 right after take-off has landed", {{12, 60}, {1, 40}}, "111-112 "},
        {"flying at exactly 40 counts", {{13, 60}, {10, 40}}, "111-122 "},
        {"nine at exactly 40 do not", {{13, 60}, {9, 40}, {1, 41}, {9, 40}}, ""},
        {"falling from 40 counts again", {{13, 60}, {9, 40}, {10, 30}}, ""},
        {"no number confirms a take-off", {{1, 60}, {11, nan}, {1, 60}, {11, 30}}, "111-123 "},
        {"no number starts none", {{50, nan}, {50, 30}}, ""},
        {"no number in flight counts as 40", {{13, 60}, {10, nan}}, "111-122 "},
        {"no number confirms a landing", {{13, 60}, {1, 30}, {10, nan}}, "111-123 "},
        {"two flights", {{12, 60}, {11, 30}, {12, 60}, {11, 30}}, "111-122 134-145 "},
        {"an open flight is dropped", {{12, 60}, {11, 30}, {99, 60}}, "111-122 "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(flights(row.runs), row.flights);
    }
    EXPECT_EQ(flights({{12, 60}, {11, 30}}, 5.0), "16-27 ") << "kept from 0 on, not from -14";
}

} // namespace
} // namespace VELIX::Test
