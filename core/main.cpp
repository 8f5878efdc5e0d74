#include "core/CmdLine.h"
#include "core/DataHandler.h"
#include "core/Diagnostics.h"
#include "core/DialogSplash.h"
#include "core/Kernel.h"
#include "core/Property.h"
#include "core/Revision.h"
#include "core/SignalWatcher.h"
#include "gui/DialogMain.h"
#include "gui/Palette.h"
#include "gui/Resources.h"
#include "gui/StyleHandler.h"

#include <QApplication>
#include <QLocale>
#include <QSurfaceFormat>
#include <QTextCodec>
#include <QTranslator>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <langinfo.h>

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

/// What the toolkit only heeds before the application object exists.
void prepareToolkit()
{
    std::setlocale(LC_CTYPE, "");
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0) {
        // The plain "C" locale knows no letters beyond ASCII, but folders are named with them.
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }
    // Keeps the order of attributes in written files the same from one run to the next.
    qSetGlobalQHashSeed(0);

    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    QSurfaceFormat::setDefaultFormat(format);
}

void loadSettings()
{
    Property& settings = Property::instance();
    settings.setConfigFile(DataHandler::instance().dataPath() + "/VELIX.ini");
    settings.readXmlFile();
}

/// Loads prefix + locale from the built-in translations; label names it in the diagnostic.
void installTranslation(QTranslator& translator, const char* label, const QString& prefix)
{
    const std::string locale = Property::instance().getString("Locale", "us");
    const bool loaded =
        translator.load(prefix + QString::fromStdString(locale), QStringLiteral(":/trl"));
    Diagnostics::print("Translation %s <%s> %d\n", label, locale.c_str(), loaded ? 1 : 0);
    if (loaded) {
        QCoreApplication::installTranslator(&translator);
    }
}

/// Numbers in windows are written as the chosen language does it, not as the desktop's does.
void useLanguageOfSettings()
{
    const std::string locale = Property::instance().getString("Locale", "us");
    QLocale::setDefault(locale == "de" ? QLocale(QLocale::German, QLocale::Germany)
                                       : QLocale(QLocale::English, QLocale::UnitedStates));
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
    prepareToolkit();
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
    useLanguageOfSettings();
    QTranslator toolkitTexts;
    installTranslation(toolkitTexts, "QT", QStringLiteral("qt_"));
    QTranslator velixTexts;
    installTranslation(velixTexts, "IOS", QStringLiteral("velix_"));
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
