#include "card/CardContainer.h"
#include "profile/DataType.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"
#include "tests/support/ProfileBuilder.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

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

/// The rule spelt out: a scan for the first entry at or after the time, then the one before it.
double scannedValue(const std::vector<RecordEntry>& entries, double stopTime, double time)
{
    const double indexSize = std::trunc(stopTime) + 2.0;
    if (std::trunc(time) >= indexSize) {
        return 0.0;
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].time >= time) {
            const RecordEntry& chosen = entries[i > 0 ? i - 1 : 0];
            return chosen.data[4] * 256 + chosen.data[5];
        }
    }
    return 0.0;
}

class CardLookup : public ::testing::Test
{
protected:
    void load(const RecordBuilder& record)
    {
        mFolder.add("a.CAN", record);
        mCard.readContainer(mFolder.path());
        ASSERT_EQ(mCard.loadFiles(CardFolder::names({"a.CAN"})), 1);
    }

    CapturedDiagnostics mOutput;
    CardFolder mFolder;
    Profile mProfile;
    CardContainer mCard{mProfile};
};

TEST_F(CardLookup, TakesTheLatestSampleStrictlyBeforeTheTime)
{
    load(RecordBuilder().id(1).at(10).ushortValue(1).at(20).ushortValue(2).at(30).ushortValue(3));
    const struct
    {
        double time;
        double value;
    } rows[] = {{-5, 1}, {0, 1},      {10, 1},   {10.5, 1}, {20, 1},   {20.001, 2},
                {30, 2}, {30.001, 0}, {31.9, 0}, {32, 0},   {1e300, 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(mCard.getValue(countOf(1), row.time), row.value) << row.time;
    }
    EXPECT_EQ(mCard.getValue(countOf(1), std::nan("")), 0.0);
    EXPECT_EQ(mCard.getValue(countOf(2), 15.0), 0.0);
    EXPECT_NE(mCard.recordData().find(2), nullptr) << "asking creates an empty list";
}

TEST_F(CardLookup, TheLastFilesStopBoundsTheTime)
{
    RecordBuilder record;
    record.id(1).at(10).ushortValue(1).at(100).ushortValue(2).id(2).at(20).ushortValue(0);
    load(record);
    EXPECT_EQ(mCard.getValue(countOf(1), 21.9), 1.0);
    EXPECT_EQ(mCard.getValue(countOf(1), 22.0), 0.0);
}

TEST_F(CardLookup, EqualsAScanOnRandomRecordsInAndOutOfOrder)
{
    std::mt19937 random(4711); // a fixed seed: the same records in every run
    std::uniform_real_distribution<double> anyTime(0.0, 300.0);
    for (const std::size_t size : {1U, 2U, 16U, 17U, 500U, 8177U, 12273U}) {
        for (const bool ordered : {true, false}) {
            SCOPED_TRACE(testing::Message() << size << (ordered ? " ordered" : " unordered"));
            std::vector<double> times(size);
            std::generate(times.begin(), times.end(), [&] { return anyTime(random); });
            if (ordered) {
                std::sort(times.begin(), times.end());
            }
            RecordBuilder record;
            record.id(1).source(0);
            for (std::size_t i = 0; i < size; ++i) {
                record.at(times[i]).ushortValue(static_cast<std::uint16_t>(i + 1));
            }
            load(record);
            for (int i = 0; i < 200; ++i) {
                const double time = i % 3 == 0 ? record.entries()[random() % size].time
                                               : anyTime(random) * 1.1 - 10.0;
                const double expected = scannedValue(record.entries(), mCard.stopTime(), time);
                ASSERT_EQ(mCard.getValue(countOf(1), time), expected) << time;
                ASSERT_EQ(mCard.getValue(countOf(RecordData::kSource0Id), time), expected) << time;
            }
        }
    }
}

TEST_F(CardLookup, GivesStateAndColourOfTheThresholds)
{
    ProfileBuilder()
        .threshold("T", {{0, "green", "OK"}, {50, "red", "LIMIT"}})
        .device("EMU")
        .parameter(1, QStringLiteral("Hot"), "USHORT")
        .set("thresholdId", "T")
        .load(mProfile);
    load(RecordBuilder().id(1).at(10).ushortValue(60).at(20).ushortValue(5));
    const ProfileParameter hot = mProfile.data().devices[0].parameters.at(1);
    int state = -1;
    QColor color;
    EXPECT_EQ(mCard.getValue(hot, 15, state, color), 60.0);
    EXPECT_EQ(state, 2);
    EXPECT_EQ(color, QColor(255, 0, 0));
    state = -1;
    color = QColor();
    mCard.getValue(hot, 25, state, color);
    EXPECT_EQ(state, -1) << "nothing found, nothing said";
    EXPECT_FALSE(color.isValid());
}

TEST_F(CardLookup, AnswersWithTheTruePositionAfterAJumpOfTheCursor)
{
    ProfileBuilder()
        .device("EMU")
        .parameter(1, QStringLiteral("Lat"), "FLOAT")
        .set("velixDataType", "Latitude")
        .load(mProfile);
    RecordBuilder record;
    for (int i = 0; i <= 100; ++i) { // a degree a second: each second is a jump
        record.at(i).id(1).floatValue(static_cast<float>(i) * 50.0F);
    }
    load(record);
    const ProfileParameter lat = mProfile.data().devices[0].parameters.at(1);
    for (int i = 0; i < 20; ++i) {
        const int second = (i * 37) % 100;
        const double value = second * 50.0 / 100.0;
        const double degrees = std::trunc(value) + (value - std::trunc(value)) * 100.0 / 60.0;
        EXPECT_NEAR(mCard.getValue(lat, second + 0.5), degrees, 1e-5) << second;
    }
}

TEST(CardTime, IsTheTimeOfDayOfSeconds)
{
    const struct
    {
        double seconds;
        const char* text;
    } rows[] = {{0, "00:00:00.000"},
                {3661.5, "01:01:01.500"},
                {0.0019, "00:00:00.001"},
                {86399.999, "23:59:59.999"},
                {86400, "00:00:00.000"},
                {90061.25, "01:01:01.250"},
                {1e12 + 0.5, "01:46:40.500"},
                {-1, "23:59:59.000"},
                {1e300, nullptr},
                {std::numeric_limits<double>::infinity(), "00:00:00.000"}};
    for (const auto& row : rows) {
        const std::string text = CardContainer::time(row.seconds).toStdString();
        if (row.text != nullptr) {
            EXPECT_EQ(text, row.text) << row.seconds;
        }
        EXPECT_EQ(text.size(), 12U);
    }
    EXPECT_EQ(CardContainer::time(std::nan("")), QStringLiteral("00:00:00.000"));
}

TEST(CardName, IsTheTextAfterTheLastSlash)
{
    EXPECT_EQ(CardContainer::name(QStringLiteral("/a/b.c/d.CAN")), QStringLiteral("d.CAN"));
    EXPECT_EQ(CardContainer::name(QStringLiteral("d.CAN")), QStringLiteral("d.CAN"));
    EXPECT_EQ(CardContainer::name(QStringLiteral("a/")), QString());
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
