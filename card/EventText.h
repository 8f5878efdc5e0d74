#pragma once

#include "card/RecordEvent.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace VELIX {

struct ProfileParameter;

/// Fills the texts and the key of an event from its parts; `label` follows the value.
void describeEvent(RecordLimit& event, double time, const QString& device,
                   const ProfileParameter& parameter, const QString& value, const QString& label);

/// Orders events by time; those of equal time keep their order.
template <class Event>
void sortByTime(std::vector<Event>& events)
{
    std::stable_sort(events.begin(), events.end(),
                     [](const Event& a, const Event& b) { return a.time < b.time; });
}

} // namespace VELIX
