// Starts as the program does and ends when its main window has been painted. The last word on
// standard error is when that was: seconds of the monotonic clock, as the caller's clock has them.

#include "core/DataHandler.h"
#include "core/Property.h"
#include "core/startup/DialogSplash.h"
#include "core/startup/Kernel.h"
#include "core/startup/Language.h"
#include "core/startup/Toolkit.h"
#include "gui/DialogMain.h"
#include "gui/look/Palette.h"
#include "gui/look/Resources.h"
#include "gui/look/StyleHandler.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <chrono>
#include <cstdio>

using namespace VELIX;

namespace {

/// Ends the event loop after the first frame of a window is on screen.
class PaintWatcher : public QObject
{
public:
    explicit PaintWatcher(QWidget& window) { window.installEventFilter(this); }

    double seconds = 0.0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !mSeen) {
            mSeen = true;
            QTimer::singleShot(0, watched, [this] { // the children are painted now too
                const auto now = std::chrono::steady_clock::now().time_since_epoch();
                seconds = std::chrono::duration<double>(now).count();
                QCoreApplication::quit();
            });
        }
        return false;
    }

private:
    bool mSeen = false;
};

} // namespace

int main(int argc, char** argv)
{
    Toolkit::prepare();
    QApplication application(argc, argv);
    initResources();
    Palette::apply(application);
    DialogSplash& splash = DialogSplash::instance();
    Kernel& kernel = Kernel::instance();
    kernel.setApplication(&application);
    Property& settings = Property::instance();
    settings.setConfigFile(DataHandler::instance().dataPath() + "/VELIX.ini");
    settings.readXmlFile();
    const Language language(settings.getString("Locale", "us"));
    application.setStyleSheet(StyleHandler::readStyle(QStringLiteral(":/styles/style.VELIX.css")));
    splash.addEntry(QStringLiteral("Creating Dialogs ..."));
    AppContext context = kernel.makeContext();
    DialogMain window(context);
    kernel.setMainWindow(&window);
    PaintWatcher watcher(window);
    splash.finish();
    QApplication::exec();
    kernel.setMainWindow(nullptr);
    std::fprintf(stderr, "%.6f\n", watcher.seconds);
    return watcher.seconds > 0.0 ? 0 : 1;
}
