#include "core/startup/Toolkit.h"

#include <QApplication>
#include <QSurfaceFormat>
#include <QTextCodec>

#include <clocale>
#include <langinfo.h>

namespace VELIX {

void Toolkit::prepare()
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

} // namespace VELIX
