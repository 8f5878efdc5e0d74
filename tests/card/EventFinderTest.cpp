#include "card/LimitFinder.h"
#include "card/RecordData.h"
#include "card/WarningFinder.h"
#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/ProfileBuilder.h"
#include "tests/support/RecordBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace VELIX::Test {
namespace {

ProfileBuilder heatProfile()
{
    ProfileBuilder builder;
    builder
        .threshold("Heat",
                   {{0, "#00ff00", "OK"}, {100, "#ffff00", "WARNING"}, {120, "#ff0000", "LIMIT"}})
        .enumeration("WarningLamp", {{0, "off"}, {1, "amber"}, {2, "red"}})
        .enumeration("Other", {{0, "off"}, {1, "on"}})
        .device("ECU A")
        .parameter(1, QStringLiteral("Oil"), "FLOAT")
        .set("thresholdId", "Heat")
        .set("viewId", "oilview")
        .set("unitMetric", "C")
        .set("precision", "1");
    return builder;
}

/// "time name | value | text" of each event.
template <class Event>
std::string described(const std::vector<Event>& events)
{
    std::string text;
    for (const Event& event : events) {
        text += std::to_string(static_cast<int>(event.time)) + " " + event.name + " | " +
                event.value + " | " + event.text.toStdString() + "\n";
    }
    return text;
}

/// Times of the limit events of one parameter with a value each second.
std::string limitTimes(const std::vector<float>& values)
{
    Profile profile;
    EXPECT_TRUE(heatProfile().load(profile));
    RecordBuilder record;
    int second = 0;
    for (const float value : values) {
        record.at(second++).id(1).floatValue(value);
    }
    std::string text;
    for (const RecordLimit& event : findLimits(*record.data(), profile)) {
        text += std::to_string(static_cast<int>(event.time)) + " ";
    }
    return text;
}

TEST(LimitFinder, FindsEntriesIntoABandFromBelow)
{
    const float nan = std::nanf("");
    struct Row
    {
        const char* name;
        std::vector<float> values;
        const char* times;
    };
    const Row rows[] = {
        {"warning, then limit", {0, 110, 130}, "1 2 "},
        {"limit, warning, limit", {0, 130, 110, 130}, "1 3 "},
        {"falling back into the warning is none", {0, 130, 110, 110}, "1 "},
        {"limit at first", {130, 130, 110, 130, 0, 130}, "3 5 "},
        {"warning at first", {110, 110, 0, 110}, "3 "},
        {"each return counts", {0, 110, 0, 110, 0, 130}, "1 3 5 "},
        {"staying counts once", {0, 110, 115, 119, 120, 500}, "1 4 "},
        {"below all steps is all right", {-5, 110}, "1 "},
        {"no number is dropped but leaves its state", {0, nan, 130, 0, 130}, "4 "},
        {"none at all", {}, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(limitTimes(row.values), row.times);
    }
}

TEST(LimitFinder, DescribesTheEvent)
{
    Profile profile;
    ASSERT_TRUE(heatProfile()
                    .parameter(2, QString::fromUtf8("Öl"), "UCHAR")
                    .set("thresholdId", "Heat")
                    .device("ECU B")
                    .parameter(3, QStringLiteral("Gas"), "LONG")
                    .set("thresholdId", "Heat")
                    .parameter(4, QStringLiteral("Bits"), "BLONG")
                    .set("thresholdId", "Heat")
                    .set("endBit", "31")
                    .load(profile));
    RecordBuilder record;
    for (const std::uint32_t id : {4U, 3U, 2U, 1U}) {
        record.at(1).id(id).payload(eNoData, 0);
    }
    record.at(9.94).id(1).floatValue(110.04F).at(5).id(3).longValue(125);
    record.at(5).id(2).ucharValue(100).at(5).id(4).blongValue(125);
    const auto limits = findLimits(*record.data(), profile);
    EXPECT_EQ(described(limits), "5 ECU A Öl | 100  | ECU A Öl 100 \n"
                                 "5 ECU B Gas | 125  | ECU B Gas 125 \n"
                                 "9 ECU A Oil | 110.0 oilview | ECU A Oil 110.0 oilview\n")
        << "by time, those of equal time in profile order; bit fields are not judged";
    EXPECT_EQ(limits[2].key, 99U);
    EXPECT_EQ(limits[2].color, QColor(255, 255, 0));
    EXPECT_EQ(limits[1].color, QColor(255, 0, 0));
}

TEST(LimitFinder, PositionsPassTheJumpFilterOnce)
{
    Profile profile;
    ASSERT_TRUE(ProfileBuilder()
                    .threshold("North", {{0, "red", "LIMIT"}})
                    .device("EMU")
                    .parameter(1, QStringLiteral("Lat"), "FLOAT")
                    .set("velixDataType", "Latitude")
                    .set("thresholdId", "North")
                    .load(profile));
    RecordBuilder record; // five free positions; every change to the north is an event
    int second = 0;
    for (const float value : {-1000.0F, 1000.0F, -1000.0F, 1000.0F, -1000.0F, 1000.0F}) {
        record.at(second++).id(1).floatValue(value);
    }
    EXPECT_EQ(findLimits(*record.data(), profile).size(), 2U) << "the sixth position is a jump";
    EXPECT_EQ(findLimits(*record.data(), profile).size(), 2U) << "each walk starts afresh";
}

class Lamps : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(heatProfile()
                        .parameter(2, QStringLiteral("Lamp"), "BSHORT")
                        .set("enumId", "WarningLamp")
                        .set("startBit", "4")
                        .set("endBit", "7")
                        .set("unitMetric", "unit")
                        .set("viewId", "view")
                        .parameter(3, QStringLiteral("Switch"), "BSHORT")
                        .set("enumId", "Other")
                        .set("endBit", "7")
                        .load(mProfile));
    }
    std::vector<RecordWarning> find(std::initializer_list<int> states)
    {
        RecordBuilder record;
        int second = 0;
        for (const int state : states) {
            record.at(second++).id(2).bshortValue(static_cast<std::uint16_t>(state * 16));
            record.id(3).bshortValue(static_cast<std::uint16_t>(state));
        }
        return findWarnings(*record.data(), mProfile);
    }
    std::string times(std::initializer_list<int> states)
    {
        std::string text;
        for (const RecordWarning& event : find(states)) {
            text += std::to_string(static_cast<int>(event.time)) + " ";
        }
        return text;
    }

    Profile mProfile;
};

TEST_F(Lamps, EveryChangeToALitStateIsAnEvent)
{
    EXPECT_EQ(times({0, 1, 2, 0, 2}), "1 2 4 ");
    EXPECT_EQ(times({1, 1, 0, 1}), "0 3 ") << "lit at first counts";
    EXPECT_EQ(times({2, 1, 2, 2}), "0 1 2 ");
    EXPECT_EQ(times({0, 0, 0}), "");
    EXPECT_EQ(times({}), "");
}

TEST_F(Lamps, ShowTheirStateWithColourAndMetricUnit)
{
    const auto events = find({1, 2, 5});
    EXPECT_EQ(described(events), "0 ECU A Lamp | 1: amber unit | ECU A Lamp 1: amber unit\n"
                                 "1 ECU A Lamp | 2: red unit | ECU A Lamp 2: red unit\n"
                                 "2 ECU A Lamp | 5 unit | ECU A Lamp 5 unit\n");
    EXPECT_EQ(events[0].color, QColor(255, 150, 100));
    EXPECT_EQ(events[1].color, QColor(255, 100, 100));
    EXPECT_FALSE(events[2].color.isValid());
    EXPECT_EQ(events[1].key, 10U);
}

TEST_F(Lamps, TheStateIsReadByTheTypeInTheMessage)
{
    RecordBuilder record; // the message says that it holds a number, not bits
    record.at(1).id(2).payload(eUShort, 0x00100000).at(2).payload(eFloat, 0x00100000);
    const auto events = findWarnings(*record.data(), mProfile);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_FALSE(events[0].color.isValid()) << "16 is no state of a lamp";
}

} // namespace
} // namespace VELIX::Test
