#pragma once

#include "views/graph/model/GraphData.h"

#include <optional>

class WidgetGraphBase;

namespace VELIX {

class Property;

/// Keeps the display settings of the graph from one run to the next.
class GraphSettings
{
public:
    explicit GraphSettings(Property& settings) : mSettings(settings) {}

    /// What an earlier run stored; values that make no sense are replaced by their defaults.
    /// Nothing if no run stored any.
    [[nodiscard]] std::optional<GraphData> load() const;
    /// Also writes the file of the settings.
    void store(const GraphData& data);

    /// Hands all settings to a graph, in their order.
    static void apply(const GraphData& data, WidgetGraphBase& graph);

    /// Whether the table of values between the markers is shown.
    bool statisticOn() const;
    void storeStatisticOn(bool on);

private:
    Property& mSettings;
};

} // namespace VELIX
