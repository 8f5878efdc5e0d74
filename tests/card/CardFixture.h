#pragma once

#include "card/CardContainer.h"
#include "core/Progress.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"
#include "tests/support/CardFolder.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace VELIX::Test {

using Times = std::vector<double>;
using Samples = std::vector<std::pair<double, int>>; ///< time in s and value

inline Times timesOf(const EntryList& entries)
{
    Times times;
    for (const RecordEntry& entry : entries) {
        times.push_back(entry.time);
    }
    return times;
}

/// A recording of one message with 16-bit values.
inline RecordBuilder recordOf(std::uint32_t id, const Samples& samples)
{
    RecordBuilder record;
    record.id(id);
    for (const auto& [time, value] : samples) {
        record.at(time).ushortValue(static_cast<std::uint16_t>(value));
    }
    return record;
}

/// A card in a folder of its own, read with a profile of its own.
class CardFixture : public ::testing::Test
{
protected:
    void read() { ASSERT_TRUE(mCard.readContainer(mFolder.path())); }
    /// Whether the load succeeded; its outcome in full is kept.
    bool load(std::initializer_list<const char*> names, Progress progress = {})
    {
        mOutcome = mCard.loadFiles(CardFolder::names(names), progress);
        return mOutcome.ok;
    }
    bool loadCycle(std::uint32_t cycle, int flight, Progress progress = {})
    {
        mOutcome = mCard.loadCycle(cycle, flight, progress);
        return mOutcome.ok;
    }
    /// Makes a recording the card's only loaded one.
    void loadOnly(const RecordBuilder& record)
    {
        mFolder.add("a.CAN", record);
        read();
        ASSERT_TRUE(load({"a.CAN"}));
    }
    Times times(std::uint32_t id) const { return timesOf(mCard.recordData().entries(id)); }
    const RecordInfo& info(const char* name) const
    {
        return mCard.recordFiles().at(QString::fromUtf8(name)).recordInfo();
    }

    CapturedDiagnostics mOutput;
    CardFolder mFolder;
    Profile mProfile;
    CardContainer mCard{mProfile};
    Outcome mOutcome; ///< of the last load
};

} // namespace VELIX::Test
