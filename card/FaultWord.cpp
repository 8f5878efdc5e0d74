#include "card/FaultWord.h"

#include <QtEndian>

namespace VELIX {

namespace {

constexpr std::size_t kWordOffset = 4; // of the error bits in the payload
constexpr double kTolerance = 0.01;    // s by which a sample may be ahead of the cursor

} // namespace

std::uint32_t faultWord(const RecordEntry& entry)
{
    return qFromBigEndian<quint32>(entry.data.data() + kWordOffset);
}

std::uint32_t faultWordAt(const EntryList& entries, double time)
{
    const std::size_t later = entries.firstAfter(time + kTolerance);
    return later == 0 || later == entries.size() ? 0 : faultWord(entries[later - 1]);
}

} // namespace VELIX
