#include "tools/velix-demo/DemoTour.h"

#include "core/DataHandler.h"
#include "gui/DialogMain.h"
#include "gui/card/DialogCard.h"
#include "gui/project/AppContext.h"
#include "tools/velix-demo/DemoScenes.h"
#include "tools/velix-demo/DemoStage.h"
#include "tools/velix-demo/DialogVisit.h"
#include "tools/velix-demo/ScreenshotFolder.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QScreen>
#include <QSplitter>

#include <algorithm>

namespace VELIX {

namespace {

using Kind = ScreenshotFolder::Kind;

constexpr int kStartMs = 1300; ///< start-up sizes its panes one second after the window came up
constexpr int kSettleMs = 600; ///< the graph has caught up with its final size

} // namespace

DemoTour::DemoTour(ScreenshotFolder& screenshots) : mScreenshots(screenshots) {}

bool DemoTour::run(AppContext& context)
{
    DialogMain window(context);
    window.resize(mScreenshots.kind() == Kind::Windows ? QSize(1280, 800) : QSize(1000, 700));
    QApplication::setActiveWindow(&window); // a virtual display has no window manager to do it
    QCursor::setPos(window.screen()->geometry().bottomRight()); // nothing is hovered
    DemoStage::runEventsFor(kStartMs);
    // The sizes that it chooses itself depend on when the window system answered.
    const auto* cards = window.findChild<DialogCard*>();
    if (auto* column = qobject_cast<QSplitter*>(cards->parentWidget())) {
        column->setSizes({1, 2});
    }

    DemoStage stage(window);
    const bool done = visitScenes(stage) && visitParts(stage) && visitDialogs(stage);
    mError = stage.error();
    window.close();
    return done;
}

bool DemoTour::visitScenes(DemoStage& stage)
{
    const auto& scenes = demoScenes();
    return std::all_of(scenes.begin(), scenes.end(), [&](const DemoScene& scene) {
        if ((scene.prepare != nullptr && !scene.prepare(stage)) ||
            (scene.view != nullptr && !stage.showView(scene.view))) {
            return false;
        }
        DemoStage::runEventsFor(kSettleMs);
        QWidget* shown = &stage.window();
        if (mScreenshots.kind() == Kind::Manual && scene.view != nullptr) {
            shown = stage.window().findChild<QWidget*>(QLatin1String(scene.view));
        }
        return mScreenshots.add(*shown, QLatin1String(scene.name), QLatin1String(scene.caption)) ||
               stage.fail(QStringLiteral("The pictures cannot be written."));
    });
}

bool DemoTour::visitParts(DemoStage& stage)
{
    if (mScreenshots.kind() == Kind::Windows) {
        return true; // they are in the screenshots of the window
    }
    const auto& parts = demoParts();
    return std::all_of(parts.begin(), parts.end(), [&](const DemoPart& part) {
        QWidget* widget = part.find(stage);
        return (widget != nullptr && mScreenshots.add(*widget, QLatin1String(part.name), {})) ||
               stage.fail(QStringLiteral("There is no %1.").arg(QLatin1String(part.name)));
    });
}

bool DemoTour::visitDialogs(DemoStage& stage)
{
    QDir exports(QDir::home().filePath(QStringLiteral("Documents")));
    exports.removeRecursively(); // a file of an earlier tour would be asked about
    if (!QDir().mkpath(exports.path())) {
        return stage.fail(QStringLiteral("%1 cannot be made.").arg(exports.path()));
    }
    DialogVisit visit(stage, mScreenshots, exports.path());
    const auto& dialogs = demoDialogs();
    return std::all_of(dialogs.begin(), dialogs.end(),
                       [&](const DemoDialog& dialog) { return visit.run(dialog); });
}

} // namespace VELIX
