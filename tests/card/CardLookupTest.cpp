#include "profile/DataType.h"
#include "tests/card/CardFixture.h"
#include "tests/support/ProfileBuilder.h"

#include <cmath>
#include <limits>

namespace VELIX::Test {
namespace {

using Sample = CardContainer::Sample;

ProfileParameter countOf(int id)
{
    ProfileParameter p;
    p.id = id;
    p.dataType = eUShort;
    p.startByte = 4;
    return p;
}

using CardLookup = CardFixture;

TEST_F(CardLookup, TakesTheLatestSampleStrictlyBeforeTheTime)
{
    loadOnly(recordOf(1, {{10, 1}, {20, 2}, {30, 3}}));
    const std::pair<double, double> rows[] = {{-5, 1}, {10, 1},   {10.5, 1}, {20, 1},   {20.001, 2},
                                              {30, 2}, {31.9, 0}, {32, 0},   {1e300, 0}};
    for (const auto& [time, value] : rows) {
        EXPECT_EQ(mCard.getValue(countOf(1), time), value) << time;
    }
    EXPECT_EQ(mCard.getValue(countOf(1), std::nan("")), 0.0);
    EXPECT_EQ(mCard.getValue(countOf(2), 15.0), 0.0) << "no such message";

    RecordBuilder record = recordOf(1, {{10, 1}, {100, 2}});
    loadOnly(record.id(2).at(20).ushortValue(3));
    EXPECT_EQ(mCard.getValue(countOf(1), 21.9), 1.0);
    EXPECT_EQ(mCard.getValue(countOf(1), 22.0), 0.0) << "beyond the stop of the last file";
}

TEST_F(CardLookup, GivesStateColourAndTheTruePositionAfterAJumpOfTheCursor)
{
    ProfileBuilder builder;
    builder.threshold("T", {{0, "green", "OK"}, {3000, "red", "LIMIT"}}).device("EMU");
    builder.parameter(1, QString(), "USHORT").set("thresholdId", "T");
    builder.parameter(2, QString(), "FLOAT").set("velixDataType", "Latitude");
    ASSERT_TRUE(builder.load(mProfile));
    RecordBuilder record;
    for (int i = 0; i <= 100; ++i) { // a degree in two seconds: each second is a jump
        record.at(i).id(1).ushortValue(static_cast<std::uint16_t>(i * 50));
        record.id(2).floatValue(static_cast<float>(i) * 50.0F);
    }
    loadOnly(record);
    const ProfileParameter hot = mProfile.data().devices[0].parameters.at(1);
    const ProfileParameter latitude = mProfile.data().devices[0].parameters.at(2);
    int state = -1;
    QColor color;
    EXPECT_EQ(mCard.getValue(hot, 200, state, color), 0.0);
    EXPECT_EQ(state, -1) << "nothing found, nothing said";
    EXPECT_FALSE(color.isValid());
    EXPECT_EQ(mCard.getValue(hot, 60.5, state, color), 3000.0);
    EXPECT_EQ(state, 2);
    EXPECT_EQ(color, QColor(255, 0, 0));
    for (int i = 0; i < 20; ++i) {
        const int second = (i * 37) % 100;
        const int whole = second / 2;
        const double degrees = whole + (second % 2) * 50.0 / 60.0;
        EXPECT_NEAR(mCard.getValue(latitude, second + 0.5), degrees, 1e-5) << second;
    }
}

TEST(CardTime, IsTheTimeOfDayOfSeconds)
{
    const std::pair<double, const char*> rows[] = {
        {0, "00:00:00.000"},
        {0.0019, "00:00:00.001"},
        {86399.999, "23:59:59.999"},
        {90061.25, "01:01:01.250"},
        {1e12 + 0.5, "01:46:40.500"},
        {-1, "23:59:59.000"},
        {std::numeric_limits<double>::infinity(), "00:00:00.000"},
        {std::nan(""), "00:00:00.000"}};
    for (const auto& [seconds, text] : rows) {
        EXPECT_EQ(CardContainer::time(seconds).toStdString(), text);
    }
    EXPECT_EQ(CardContainer::time(1e300).size(), 12);
}

std::string resampled(double step, const std::vector<Sample>& input)
{
    std::vector<Sample> output = {{9, 9}};
    CardContainer::resampleData(step, input, output);
    std::string text;
    for (const Sample& sample : output) {
        text += QStringLiteral("%1:%2 ").arg(sample.time).arg(sample.value).toStdString();
    }
    return text;
}

TEST(Resampling, InterpolatesAtAFixedStep)
{
    EXPECT_EQ(resampled(1, {}), "");
    EXPECT_EQ(resampled(1, {{3, 4}}), "3:4 ");
    EXPECT_EQ(resampled(0.5, {{0, 0}, {1, 10}}), "0:0 0.5:5 1:10 ");
    EXPECT_EQ(resampled(2, {{0, 0}, {1, 10}, {5, 50}}), "0:0 2:20 4:40 ")
        << "the end only if a step falls on it";
    EXPECT_EQ(resampled(1, {{1, 0}, {3, 4}, {3, 8}, {4, 9}}), "1:0 2:2 3:4 4:9 ");
    EXPECT_EQ(resampled(10, {{0, 7}, {1, 8}}), "0:7 ");
    EXPECT_EQ(resampled(0, {{0, 7}, {1, 8}}), "0:7 1:8 ") << "no step, no change";
    EXPECT_EQ(resampled(-1, {{0, 7}, {1, 8}}), "0:7 1:8 ");
    std::vector<Sample> output;
    CardContainer::resampleData(0.1, {{0, 0}, {100, 100}}, output);
    EXPECT_EQ(output.size(), 1001U) << "steps do not drift";
}

} // namespace
} // namespace VELIX::Test
