// velix-demo: saves screenshots of the program where there is no display, and proves that it runs.

#include "core/CmdLine.h"
#include "core/DataHandler.h"
#include "core/Property.h"
#include "core/startup/Kernel.h"
#include "core/startup/Language.h"
#include "core/startup/Toolkit.h"
#include "gui/look/Palette.h"
#include "gui/look/Resources.h"
#include "tools/velix-demo/DemoTour.h"
#include "tools/velix-demo/ScreenshotFolder.h"

#include <QApplication>
#include <QDir>
#include <QFont>

#include <clocale>
#include <cstdio>

using namespace VELIX;

namespace {

int complain(const QString& sentence)
{
    std::fprintf(stderr, "velix-demo: %s\n", sentence.toLocal8Bit().constData());
    return 1;
}

/// Makes sure that screenshots show nothing that depends on the desktop or the moment.
void prepareForScreenshots(QApplication& application, const std::string& look)
{
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans")));
    QApplication::setCursorFlashTime(0);
    Palette::apply(application, look == "dark" ? Palette::Look::Dark : Palette::Look::Light);
}

} // namespace

int main(int argc, char** argv)
{
    CmdLine& line = CmdLine::instance();
    line.addParameter("--output", "folder for pictures of whole windows", "");
    line.addParameter("--help-pictures", "folder for pictures of the manual", "");
    line.addParameter("--look", "light or dark", "light");
    line.addParameter("-s", "stylefile to load", "");
    std::string output;
    std::string manual;
    std::string look;
    const bool understood = line.parse(argc, argv);
    line.getParameter("--output", output);
    line.getParameter("--help-pictures", manual);
    line.getParameter("--look", look);
    if (!understood || output.empty() == manual.empty() || (look != "light" && look != "dark")) {
        line.printUsage();
        return 2;
    }

    Toolkit::prepare();
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit takes the user's; files need the point
    initResources();
    prepareForScreenshots(application, look);
    Kernel::instance().setApplication(&application);
    Property& settings = Property::instance();
    settings.setConfigFile(DataHandler::instance().dataPath() + "/VELIX.ini");
    settings.readXmlFile();
    settings.setString("TileServer", ""); // screenshots are the same with and without a network
    const std::string locale = settings.getString("Locale", "us");
    const Language language(locale);

    const QString folder = QDir(QString::fromStdString(manual + output)).absolutePath();
    if (!QDir().mkpath(folder)) {
        return complain(QStringLiteral("The folder %1 cannot be made.").arg(folder));
    }
    ScreenshotFolder screenshots(
        manual.empty() ? ScreenshotFolder::Kind::Windows : ScreenshotFolder::Kind::Manual, folder,
        locale == "de" ? QStringLiteral("de") : QStringLiteral("en"));
    DemoTour tour(screenshots);
    AppContext context = Kernel::instance().makeContext();
    if (!tour.run(context)) {
        return complain(tour.error());
    }
    if (manual.empty() && !screenshots.writeIndex()) {
        return complain(QStringLiteral("The index of the pictures cannot be written."));
    }
    std::printf("velix-demo: pictures are in %s\n", folder.toLocal8Bit().constData());
    return 0;
}
