#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "profile/DataType.h"
#include "tests/card/CardFixture.h"
#include "tests/support/ProfileBuilder.h"

#include <cmath>

namespace VELIX::Test {
namespace {

enum : std::uint32_t { eOil = 1, eOilB, eLat, eLamp, eSwitch, eGas, eBits };

class Events : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProfileBuilder builder;
        builder.threshold(
            "Heat", {{0, "#00ff00", "OK"}, {100, "#ffff00", "WARNING"}, {120, "#ff0000", "LIMIT"}});
        builder.threshold("North", {{0, "red", "LIMIT"}});
        builder.enumeration("WarningLamp", {{0, "off"}, {1, "amber"}, {2, "red"}});
        builder.enumeration("Other", {{0, "off"}, {1, "on"}});
        builder.device("ECU A");
        builder.parameter(eOil, QStringLiteral("Oil"), "FLOAT").set("thresholdId", "Heat");
        builder.set("viewId", "oilview").set("unitMetric", "C").set("precision", "1");
        builder.parameter(eOilB, QString::fromUtf8("Öl"), "UCHAR").set("thresholdId", "Heat");
        builder.parameter(eLat, QStringLiteral("Lat"), "FLOAT").set("thresholdId", "North");
        builder.set("velixDataType", "Latitude");
        builder.parameter(eLamp, QStringLiteral("Lamp"), "BSHORT").set("enumId", "WarningLamp");
        builder.set("startBit", "4").set("endBit", "7").set("unitMetric", "unit");
        builder.parameter(eSwitch, QStringLiteral("Switch"), "BSHORT").set("enumId", "Other");
        builder.set("endBit", "7").device("ECU B");
        builder.parameter(eGas, QStringLiteral("Gas"), "LONG").set("thresholdId", "Heat");
        builder.parameter(eBits, QStringLiteral("Bits"), "BLONG").set("thresholdId", "Heat");
        builder.set("endBit", "31");
        ASSERT_TRUE(builder.load(mProfile));
    }
    /// Times of the limit events of a parameter with a value each second.
    Times limitTimes(std::uint32_t id, const std::vector<float>& values)
    {
        RecordBuilder record;
        record.id(id);
        int second = 0;
        for (const float value : values) {
            record.at(second++).floatValue(value);
        }
        return timesOf(findLimits(*record.data(), mProfile));
    }
    std::vector<RecordWarning> warnings(std::initializer_list<int> lampStates)
    {
        RecordBuilder record;
        int second = 0;
        for (const int state : lampStates) {
            record.at(second++).id(eLamp).bshortValue(static_cast<std::uint16_t>(state * 16));
            record.id(eSwitch).bshortValue(static_cast<std::uint16_t>(state));
        }
        return findWarnings(*record.data(), mProfile);
    }
    template <class Event>
    static Times timesOf(const std::vector<Event>& events)
    {
        Times times;
        for (const Event& event : events) {
            times.push_back(event.time);
        }
        return times;
    }
    /// "key colour name | value | text" of each event.
    template <class Event>
    static std::string described(const std::vector<Event>& events)
    {
        std::string text;
        for (const Event& event : events) {
            text += std::to_string(event.key) + " " +
                    (event.color.isValid() ? event.color.name().toStdString() : "none") + " " +
                    event.name + " | " + event.value + " | " + event.text.toStdString() + "\n";
        }
        return text;
    }

    Profile mProfile;
};

TEST_F(Events, OfLimitsAreEntriesIntoABandFromBelow)
{
    const struct
    {
        const char* name;
        std::vector<float> values;
        Times times;
    } rows[] = {
        {"warning, then limit", {0, 110, 130}, {1, 2}},
        {"limit, warning, limit", {0, 130, 110, 130}, {1, 3}},
        {"falling back into the warning is none", {0, 130, 110, 110}, {1}},
        {"limit at first", {130, 130, 110, 130, 0, 130}, {3, 5}},
        {"warning at first", {110, 110, 0, 110}, {3}},
        {"staying counts once", {0, 110, 115, 119, 120, 500}, {1, 4}},
        {"below all steps is all right", {-5, 110}, {1}},
        {"no number is dropped but leaves its state", {0, std::nanf(""), 130, 0, 130}, {4}},
        {"none at all", {}, {}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(limitTimes(eOil, row.values), row.times) << row.name;
    }
    for (int walk = 0; walk < 2; ++walk) { // each starts with five free positions
        EXPECT_EQ(limitTimes(eLat, {-1000, 1000, -1000, 1000, -1000, 1000}), (Times{1, 3}))
            << "the sixth position is a jump";
    }
}

TEST_F(Events, OfLimitsStandByTimeAndThenAsInTheProfile)
{
    RecordBuilder record;
    for (const std::uint32_t id : {eBits, eGas, eOilB, eOil}) {
        record.at(1).id(id).payload(eNoData, 0);
    }
    record.at(9.94).id(eOil).floatValue(110.04F).at(5).id(eGas).longValue(125);
    record.at(5).id(eOilB).ucharValue(100).at(5).id(eBits).blongValue(125);
    EXPECT_EQ(described(findLimits(*record.data(), mProfile)),
              "50 #ffff00 ECU A Öl | 100  | ECU A Öl 100 \n"
              "50 #ff0000 ECU B Gas | 125  | ECU B Gas 125 \n"
              "99 #ffff00 ECU A Oil | 110.0 oilview | ECU A Oil 110.0 oilview\n")
        << "bit fields are not judged";
}

TEST_F(Events, OfWarningLampsAreChangesToALitState)
{
    EXPECT_EQ(timesOf(warnings({0, 1, 2, 0, 2, 2})), (Times{1, 2, 4}));
    EXPECT_EQ(timesOf(warnings({1, 1, 0, 1})), (Times{0, 3})) << "lit at first counts";
    EXPECT_EQ(described(warnings({1, 2, 5})),
              "0 #ff9664 ECU A Lamp | 1: amber unit | ECU A Lamp 1: amber unit\n"
              "10 #ff6464 ECU A Lamp | 2: red unit | ECU A Lamp 2: red unit\n"
              "20 none ECU A Lamp | 5 unit | ECU A Lamp 5 unit\n");

    RecordBuilder record; // the message says that it holds a number, not bits
    record.at(1).id(eLamp).payload(eUShort, 0x00100000).at(2).payload(eFloat, 0x00100000);
    const auto events = findWarnings(*record.data(), mProfile);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_FALSE(events[0].color.isValid()) << "16 is no state of a lamp";
}

} // namespace
} // namespace VELIX::Test
