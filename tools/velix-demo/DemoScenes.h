#pragma once

#include <vector>

class QWidget;

namespace VELIX {

class DemoStage;

/// A state of the main window to be pictured.
struct DemoScene
{
    const char* name;
    const char* caption;
    bool (*prepare)(DemoStage& stage); ///< on top of the scene before; null: nothing to do
    const char* view;                  ///< whose tab is chosen, by object name; null: as it is
};

/// A window or dialog of its own to be pictured.
struct DemoDialog
{
    enum class End { Close, Accept };

    const char* name; ///< of the pictures; with a number behind where there are several pages
    const char* caption;
    bool (*open)(DemoStage& stage);
    int pages;      ///< most pages that are pictured
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

/// In the order in which they are visited. A picture more is a line more in these tables.
const std::vector<DemoScene>& demoScenes();
const std::vector<DemoDialog>& demoDialogs();
const std::vector<DemoPart>& demoParts();

} // namespace VELIX
