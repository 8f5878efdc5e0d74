#include "core/CmdLine.h"
#include "core/DataHandler.h"
#include "core/Property.h"
#include "core/Revision.h"
#include "core/startup/DialogSplash.h"
#include "core/startup/Kernel.h"
#include "core/startup/Language.h"
#include "core/startup/SignalWatcher.h"
#include "core/startup/Toolkit.h"
#include "gui/DialogMain.h"
#include "gui/look/Palette.h"
#include "gui/look/Resources.h"
#include "gui/look/StyleHandler.h"

#include <QApplication>

#include <clocale>
#include <csignal>
#include <cstdio>

using namespace VELIX;

namespace {

void prepareStreams()
{
    // Also into a pipe, so that whoever reads it sees each line when it is written.
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    // A reader of the lines that goes away must not take the program with it.
    std::signal(SIGPIPE, SIG_IGN);
}

void parseCommandLine(int argc, char** argv)
{
    CmdLine& line = CmdLine::instance();
    line.addSwitch("-h", "print this help");
    line.addSwitch("-emu", "EMU display only");
    line.addSwitch("-connect", "connect after startup");
    line.addParameter("-s", "stylefile to load", "");
    if (!line.parse(argc, argv) || line.getSwitch("-h")) {
        line.printUsage(); // start-up goes on in either case
    }
}

void loadSettings()
{
    Property& settings = Property::instance();
    settings.setConfigFile(DataHandler::instance().dataPath() + "/VELIX.ini");
    settings.readXmlFile();
}

void loadStyle(QApplication& application)
{
    std::string path;
    CmdLine::instance().getParameter("-s", path);
    application.setStyleSheet(StyleHandler::readStyle(
        path.empty() ? QStringLiteral(":/styles/style.VELIX.css") : QString::fromStdString(path)));
}

} // namespace

int main(int argc, char** argv)
{
    prepareStreams();
    SignalWatcher signalWatcher; // so early that a signal during start-up is not lost
    Revision::printHeader();
    parseCommandLine(argc, argv);
    Toolkit::prepare();
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit takes the user's; files need the point
    initResources();
    Palette::apply(application);

    DialogSplash& splash = DialogSplash::instance();
    splash.addEntry(QCoreApplication::translate("VELIX::DialogSplash", "Starting up VELIX..."));
    splash.addEntry(QCoreApplication::translate("VELIX::DialogSplash", "Version %1")
                        .arg(QString::fromStdString(Revision::getRevisionString())));
    Kernel& kernel = Kernel::instance();
    kernel.setApplication(&application);

    loadSettings();
    const Language language(Property::instance().getString("Locale", "us"));
    loadStyle(application);

    splash.addEntry(QCoreApplication::translate("VELIX::DialogSplash", "Creating Dialogs ..."));
    AppContext context = kernel.makeContext();
    DialogMain mainWindow(context);
    kernel.setMainWindow(&mainWindow);
    application.installEventFilter(&mainWindow);

    splash.finish();
    signalWatcher.start([&kernel] { kernel.quit(); });
    const int status = QApplication::exec();
    kernel.setMainWindow(nullptr);
    return status;
}
