#include "views/graph/GraphSettings.h"

#include "core/Property.h"
#include "views/graph/GraphColor.h"
#include "views/graph/widget/WidgetGraphBase.h"

#include <QColor>

#include <cmath>
#include <string>

namespace VELIX {

namespace {

constexpr const char* kStatistic = "GraphStatistic";

/// Hands every setting with its key to `visit`: loading and storing cannot disagree on keys.
template <class Data, class Visit>
void forEachSetting(Data& data, Visit visit)
{
    visit("GraphXRange", data.xRange);
    visit("GraphDisplayMode", data.displayMode);
    visit("GraphGraphMode", data.graphMode);
    visit("GraphCursorMode", data.cursorMode);
    visit("GraphBackColor", data.backColor);
    visit("GraphGridOn", data.gridOn);
    visit("GraphGridColor", data.gridColor);
    visit("GraphLabelColor", data.labelColor);
    visit("GraphLabelBackColor", data.labelBackColor);
    visit("GraphCursorOn", data.cursorOn);
    visit("GraphLegendOn", data.legendOn);
    visit("GraphAutoScaleOn", data.autoScaleOn);
    visit("GraphYMin", data.yMin);
    visit("GraphYMax", data.yMax);
}

class Reader
{
public:
    explicit Reader(const Property& settings) : mSettings(settings) {}

    void operator()(const char* key, double& value)
    {
        note(key, value = mSettings.getDouble(key, value));
    }
    void operator()(const char* key, int& value)
    {
        note(key, value = mSettings.getInt(key, value));
    }
    void operator()(const char* key, bool& value)
    {
        note(key, value = mSettings.getSwitch(key, value));
    }
    void operator()(const char* key, std::string& value)
    {
        note(key, value = mSettings.getString(key, value));
    }
    bool foundAny() const { return mFoundAny; }

private:
    template <class T>
    void note(const char* key, const T&)
    {
        mFoundAny = mFoundAny || !mSettings.getString(key, {}).empty();
    }

    const Property& mSettings;
    bool mFoundAny = false;
};

class Writer
{
public:
    explicit Writer(Property& settings) : mSettings(settings) {}

    void operator()(const char* key, double value) { mSettings.setDouble(key, value); }
    void operator()(const char* key, int value) { mSettings.setInt(key, value); }
    void operator()(const char* key, bool value) { mSettings.setSwitch(key, value); }
    void operator()(const char* key, const std::string& value) { mSettings.setString(key, value); }

private:
    Property& mSettings;
};

void repair(std::string& color, const std::string& fallback)
{
    if (!QColor::isValidColor(QString::fromStdString(color))) {
        color = fallback;
    }
}

/// The file can be edited by hand; a graph without width or colour would look broken.
void repair(GraphData& data)
{
    const GraphData fallback;
    if (!std::isfinite(data.xRange) || data.xRange <= 0.0) {
        data.xRange = fallback.xRange;
    }
    if (data.cursorMode < 0 || data.cursorMode > 2) {
        data.cursorMode = fallback.cursorMode;
    }
    if (data.graphMode < 0 || data.graphMode > 1) {
        data.graphMode = fallback.graphMode;
    }
    if (!std::isfinite(data.yMin) || !std::isfinite(data.yMax)) {
        data.yMin = fallback.yMin;
        data.yMax = fallback.yMax;
    }
    repair(data.backColor, fallback.backColor);
    repair(data.gridColor, fallback.gridColor);
    repair(data.labelColor, fallback.labelColor);
    repair(data.labelBackColor, fallback.labelBackColor);
}

} // namespace

std::optional<GraphData> GraphSettings::load() const
{
    GraphData data;
    Reader reader(mSettings);
    forEachSetting(data, [&reader](const char* key, auto& value) { reader(key, value); });
    if (!reader.foundAny()) {
        return std::nullopt;
    }
    repair(data);
    return data;
}

void GraphSettings::store(const GraphData& data)
{
    Writer writer(mSettings);
    forEachSetting(data, [&writer](const char* key, const auto& value) { writer(key, value); });
    mSettings.writeXmlFile();
}

bool GraphSettings::statisticOn() const
{
    return mSettings.getSwitch(kStatistic, false);
}

void GraphSettings::storeStatisticOn(bool on)
{
    mSettings.setSwitch(kStatistic, on);
    mSettings.writeXmlFile();
}

void GraphSettings::apply(const GraphData& data, WidgetGraphBase& graph)
{
    const GraphColor back = GraphColor::fromName(data.backColor);
    const GraphColor grid = GraphColor::fromName(data.gridColor);
    const GraphColor label = GraphColor::fromName(data.labelColor);
    const GraphColor labelBack = GraphColor::fromName(data.labelBackColor);
    graph.setXrange(static_cast<float>(data.xRange));
    graph.setDisplayMode(static_cast<GraphModel::eDisplayMode>(data.displayMode));
    graph.setGraphMode(static_cast<GraphModel::eGraphMode>(data.graphMode));
    graph.setCursorMode(static_cast<GraphModel::eCursorMode>(data.cursorMode));
    graph.setBackColor(back.red, back.green, back.blue);
    graph.activateGrid(data.gridOn);
    graph.setGridColor(grid.red, grid.green, grid.blue);
    graph.setLabelColor(label.red, label.green, label.blue);
    graph.setLabelBackColor(labelBack.red, labelBack.green, labelBack.blue);
    graph.activateCursor(data.cursorOn);
    graph.activateLegend(data.legendOn);
    graph.setAutoScaleY(data.autoScaleOn);
    graph.setYmin(static_cast<float>(data.yMin));
    graph.setYmax(static_cast<float>(data.yMax));
}

} // namespace VELIX
