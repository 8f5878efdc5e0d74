#pragma once

#include <QString>

namespace VELIX {

class DemoStage;
class ScreenshotFolder;
struct AppContext;

/// One visit to the program: opens the window, loads the first cycle and its first flight, replays
/// a little, shows every view and dialog, exports what is loaded, and saves screenshots on the way.
class DemoTour
{
public:
    explicit DemoTour(ScreenshotFolder& screenshots);

    /// False if something was not as a user would find it; error() then says what.
    [[nodiscard]] bool run(AppContext& context);
    const QString& error() const { return mError; }

private:
    bool visitScenes(DemoStage& stage);
    bool visitParts(DemoStage& stage);
    bool visitDialogs(DemoStage& stage);

    ScreenshotFolder& mScreenshots;
    QString mError;
};

} // namespace VELIX
