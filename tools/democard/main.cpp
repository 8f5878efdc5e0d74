#include "tools/democard/DemoCard.h"

#include <QDir>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 2 || argv[1][0] == '-') {
        std::fprintf(stderr, "Usage: democard DIR\nWrites the demo data card into a folder.\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    if (!QDir().mkpath(folder) || !VELIX::Demo::writeDemoCard(folder)) {
        std::fprintf(stderr, "democard: cannot write to <%s>\n", argv[1]);
        return 1;
    }
    return 0;
}
