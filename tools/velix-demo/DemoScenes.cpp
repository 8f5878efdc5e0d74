#include "tools/velix-demo/DemoScenes.h"

#include "gui/DialogMain.h"
#include "gui/MainActions.h"
#include "gui/card/DialogCard.h"
#include "gui/profile/DialogProfile.h"
#include "tools/velix-demo/DemoStage.h"
#include "views/graph/GraphCommandBar.h"
#include "views/replay/ReplayControls.h"

#include <QToolBar>

namespace VELIX {

namespace {

constexpr double kCursor = 0.42; ///< shortly after the first limit of the demo card's second flight

template <int Action>
bool trigger(DemoStage& stage)
{
    return stage.trigger(Action);
}

template <typename T>
QWidget* child(DemoStage& stage)
{
    return stage.window().findChild<T*>();
}

} // namespace

const std::vector<DemoScene>& demoScenes()
{
    static const std::vector<DemoScene> scenes = {
        {"start", "A card is open, nothing is loaded yet", nullptr, nullptr},
        {"statistic-day", "Tow statistic: the flights of a cycle at a glance",
         [](DemoStage& stage) { return stage.click("buttonMap0") && stage.loadCycle(0); },
         "viewStatistic"},
        {"statistic", "Tow statistic: one flight",
         [](DemoStage& stage) {
             return stage.loadFlight(0, 1) && stage.replay() && stage.setPosition(kCursor);
         },
         "viewStatistic"},
        {"table", "Data: the value table", nullptr, "viewTable"},
        {"graph", "Graph: every trace in a band of its own",
         [](DemoStage& stage) { return stage.click("buttonGraph6"); }, "viewGraph"},
        {"graph-single", "Graph: all traces in one plot",
         [](DemoStage& stage) { return stage.click("buttonGraph7"); }, "viewGraph"},
        {"fault", "Fault matrix", nullptr, "viewFaultMatrix"},
        {"limit", "Limits and warnings", nullptr, "viewLimit"},
        {"warning", "Warning lamps", nullptr, "viewWarning"},
        {"instrument", "EMU View: the engine's own display", nullptr, "viewInstrument"},
        {"map", "Map: flight path and aircraft beside the table",
         [](DemoStage& stage) { return stage.click("buttonMap1"); }, "viewTable"},
    };
    return scenes;
}

const std::vector<DemoDialog>& demoDialogs()
{
    using End = DemoDialog::End;
    constexpr int kAll = 99;
    static const std::vector<DemoDialog> dialogs = {
        {"graph-setup", "Graph setup",
         [](DemoStage& stage) {
             return stage.showView("viewGraph") && stage.click("buttonGraph9");
         },
         1, 1, End::Close, nullptr},
        {"kml", "KML export", trigger<eActionExportKml>, kAll, 2, End::Accept, "kml"},
        {"csv", "CSV export", trigger<eActionExportCsv>, kAll, 2, End::Accept, "csv"},
        {"preferences", "Preferences", trigger<eActionPreferences>, kAll, 1, End::Close, nullptr},
        {"profile", "Profile information", trigger<eActionProfile>, 1, 1, End::Close, nullptr},
        {"help", "Help", trigger<eActionHelp>, 1, 1, End::Close, nullptr},
        {"about", "About", trigger<eActionAbout>, 1, 1, End::Close, nullptr},
        {"save-project", "Before a changed project is left",
         [](DemoStage& stage) {
             return stage.click("buttonConfirm") && stage.trigger(eActionNewProject);
         },
         1, 1, End::Close, nullptr},
    };
    return dialogs;
}

const std::vector<DemoPart>& demoParts()
{
    static const std::vector<DemoPart> parts = {
        {"main",
         [](DemoStage& stage) -> QWidget* {
             return stage.showView("viewTable") ? &stage.window() : nullptr;
         }},
        {"toolbar", child<QToolBar>},
        {"cards", child<DialogCard>},
        {"parameters", child<DialogProfile>},
        {"replay", child<ReplayControls>},
        {"graph-commands", child<GraphCommandBar>},
    };
    return parts;
}

} // namespace VELIX
