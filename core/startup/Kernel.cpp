#include "core/startup/Kernel.h"

#include "card/CardContainer.h"
#include "core/CmdLine.h"
#include "core/DataHandler.h"
#include "core/Diagnostics.h"
#include "core/Property.h"
#include "gui/DialogMain.h"
#include "gui/look/StyleHandler.h"
#include "gui/project/Project.h"
#include "profile/Profile.h"

#include <QApplication>
#include <QProcess>

namespace VELIX {

Kernel& Kernel::instance()
{
    static Kernel kernel;
    return kernel;
}

AppContext Kernel::makeContext()
{
    std::string styleFile;
    CmdLine::instance().getParameter("-s", styleFile);
    return {Profile::instance(),
            CardContainer::instance(),
            Property::instance(),
            Project::instance(),
            DataHandler::instance(),
            *this,
            QString::fromStdString(styleFile),
            CmdLine::instance().getSwitch("-emu")};
}

bool Kernel::quit()
{
    if (mMainWindow != nullptr && !mMainWindow->close()) {
        return false;
    }
    QApplication::quit();
    return true;
}

void Kernel::loadStyleFile(const QString& path)
{
    const int fontSize = Property::instance().getInt("FontSize", 12);
    const QString style = QStringLiteral("%1\nQWidget {font-size: %2px;}")
                              .arg(StyleHandler::readStyle(path), QString::number(fontSize));
    // Asked for twice a second while a style is being edited, and polishing every widget is slow.
    if (style != mApplication->styleSheet()) {
        mApplication->setStyleSheet(style);
    }
}

void Kernel::restart()
{
    QStringList arguments = QApplication::arguments();
    arguments.removeFirst();
    const QString program = QApplication::applicationFilePath();
    // First, so that the new process finds the settings and the project as this one leaves them.
    if (!quit()) {
        return;
    }
    if (!QProcess::startDetached(program, arguments)) {
        Diagnostics::print("could not start <%s>\n", qUtf8Printable(program));
    }
}

} // namespace VELIX
