#pragma once

#include "card/EntryList.h"
#include "core/RecordEntry.h"

#include <cstddef>

namespace VELIX {

/// All entries of one CAN identifier.
struct RecordIdList
{
    EntryList entries; ///< file order
    /// Whole seconds that look-ups by time cover, 0 before a load has finished. A slot per second
    /// would only ever hold the first position, so the number of slots is all that is kept.
    std::size_t indexSize = 0;
    RecordEntry last; ///< the entry added last; live views show it
};

} // namespace VELIX
