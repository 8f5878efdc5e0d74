#include "gui/help/Licences.h"

#include "gui/look/Resources.h"

#include <QFile>

namespace VELIX {

std::vector<Licences::Entry> Licences::entries()
{
    const auto file = [](const char* name) {
        return QStringLiteral(":/licences/%1.txt").arg(QLatin1String(name));
    };
    const QString lgpl = QStringLiteral("GNU LGPL 3");
    const QString mit = QStringLiteral("MIT");
    return {
        {QStringLiteral("VELIX"), tr("All rights reserved"), file("velix")},
        {QStringLiteral("Qt %1").arg(QLatin1String(qVersion())), lgpl, file("qt")},
        {QStringLiteral("GeographicLib"), mit, file("geographiclib")},
        {QStringLiteral("KArchive"), QStringLiteral("GNU LGPL 2+"), file("karchive")},
        {QStringLiteral("OpenGL, Mesa"), mit, file("opengl")},
        {tr("GNU C++ library"), tr("GNU GPL 3 with exception"), file("gcc")},
        {tr("DejaVu fonts"), tr("Bitstream Vera"), file("dejavu")},
        {tr("Map data"), tr("Public domain, ODbL"), file("map-data")},
        {lgpl, {}, file("lgpl-3")},
        {QStringLiteral("GNU GPL 3"), {}, file("gpl-3")},
    };
}

QString Licences::text(const Entry& entry)
{
    initResources();
    QFile file(entry.path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace VELIX
