#include "core/Diagnostics.h"
#include "tools/velix-card/CardCommand.h"
#include "tools/velix-card/CardOptions.h"

#include <QCoreApplication>

#include <clocale>
#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit takes the user's; numbers need the point
    // Standard output carries the result alone.
    VELIX::Diagnostics::setStream(stderr);

    const VELIX::ParsedOptions parsed = VELIX::parseCardOptions(QCoreApplication::arguments());
    if (!parsed.options) {
        std::fputs(parsed.message.toLocal8Bit().constData(), parsed.status == 0 ? stdout : stderr);
        return parsed.status;
    }
    return VELIX::CardCommand(*parsed.options, stdout).run();
}
