#include "card/EntryList.h"
#include "card/RecordData.h"
#include "tests/card/CardFixture.h"

#include <algorithm>
#include <limits>
#include <random>

namespace VELIX::Test {
namespace {

/// The sizes at which a new chunk begins, and their neighbours.
const std::size_t kSizes[] = {0,    1,    15,   16,   17,    48,    49,    4079, 4080,
                              4081, 8175, 8176, 8177, 12271, 12272, 12273, 20000};

/// The same entries in an owning list and in a view.
struct Lists
{
    ChunkArena arena;
    EntryList owning;
    EntryList view{EntryList::Kind::View};
    std::vector<double> times;

    void append(double time)
    {
        RecordEntry entry;
        entry.time = time;
        entry.id = static_cast<std::uint32_t>(times.size());
        view.append(arena, owning.append(arena, entry));
        times.push_back(time);
    }
};

template <class Reached>
std::size_t scan(const std::vector<double>& times, Reached reached)
{
    return static_cast<std::size_t>(std::find_if(times.begin(), times.end(), reached) -
                                    times.begin());
}

void expectSearchesLikeAScan(const Lists& lists, double time)
{
    const std::size_t atOrAfter =
        scan(lists.times, [time](double entryTime) { return entryTime >= time; });
    const std::size_t after =
        scan(lists.times, [time](double entryTime) { return entryTime > time; });
    for (const EntryList* list : {&lists.owning, &lists.view}) {
        ASSERT_EQ(list->firstAtOrAfter(time), atOrAfter) << time;
        ASSERT_EQ(list->firstAfter(time), after) << time;
    }
}

TEST(EntryList, KeepsOrderAndAddressesAcrossChunks)
{
    for (const std::size_t size : kSizes) {
        SCOPED_TRACE(size);
        Lists lists;
        const RecordEntry* first = nullptr;
        for (std::size_t i = 0; i < size; ++i) {
            lists.append(static_cast<double>(i));
            first = first == nullptr ? &lists.owning.front() : first;
        }
        for (const EntryList* list : {&lists.owning, &lists.view}) {
            ASSERT_EQ(list->size(), size);
            EXPECT_TRUE(list->isSorted());
            std::size_t i = 0;
            for (const RecordEntry& entry : *list) {
                ASSERT_EQ(entry.id, i);
                ASSERT_EQ(&(*list)[i], &entry);
                ++i;
            }
            EXPECT_EQ(i, size);
            if (size > 0) {
                EXPECT_EQ(&list->front(), first) << "growing moves nothing";
            }
        }
    }
}

TEST(EntryList, SearchesAnyOrderLikeAScanFromTheFront)
{
    std::mt19937 random(20250630); // a fixed seed: the same lists in every run
    std::uniform_real_distribution<double> anyTime(0.0, 100.0);
    enum { Sorted, Equal, LateOutlier, Backwards, Sawtooth, Chaos, kKinds };
    for (int kind = 0; kind < kKinds; ++kind) {
        for (const std::size_t size : kSizes) {
            SCOPED_TRACE(testing::Message() << "kind " << kind << ", size " << size);
            Lists lists;
            for (std::size_t i = 0; i < size; ++i) {
                const double share = static_cast<double>(i) / static_cast<double>(size) * 100.0;
                const double times[] = {share,
                                        42.0,
                                        i == size / 2 ? 1e6 : share,
                                        100.0 - share,
                                        static_cast<double>(i % 977) / 9.77 + share / 10.0,
                                        anyTime(random)};
                lists.append(times[kind]);
            }
            for (int probe = 0; probe < 60; ++probe) {
                expectSearchesLikeAScan(lists, anyTime(random) * 1.2 - 10.0);
            }
            for (int probe = 0; probe < 20 && size > 0; ++probe) { // exactly on an entry
                expectSearchesLikeAScan(lists, lists.times[random() % size]);
            }
            const double infinity = std::numeric_limits<double>::infinity();
            for (const double time : {-infinity, infinity, std::nan(""), 42.0, 1e6}) {
                expectSearchesLikeAScan(lists, time);
            }
        }
    }
}

TEST(EntryList, SortsByTimeAndKeepsTheOrderOfEqualTimes)
{
    Lists lists;
    for (int i = 0; i < 100; ++i) { // more than a sort by insertion, stable in itself, is used for
        lists.append(i % 7);
    }
    EXPECT_FALSE(lists.owning.isSorted());
    const auto sorted = lists.view.sortedByTime();
    ASSERT_EQ(sorted.size(), 100U);
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end(), [](const auto* a, const auto* b) {
        return std::pair(a->time, a->id) < std::pair(b->time, b->id);
    }));
}

TEST(RecordData, NarrowsToAWindowWithItsBoundaries)
{
    RecordBuilder record;
    record.source(0).id(1);
    for (const double time : {5.0, 10.0, 30.0, 20.0, 10.0, 40.0, 20.0}) {
        record.at(time).ucharValue(1);
    }
    record.id(2).at(50).ucharValue(0);
    std::shared_ptr<const RecordData> whole = record.data();
    const RecordEntry* shared = &whole->entries(1)[1];
    const auto part = RecordData::narrowed(whole, 10.0, 20.0);
    whole.reset(); // the part keeps it alive

    EXPECT_EQ(timesOf(part->entries(1)), (Times{10, 20, 10, 20}));
    EXPECT_EQ(&part->entries(1)[0], shared) << "entries are not copied";
    EXPECT_EQ(part->entries(RecordData::kSource0Id).size(), 4U);
    EXPECT_EQ(part->entryCount, 4U) << "the collective list does not count";
    EXPECT_EQ(part->find(1)->last.time, 20.0);
    EXPECT_TRUE(part->entries(2).empty());
    EXPECT_EQ(part->startTime, 10.0);
    EXPECT_EQ(part->stopTime, 20.0);

    const auto wider = RecordData::narrowed(record.data(), 0.0, 1000.0);
    EXPECT_EQ(wider->startTime, 5.0) << "a window is cut to the loaded time";
    EXPECT_EQ(wider->stopTime, 50.0);
}

TEST(RecordData, CanBeFilledAgainAfterItWasCleared)
{
    auto data = RecordBuilder().at(3).id(1).source(1).ucharValue(1).data();
    data->limits.emplace_back();
    data->clear();
    EXPECT_TRUE(data->ids().empty());
    EXPECT_TRUE(data->limits.empty());
    data->append(RecordBuilder().at(9).id(1).source(1).ucharValue(1).last());
    EXPECT_EQ(data->entries(1).size(), 1U);
    EXPECT_EQ(data->entries(RecordData::kSource1Id).size(), 1U);
    EXPECT_EQ(data->entryCount, 1U);
    EXPECT_EQ(data->startTime, 9.0);
}

} // namespace
} // namespace VELIX::Test
