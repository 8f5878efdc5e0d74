// velix-demo: shows the program to whoever has no display, and proves that it runs.

#include "core/CmdLine.h"
#include "core/DataHandler.h"
#include "core/Kernel.h"
#include "core/Property.h"
#include "gui/Palette.h"
#include "gui/Resources.h"
#include "tools/velix-demo/DemoTour.h"

#include <QApplication>
#include <QDir>
#include <QSurfaceFormat>
#include <QTranslator>

#include <clocale>
#include <cstdio>

using namespace VELIX;

namespace {

int complain(const QString& sentence)
{
    std::fprintf(stderr, "velix-demo: %s\n", sentence.toLocal8Bit().constData());
    return 1;
}

void prepareToolkit()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    QSurfaceFormat::setDefaultFormat(format);
}

/// One tour in a language; a language without texts is left out.
bool tour(const QString& folder, const QString& locale, QString& error)
{
    QTranslator toolkitTexts;
    QTranslator texts;
    if (!locale.isEmpty()) {
        const QString resources = QStringLiteral(":/trl");
        if (!texts.load(QStringLiteral("velix_") + locale, resources) || texts.isEmpty() ||
            !toolkitTexts.load(QStringLiteral("qt_") + locale, resources)) {
            return true;
        }
        QCoreApplication::installTranslator(&toolkitTexts);
        QCoreApplication::installTranslator(&texts);
    }
    DemoTour visit(folder, locale.isEmpty() ? QString() : QStringLiteral("-") + locale);
    AppContext context = Kernel::instance().makeContext();
    const bool done = visit.run(context);
    error = visit.error();
    return done;
}

} // namespace

int main(int argc, char** argv)
{
    CmdLine& line = CmdLine::instance();
    line.addParameter("--output", "folder for the pictures", "");
    line.addParameter("--look", "light or dark", "light");
    line.addParameter("-s", "stylefile to load", "");
    std::string output;
    std::string look;
    const bool understood = line.parse(argc, argv);
    line.getParameter("--output", output);
    line.getParameter("--look", look);
    if (!understood || output.empty() || (look != "light" && look != "dark")) {
        line.printUsage();
        return 2;
    }

    prepareToolkit();
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit takes the user's; files need the point
    initResources();
    Palette::apply(application, look == "dark" ? Palette::Look::Dark : Palette::Look::Light);
    Kernel::instance().setApplication(&application);
    Property& settings = Property::instance();
    settings.setConfigFile(DataHandler::instance().dataPath() + "/VELIX.ini");
    settings.readXmlFile();

    const QString folder = QDir(QString::fromStdString(output)).absolutePath();
    if (!QDir().mkpath(folder)) {
        return complain(QStringLiteral("The folder %1 cannot be made.").arg(folder));
    }
    for (const QString& locale : {QString(), QStringLiteral("de")}) {
        QString error;
        if (!tour(folder, locale, error)) {
            return complain(error);
        }
    }
    std::printf("velix-demo: pictures are in %s\n", folder.toLocal8Bit().constData());
    return 0;
}
