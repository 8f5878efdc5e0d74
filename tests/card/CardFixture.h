#pragma once

#include "card/CardContainer.h"
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
    int load(std::initializer_list<const char*> names)
    {
        return mCard.loadFiles(CardFolder::names(names));
    }
    /// Makes a recording the card's only loaded one.
    void loadOnly(const RecordBuilder& record)
    {
        mFolder.add("a.CAN", record);
        read();
        ASSERT_EQ(load({"a.CAN"}), 1);
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
};

} // namespace VELIX::Test
