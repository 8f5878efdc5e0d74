#pragma once

#include <vector>

class QWidget;

namespace VELIX {

class DemoStage;

/// A state of the main window for a screenshot.
struct DemoScene
{
    const char* name;
    const char* caption;
    bool (*prepare)(DemoStage& stage); ///< after the scene before; null: nothing to do
    const char* view;                  ///< whose tab is chosen, by object name; null: no other
};

/// A window or dialog of its own for screenshots.
struct DemoDialog
{
    enum class End { Close, Accept };

    const char* name; ///< of the screenshots; followed by a number where there are several pages
    const char* caption;
    bool (*open)(DemoStage& stage);
    int pages;      ///< the number of screenshots at most
    int manualPage; ///< the page that the manual shows, counted from 1
    End end;
    const char* writes; ///< suffix of the file that accepting it leaves; null: none
};

/// A part of the main window that the manual shows alone.
struct DemoPart
{
    const char* name;
    QWidget* (*find)(DemoStage& stage);
};

/// Return what is visited, in this order. A line more in these tables is a screenshot more.
const std::vector<DemoScene>& demoScenes();
const std::vector<DemoDialog>& demoDialogs();
const std::vector<DemoPart>& demoParts();

} // namespace VELIX
