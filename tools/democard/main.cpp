#include "tools/democard/DemoCard.h"
#include "tools/democard/DemoHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if ((arguments.size() != 2 && arguments.size() != 4) ||
        arguments.at(1).startsWith(QLatin1Char('-'))) {
        std::fprintf(stderr, "Usage: democard CARD [HOME LOCALE]\n"
                             "Writes the demo data card into a folder, and into another one a home "
                             "for it:\nprofile, selection and settings, with LOCALE us or de.\n");
        return 2;
    }
    const QString& card = arguments.at(1);
    if (!QDir().mkpath(card) || !VELIX::Demo::writeDemoCard(card)) {
        std::fprintf(stderr, "democard: cannot write to <%s>\n", argv[1]);
        return 1;
    }
    const QString resources =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../resources/demo");
    if (arguments.size() == 4 &&
        !VELIX::Demo::writeDemoHome(arguments.at(2), resources, card, arguments.at(3))) {
        std::fprintf(stderr, "democard: cannot write to <%s>\n", argv[2]);
        return 1;
    }
    return 0;
}
