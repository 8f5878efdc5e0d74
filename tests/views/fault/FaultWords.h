#pragma once

#include "tests/support/RecordBuilder.h"

#include <initializer_list>
#include <utility>

namespace VELIX::Test {

/// The words of a fault matrix by time, with another message that makes the record last from 0 to
/// 100 s.
inline RecordBuilder faultWords(std::uint32_t id,
                                std::initializer_list<std::pair<double, std::uint32_t>> words)
{
    RecordBuilder record;
    record.at(0).id(1).ulongValue(0).at(100).ulongValue(0).id(id);
    for (const auto& [time, word] : words) {
        record.at(time).blongValue(word);
    }
    return record;
}

} // namespace VELIX::Test
