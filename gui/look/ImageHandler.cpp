#include "gui/look/ImageHandler.h"

#include "core/Diagnostics.h"
#include "gui/look/Palette.h"
#include "gui/look/Resources.h"
#include "gui/look/SvgIconEngine.h"

#include <QDir>
#include <QFile>

using VELIX::Palette;

ImageHandler& ImageHandler::instance()
{
    static ImageHandler handler(Palette::current());
    return handler;
}

ImageHandler::ImageHandler(const Palette& palette) : mPalette(palette)
{
    VELIX::initResources();
}

QIcon ImageHandler::icon(const QString& name) const
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        VELIX::Diagnostics::print("ImageHandler: no icon <%s>\n", qUtf8Printable(name));
        return {};
    }
    // Desktops show the program's own icon on backgrounds of their choice: it keeps its colours.
    const bool keepColors = name == QLatin1String("velix");
    return QIcon(new VELIX::SvgIconEngine(file.readAll(), mPalette, keepColors));
}

QStringList ImageHandler::names() const
{
    QStringList names = QDir(QStringLiteral(":/icons"))
                            .entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    for (QString& name : names) {
        name.chop(4); // ".svg"
    }
    return names;
}
