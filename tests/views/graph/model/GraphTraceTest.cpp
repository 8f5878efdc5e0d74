#include "views/graph/model/GraphTrace.h"

#include <gtest/gtest.h>

#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace VELIX;

using Entry = GraphTrace::EntryType;
using Frame = GraphTrace::FrameType;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kFar = 1e9;

GraphTrace traceOf(const std::vector<Entry>& entries, double frameSpan = 1.0)
{
    GraphTrace trace;
    for (const Entry& entry : entries) {
        trace.putValue(entry.time, entry.value, entry.hold, frameSpan, kFar);
    }
    return trace;
}

/// "time:state(values)", "|" before a frame that no line leads to, "h" after one of repeated
/// values.
std::string text(const std::deque<Frame>& frames)
{
    std::string result;
    for (const Frame& frame : frames) {
        QString line = QString::asprintf("%s%g:%d(%g", frame.gapBefore ? "|" : "", frame.startTime,
                                         frame.state, frame.slotA);
        line += frame.state > 2 ? QString::asprintf(" %g", frame.slotB) : QString();
        line += frame.state > 3 ? QString::asprintf(" %g", frame.lastValue) : QString();
        result += (result.empty() ? "" : " ") + line.toStdString() + (frame.hold ? ")h" : ")");
    }
    return result;
}

// --- a second implementation, slow and plain

bool twinValue(const std::vector<Entry>& entries, double t, double& v)
{
    v = 0.0;
    double latest = -1.0;
    for (const Entry& entry : entries) {
        latest = std::max(latest, entry.time);
    }
    if (entries.empty() || t < entries[0].time || t > latest) {
        return false;
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].time >= t) {
            v = entries[i == 0 ? 0 : i - 1].value;
            return true;
        }
    }
    return false;
}

std::deque<Frame> twinFrames(const std::vector<Entry>& entries, double xmin, double xmax,
                             double span)
{
    std::size_t from = 0;
    while (from < entries.size() && entries[from].time < xmin) {
        ++from;
    }
    const bool sorted = std::is_sorted(entries.begin(), entries.end(),
                                       [](auto& a, auto& b) { return a.time < b.time; });
    std::deque<Frame> frames;
    bool gap = false;
    for (std::size_t i = from > 0 ? from - 1 : 0; i < entries.size(); ++i) {
        const Entry& e = entries[i];
        if (!std::isfinite(e.value)) {
            gap = true;
            if (sorted && e.time > xmax) {
                break; // no line leads out of the plot
            }
            continue;
        }
        Frame* last = frames.empty() ? nullptr : &frames.back();
        if (last == nullptr || e.time - last->startTime > span) {
            frames.push_back({2, e.time, e.value, 0.0, 0.0, e.hold, gap});
        } else {
            const bool two = last->state == 2;
            last->state = two ? 3 : 4;
            last->slotA = two ? last->slotA : std::min(last->slotA, e.value);
            last->slotB = two ? e.value : std::max(last->slotB, e.value);
            last->lastValue = e.value;
            last->hold = last->hold && e.hold;
        }
        gap = false;
        if (sorted && frames.back().startTime > xmax) {
            break;
        }
    }
    return frames;
}

GraphTrace::Statistics twinStatistics(const std::vector<Entry>& entries, double from, double to)
{
    GraphTrace::Statistics result;
    for (const Entry& e : entries) {
        if (e.time >= from && e.time <= to && std::isfinite(e.value)) {
            result.minimum = result.count == 0 ? e.value : std::min(result.minimum, e.value);
            result.maximum = result.count == 0 ? e.value : std::max(result.maximum, e.value);
            result.average += e.value;
            ++result.count;
        }
    }
    result.average /= result.count > 0 ? static_cast<double>(result.count) : 1.0;
    return result;
}

// --- generated data

struct Shape
{
    const char* name;
    std::size_t count;
    double start;
    double meanStep;  ///< s
    double equal;     ///< share of samples at the time of the one before
    double backwards; ///< share of samples that jump back by up to 20 s
    double gaps;      ///< share of samples that are not finite
};

const std::vector<Shape> kShapes = {
    {"sparse", 40, 3.7, 9.0, 0.0, 0.0, 0.0},
    {"dense", 6000, 100.0, 0.001, 0.1, 0.0, 0.0},
    {"over many seconds", 5000, 0.0, 0.3, 0.05, 0.0, 0.0},
    {"with gaps", 4000, 12.5, 0.05, 0.05, 0.0, 0.02},
    {"mostly gaps", 1500, 0.0, 0.05, 0.0, 0.0, 0.9},
    {"running backwards now and then", 4000, 50.0, 0.05, 0.05, 0.01, 0.01},
    {"one sample", 1, 7.25, 1.0, 0.0, 0.0, 0.0},
    {"no sample", 0, 0.0, 1.0, 0.0, 0.0, 0.0},
};

std::vector<Entry> generate(const Shape& shape, std::mt19937& random)
{
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    std::vector<Entry> entries;
    double time = shape.start;
    bool hold = false;
    for (std::size_t i = 0; i < shape.count; ++i) {
        hold = unit(random) < 0.003 ? !hold : hold;
        double value = std::round(unit(random) * 1000.0) / 8.0;
        if (unit(random) < shape.gaps) {
            value = unit(random) < 0.5 ? kNan : -kInfinity;
        }
        entries.push_back({time, value, hold});
        if (unit(random) < shape.backwards) {
            time = std::max(0.0, time - 20.0 * unit(random));
        } else if (unit(random) >= shape.equal) {
            time += 2.0 * shape.meanStep * unit(random);
        }
    }
    return entries;
}

/// A time somewhere around the samples: exactly that of one of them, often where the store may part
/// them, or between two.
double anyTime(const std::vector<Entry>& entries, std::mt19937& random)
{
    if (entries.empty()) {
        return 1.0;
    }
    const auto pick = [&] { return entries[random() % entries.size()].time; };
    switch (random() % 4) {
    case 0:
        return pick();
    case 1:
        return entries[random() % entries.size() / 256 * 256].time;
    default:
        return (pick() + pick()) / 2.0 + static_cast<double>(random() % 3) - 1.0;
    }
}

TEST(GraphTraceTest, LookUpsGiveWhatAWalkOverAllSamplesGives)
{
    std::mt19937 random(20);
    for (const Shape& shape : kShapes) {
        const std::vector<Entry> entries = generate(shape, random);
        const GraphTrace trace = traceOf(entries);
        for (int i = 0; i < 400; ++i) {
            const double t = i == 0 ? kNan : i == 1 ? kInfinity : anyTime(entries, random);
            double value = 1.0;
            double expected = 0.0;
            const bool found = twinValue(entries, t, expected);
            ASSERT_EQ(trace.getValue(t, value), found) << shape.name << " at " << t;
            ASSERT_TRUE(value == expected || (std::isnan(value) && std::isnan(expected)))
                << shape.name << " at " << t << ": " << value << " for " << expected;

            const double to = anyTime(entries, random);
            const GraphTrace::Statistics actual = trace.statistics(t, to);
            const GraphTrace::Statistics wanted = twinStatistics(entries, t, to);
            ASSERT_EQ(actual.count, wanted.count) << shape.name << " " << t << " " << to;
            ASSERT_EQ(actual.minimum, wanted.minimum);
            ASSERT_EQ(actual.maximum, wanted.maximum);
            ASSERT_NEAR(actual.average, wanted.average, 1e-9);
        }
    }
}

TEST(GraphTraceTest, FramesAreThoseOfTheSamplesOneByOne)
{
    std::mt19937 random(21);
    for (const Shape& shape : kShapes) {
        const std::vector<Entry> entries = generate(shape, random);
        GraphTrace trace = traceOf(entries, 0.7);
        EXPECT_EQ(text(trace.frames()), text(twinFrames(entries, 0.0, kFar, 0.7)))
            << shape.name << ", as they grow";
        for (int i = 0; i < 150; ++i) {
            const auto [xmin, xmax] =
                std::minmax({anyTime(entries, random), anyTime(entries, random)});
            const double span = (xmax - xmin) / static_cast<double>(1U << random() % 12);
            trace.recalcFrameBuffer(xmin, xmax, span);
            ASSERT_EQ(text(trace.frames()), text(twinFrames(entries, xmin, xmax, span)))
                << shape.name << " from " << xmin << " to " << xmax;
        }
    }
}

TEST(GraphTraceTest, FrameStates)
{
    const struct
    {
        const char* name;
        std::vector<Entry> entries;
        const char* frames;
    } cases[] = {
        {"two values keep their order", {{5, 9}, {5.5, 1}}, "5:3(9 1)"},
        {"the third value sorts in from then on", {{5, 9}, {5.2, 1}, {5.4, 5}}, "5:4(5 5 5)"},
        {"exactly a column later is still the same column", {{5, 1}, {6, 2}}, "5:3(1 2)"},
        {"one recorded among repeated ones", {{5, 1, true}, {5.5, 2, false}}, "5:3(1 2)"},
        {"a gap within a column cannot be seen", {{5, 1}, {5.1, kNan}, {5.2, 2}}, "5:3(1 2)"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(text(traceOf(c.entries).frames()), c.frames) << c.name;
    }
}

TEST(GraphTraceTest, LongColumnsAreThoseOfTheirSamples)
{
    std::vector<Entry> entries(600, {0.0, 1.0, false});
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].time = static_cast<double>(i);
    }
    entries[256].value = -5.0;
    GraphTrace trace = traceOf(entries);
    trace.recalcFrameBuffer(256.0, 599.0, 1000.0);
    EXPECT_EQ(text(trace.frames()), "255:4(1 1 1)") << "the second value sorts in late";

    entries.resize(512);
    entries[511].value = kNan;
    entries.push_back({5000.0, 2.0, false});
    trace = traceOf(entries);
    trace.recalcFrameBuffer(300.0, 6000.0, 1000.0);
    EXPECT_EQ(text(trace.frames()), "299:4(1 1 1) |5000:2(2)") << "the gap at its end is seen";
}

TEST(GraphTraceTest, SamplesBeyondTheLimitAreNotKept)
{
    GraphTrace trace(3);
    for (int i = 0; i < 5; ++i) {
        trace.putValue(i, i * 10.0, false, 0.5, kFar);
    }
    EXPECT_EQ(trace.entries().size(), 3U);
    EXPECT_EQ(trace.latestTime(), 4.0);
    EXPECT_EQ(trace.maximum(), 40.0);
    EXPECT_EQ(trace.lastValue(), 40.0);
    EXPECT_EQ(trace.frames().size(), 5U);
    double value = 1.0;
    EXPECT_TRUE(trace.getValue(2.0, value));
    EXPECT_EQ(value, 10.0);
    // Within the times seen, but behind the last sample kept.
    EXPECT_FALSE(trace.getValue(3.5, value));
    EXPECT_EQ(value, 0.0);
    EXPECT_EQ(trace.statistics(0.0, 9.0).count, 3U);
    trace.recalcFrameBuffer(0.0, 9.0, 0.5);
    EXPECT_EQ(text(trace.frames()), "0:2(0) 1:2(10) 2:2(20)");
}

TEST(GraphTraceTest, NothingPilesUpOrOverflows)
{
    GraphTrace trace;
    for (int i = 0; i < 1000; ++i) {
        trace.putValue(i, 1.0, false, 0.1, 20.5);
    }
    EXPECT_EQ(trace.frames().size(), 22U) << "the first frame beyond the end ends the last line";
    trace.dropFramesBefore(10.5);
    EXPECT_EQ(trace.frames().front().startTime, 10.0) << "the line that enters the plot is kept";
    EXPECT_EQ(trace.entries().size(), 1000U);
    trace.clear();
    EXPECT_TRUE(trace.isEmpty() && trace.frames().empty());
    EXPECT_FALSE(trace.hasRange());
    const double large = std::numeric_limits<double>::max(); // of which a sum would overflow
    EXPECT_EQ(traceOf({{1, large}, {2, large}, {3, large}}).statistics(0.0, 9.0).average, large);
}

} // namespace
