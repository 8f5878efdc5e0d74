#pragma once

#include <QStringList>

#include <cstddef>

class WidgetGraphBase;

namespace VELIX {

class Profile;
class RecordData;
struct ProfileParameter;

/// Gives the selected parameters of a profile traces in a graph, and the traces their samples.
class GraphFeed
{
public:
    /// Traces that the graph has room for; further parameters are not shown.
    static constexpr unsigned int kMaxTraces = 30;

    /// Both outlive the feed.
    GraphFeed(WidgetGraphBase& graph, const Profile& profile);

    /// Gives one trace to each selected parameter, as far as there is room.
    /// @return the number of parameters selected
    std::size_t takeParameters();
    /// Whether no parameter has a trace.
    [[nodiscard]] bool isEmpty() const { return mNames.isEmpty(); }
    /// Hands the samples of all parameters shown to their traces.
    void fill(const RecordData& record) const;
    /// Hands all samples of a parameter to a trace, in order of time.
    void fillTrace(unsigned int trace, const ProfileParameter& parameter,
                   const RecordData& record) const;

private:
    WidgetGraphBase& mGraph;
    const Profile& mProfile;
    QStringList mNames; ///< full names of the parameters shown
};

} // namespace VELIX
