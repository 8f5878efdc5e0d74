#include "tools/democard/DemoHome.h"

#include "core/Property.h"

#include <QDir>
#include <QFile>

namespace VELIX::Demo {

namespace {

bool replaceFile(const QString& source, const QString& target)
{
    QFile::remove(target);
    return QFile::copy(source, target);
}

} // namespace

bool writeDemoHome(const QString& home, const QString& resources, const QString& card,
                   const QString& locale)
{
    const QDir data(home + QStringLiteral("/VELIX/data"));
    if (!data.mkpath(QStringLiteral("."))) {
        return false;
    }
    for (const char* const name : {"Profile.xml", "CurrentProject.xml"}) {
        const QString file = QLatin1String(name);
        if (!replaceFile(QDir(resources).filePath(file), data.filePath(file))) {
            return false;
        }
    }
    const QString settingsFile = data.filePath(QStringLiteral("VELIX.ini"));
    QFile::remove(settingsFile);
    Property settings;
    settings.setString("LastPath", card.toStdString());
    settings.setString("Locale", locale.toStdString());
    settings.writeXmlFile(settingsFile.toStdString());
    return QFile::exists(settingsFile);
}

} // namespace VELIX::Demo
