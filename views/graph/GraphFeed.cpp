#include "views/graph/GraphFeed.h"

#include "card/RecordData.h"
#include "profile/Profile.h"
#include "views/common/GraphValues.h"
#include "views/graph/widget/WidgetGraphBase.h"

#include <algorithm>

namespace VELIX {

GraphFeed::GraphFeed(WidgetGraphBase& graph, Profile& profile) : mGraph(graph), mProfile(profile)
{
    mGraph.setMaxParameters(kMaxTraces);
}

std::size_t GraphFeed::takeParameters()
{
    const auto parameters = mProfile.selectedParameters();
    const std::size_t shown = std::min<std::size_t>(parameters.size(), kMaxTraces);
    QStringList names;
    for (std::size_t i = 0; i < shown; ++i) {
        names.append(parameters[i]->fullName);
    }
    if (names != mNames) {
        mNames = names;
        mGraph.setMaxParameters(kMaxTraces); // what was hidden or moved were other parameters
    }
    for (unsigned int i = 0; i < kMaxTraces; ++i) {
        mGraph.setActive(i, false);
    }
    for (unsigned int i = 0; i < shown; ++i) {
        const ProfileParameter& parameter = *parameters[i];
        mGraph.setActive(i, true);
        mGraph.setParameterName(i, parameter.name.toStdString());
        mGraph.setParameterUnit(i, GraphValues::unit(mProfile, parameter));
        mGraph.setPrecision(i, GraphValues::decimals(mProfile, parameter));
    }
    return parameters.size();
}

void GraphFeed::fill(const RecordData& record) const
{
    const auto parameters = mProfile.selectedParameters();
    const std::size_t shown = std::min<std::size_t>(parameters.size(), kMaxTraces);
    for (std::size_t i = 0; i < shown; ++i) {
        fillTrace(static_cast<unsigned int>(i), *parameters[i], record);
    }
}

void GraphFeed::fillTrace(unsigned int trace, const ProfileParameter& parameter,
                          const RecordData& record) const
{
    const EntryList& entries = record.entries(static_cast<std::uint32_t>(parameter.id));
    const auto put = [&](const RecordEntry& entry) {
        mGraph.setTime(entry.time);
        mGraph.putValue(trace, mProfile.getDouble(entry, parameter, true), false);
    };
    mProfile.resetCoordinates(); // positions are judged by those before them
    if (entries.isSorted()) {
        for (const RecordEntry& entry : entries) {
            put(entry);
        }
        return;
    }
    for (const RecordEntry* entry : entries.sortedByTime()) {
        put(*entry);
    }
}

} // namespace VELIX
