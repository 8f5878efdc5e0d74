#include "views/fault/FaultTimeline.h"

#include "profile/FaultMatrix.h"
#include "tests/support/RecordBuilder.h"
#include "tests/views/fault/FaultWords.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>

namespace VELIX {

void PrintTo(const FaultTimeline::Span& span, std::ostream* out)
{
    *out << span.left << "+" << span.width;
}

bool operator==(const FaultTimeline::Span& a, const FaultTimeline::Span& b)
{
    return a.left == b.left && a.width == b.width;
}

namespace {

using Test::RecordBuilder;
using Spans = std::vector<FaultTimeline::Span>;

constexpr int kId = 0x4F0;
constexpr std::uint32_t kInfoBit = 1U << 0;
constexpr std::uint32_t kWarningBit = 1U << 4;
constexpr std::uint32_t kFaultBits = 1U << 31 | 1U << 7;
constexpr std::uint32_t kUnassignedBit = 1U << 9;

FaultMatrix matrixOf(std::initializer_list<std::pair<int, int>> typesByBit)
{
    FaultMatrix matrix;
    matrix.id = kId;
    for (const auto& [bit, type] : typesByBit) {
        matrix.bits[bit].errorType = type;
    }
    return matrix;
}

FaultMatrix matrix()
{
    return matrixOf({{0, eErrorInfo}, {4, eErrorWarning}, {7, eErrorFault}, {31, eErrorFault}});
}

/// Notation of a change list: "time+" where bits of the type come, "time-" where they go.
std::string text(const FaultTimeline::Changes& changes)
{
    std::string out;
    for (const FaultTimeline::Change& change : changes) {
        out += (out.empty() ? "" : " ") + std::to_string(static_cast<int>(change.time)) +
               (change.state ? "+" : "-");
    }
    return out;
}

struct FaultTimelineTest : ::testing::Test
{
    /// The matrix message at each time, and another one that makes the record last from 0 to 100.
    void load(std::initializer_list<std::pair<double, std::uint32_t>> words)
    {
        show(VELIX::Test::faultWords(kId, words));
    }
    void show(const RecordBuilder& builder, const FaultMatrix& shown = matrix())
    {
        record = builder.data();
        timeline.setMatrix(shown);
        timeline.setRecord(record.get());
    }

    std::shared_ptr<RecordData> record;
    FaultTimeline timeline;
};

TEST_F(FaultTimelineTest, EachTypeHasItsChangesAndAClosingEntry)
{
    load({{10, 0},
          {20, kInfoBit | kFaultBits},
          {30, kInfoBit | kUnassignedBit | (1U << 31)},
          {40, kWarningBit | (1U << 7)},
          {50, kWarningBit}});
    EXPECT_EQ(text(timeline.changes(eErrorInfo)), "10- 20+ 40- 50-");
    EXPECT_EQ(text(timeline.changes(eErrorWarning)), "10- 40+ 50+");
    EXPECT_EQ(text(timeline.changes(eErrorFault)), "10- 20+ 50- 50-");
    EXPECT_EQ(timeline.spans(eErrorInfo, 1000), (Spans{{200, 200}}));
    EXPECT_EQ(timeline.spans(eErrorWarning, 1000), (Spans{{400, 100}}));
    EXPECT_EQ(timeline.spans(eErrorFault, 1000), (Spans{{200, 300}}));
}

TEST_F(FaultTimelineTest, OneSampleOpensAndClosesAtOnce)
{
    load({{50, kFaultBits}});
    EXPECT_EQ(text(timeline.changes(eErrorFault)), "50+ 50+");
    EXPECT_EQ(timeline.spans(eErrorFault, 1000), (Spans{{500, 1}}));
}

TEST_F(FaultTimelineTest, WhatIsShorterThanAPixelStaysVisible)
{
    load({{0, kWarningBit}, {0.001, 0}, {50, kFaultBits}, {50.01, 0}, {100, kInfoBit}});
    EXPECT_EQ(timeline.spans(eErrorFault, 100), (Spans{{50, 1}}));
    EXPECT_EQ(timeline.spans(eErrorWarning, 100), (Spans{{1, 1}})) << "not under the frame";
    EXPECT_EQ(timeline.spans(eErrorInfo, 100), (Spans{{98, 1}}));
    EXPECT_EQ(timeline.wordAt(49, 100), 0U);
    EXPECT_EQ(timeline.wordAt(50, 100), kFaultBits);
    EXPECT_EQ(timeline.wordAt(51, 100), 0U);
    EXPECT_EQ(timeline.wordAt(1, 100), kWarningBit);
    EXPECT_EQ(timeline.wordAt(98, 100), kInfoBit);
    for (const int width : {0, 1, 2}) { // a window shrunk to nothing
        for (const int type : {eErrorInfo, eErrorWarning, eErrorFault}) {
            EXPECT_LE(timeline.spans(type, width).size(), 2U);
        }
        timeline.wordAt(0, width);
    }
}

TEST_F(FaultTimelineTest, SpansOfManyChangesDoNotOverlap)
{
    std::mt19937 random(7);
    RecordBuilder builder;
    builder.at(0).id(1).ulongValue(0).at(210).ulongValue(0).id(kId);
    for (int i = 0; i < 20'000; ++i) {
        builder.at(5 + i * 0.01).blongValue(random() % 2 == 0 ? kFaultBits : 0);
    }
    show(builder);
    const int width = 500;
    std::string expected(width, ' ');
    const FaultTimeline::Changes& changes = timeline.changes(eErrorFault);
    for (std::size_t i = 0; i + 1 < changes.size(); ++i) {
        const int left = timeline.getX(changes[i].time, width);
        const int right = std::max(left + 1, timeline.getX(changes[i + 1].time, width));
        if (changes[i].state) {
            expected.replace(left, right - left, right - left, '#');
        }
    }
    std::string filled;
    for (const FaultTimeline::Span& span : timeline.spans(eErrorFault, width)) {
        filled.resize(std::max<std::size_t>(filled.size(), span.left), ' ');
        filled.append(span.width, '#'); // overlaps would make it too long
    }
    filled.resize(std::max<std::size_t>(filled.size(), width), ' ');
    EXPECT_EQ(filled, expected);
}

TEST_F(FaultTimelineTest, PositionsAreThoseInTheWholeRecord)
{
    load({{50, 0}});
    EXPECT_EQ(timeline.getX(50, 640), 320);
    EXPECT_EQ(timeline.getX(100, 640), 640);
    EXPECT_EQ(timeline.getX(-100, 640), -640);
    EXPECT_EQ(timeline.getX(1e30F, 640), INT_MIN);
    EXPECT_EQ(timeline.timeAt(320, 640), 50.0);
    timeline.setRecord(nullptr);
    EXPECT_EQ(timeline.getX(50, 640), 0);
    EXPECT_EQ(timeline.wordAt(320, 640), 0U);
    EXPECT_TRUE(timeline.changes(eErrorFault).empty());

    // In single precision; in double one pixel less.
    RecordData data;
    data.startTime = 4294.967296;
    data.stopTime = 7723.5;
    timeline.setRecord(&data);
    EXPECT_EQ(timeline.getX(5158.53125F, 933), 235);
    timeline.setRecord(nullptr);
}

TEST_F(FaultTimelineTest, ARecordOfOneMomentIsAtTheLeft)
{
    show(RecordBuilder().at(30).id(kId).blongValue(kFaultBits).blongValue(0));
    EXPECT_EQ(timeline.getX(9999, 640), 0);
    EXPECT_EQ(timeline.spans(eErrorFault, 640), (Spans{{1, 1}}));
    EXPECT_EQ(timeline.timeAt(600, 640), record->startTime);
    EXPECT_EQ(timeline.wordAt(0, 640), kFaultBits);
}

TEST_F(FaultTimelineTest, TimesThatRunBackwardsAreWalkedInOrder)
{
    load({{40, 0}, {20, kFaultBits}, {10, 0}, {30, kFaultBits}});
    EXPECT_EQ(text(timeline.changes(eErrorFault)), "10- 20+ 40- 40-");
}

TEST_F(FaultTimelineTest, BitsAndTypesOutsideOfTheirRangeCountForNothing)
{
    show(RecordBuilder().at(0).id(kId).blongValue(~0U).at(9).blongValue(~0U),
         matrixOf({{-1, eErrorFault}, {32, eErrorFault}, {40, eErrorInfo}, {3, 4}}));
    for (const int type : {eErrorInfo, eErrorWarning, eErrorFault}) {
        EXPECT_EQ(text(timeline.changes(type)), "0- 9-");
    }
}

} // namespace
} // namespace VELIX
