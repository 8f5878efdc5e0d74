#include "views/graph/GraphFeed.h"

#include "card/SampleWalk.h"
#include "profile/Profile.h"
#include "views/graph/widget/WidgetGraphBase.h"

#include <algorithm>

namespace VELIX {

GraphFeed::GraphFeed(WidgetGraphBase& graph, const Profile& profile)
    : mGraph(graph), mProfile(profile)
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
        const NumberFormat format = mProfile.format(parameter);
        const QString& unit = format.unit(NumberFormat::EUnitOf::Number);
        mGraph.setParameterUnit(i, unit.isEmpty() ? "-" : unit.toStdString());
        mGraph.setPrecision(i, format.decimals());
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
    const ProfileDecoder decoder = mProfile.decoder();
    forEachSampleByTime(record, parameter, mProfile, [&](const ParameterSample& sample) {
        mGraph.setTime(sample.entry().time);
        mGraph.putValue(trace, decoder.number(sample), false);
    });
}

} // namespace VELIX
